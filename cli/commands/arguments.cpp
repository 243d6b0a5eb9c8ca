#include "cli/commands/arguments.h"

#include <CLI/CLI.hpp>

namespace varnel::cli {

namespace {

std::string LongName(const std::string& names) { return names.substr(names.find("--")); }

std::string RefuseValue(const std::string& value) {
    return value == "true" ? std::string() : "it takes no value; leave out =" + value;
}

}  // namespace

void AddValue(CLI::App& app, const Argument& argument, TakeValue take) {
    const auto read = [name = LongName(argument.names),
                       take = std::move(take)](const CLI::results_t& values) {
        std::string fault;
        if (values.size() > 1)
            fault = "it is given more than once; give it once";
        else if (values.front().empty())
            fault = "the value is empty";
        else
            fault = take(values.front());
        if (!fault.empty()) throw CLI::ValidationError(name, fault);
        return true;
    };
    app.add_option(argument.names, CLI::callback_t(read), argument.help)
        ->type_name(argument.value)
        ->expected(1)
        ->take_all();
}

void AddText(CLI::App& app, const Argument& argument, std::string& target) {
    AddValue(app, argument, [&target](const std::string& value) {
        target = value;
        return std::string();
    });
}

void AddFlag(CLI::App& app, const Argument& argument, bool& target) {
    app.add_flag(argument.names, target, argument.help)->check(CLI::Validator(RefuseValue, ""));
}

}  // namespace varnel::cli
