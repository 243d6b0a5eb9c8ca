#include "cli/commands/run_arguments.h"

#include <CLI/CLI.hpp>

#include "cli/commands/arguments.h"

namespace varnel::cli {

void AddRunOption(CLI::App& app, const RunOption& option, RunRequest& request) {
    const Argument argument{std::string(option.names), std::string(option.value),
                            std::string(option.help)};
    if (const auto* flag = std::get_if<bool RunRequest::*>(&option.target)) {
        AddFlag(app, argument, request.**flag);
    } else if (const auto* text = std::get_if<std::string RunRequest::*>(&option.target)) {
        AddText(app, argument, request.**text);
    } else {
        auto& list = request.*std::get<std::vector<std::string> RunRequest::*>(option.target);
        app.add_option(argument.names, list, argument.help)
            ->type_name(argument.value)
            ->expected(1)
            ->take_all();
    }
}

}  // namespace varnel::cli
