#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <map>

#include "cli/commands/command.h"
#include "cli/company_argument.h"
#include "cli/describe_failure.h"
#include "cli/errors.h"
#include "cli/interrupt.h"
#include "cli/nearest_name.h"

namespace varnel::cli {

namespace {

using Actions = std::map<const CLI::App*, Command::Action>;

Actions Describe(CLI::App& program) {
    program.set_help_flag("-h,--help", "Show this help");
    program.set_version_flag("--version", "varnel " VARNEL_VERSION, "Show the version");
    program.require_subcommand(0, 1);
    program.allow_extras();
    program.get_formatter()->label("SUBCOMMAND", "COMMAND");
    program.footer("\"varnel COMMAND --help\" tells more about a command.");
    Actions actions;
    for (const auto& command : Commands()) {
        auto* app = program.add_subcommand(std::string(command.name), std::string(command.summary));
        app->group("Commands");
        app->allow_extras();  // They are refused here, with the name that was meant.
        actions[app] = command.describe(*app);
    }
    return actions;
}

std::string SeeHelp(const CLI::App& app) {
    const bool is_command = app.get_parent() != nullptr;
    return "\n\"varnel" + (is_command ? " " + app.get_name() : "") +
           " --help\" tells what there is";
}

[[noreturn]] void RefuseOption(const CLI::App& app, const std::string& argument) {
    std::vector<std::string> names;
    for (const auto* option : app.get_options())
        for (const auto& name : option->get_lnames()) names.push_back("--" + name);
    const std::vector<std::string_view> views(names.begin(), names.end());
    const std::string option = argument.substr(0, argument.find('='));
    throw UsageError("there is no option " + option + DidYouMean(option, views) + SeeHelp(app));
}

[[noreturn]] void RefuseCommand(const CLI::App& program, const std::string& name) {
    std::vector<std::string_view> names;
    for (const auto& command : Commands()) names.push_back(command.name);
    throw UsageError("there is no command " + name + DidYouMean(name, names) + SeeHelp(program));
}

/// An option that is not known comes first: what follows it is likely its value.
void RefuseExtras(const CLI::App& app) {
    const auto extras = app.remaining();
    for (const auto& extra : extras)
        if (extra.starts_with('-') && extra != "-" && extra != "--") RefuseOption(app, extra);
    if (extras.empty()) return;
    CheckCompany("unexpected argument", extras.front());  // Its password is not to be shown.
    if (app.get_parent() == nullptr) RefuseCommand(app, extras.front());
    throw UsageError("unexpected argument: " + extras.front() + SeeHelp(app));
}

/// The one mismatch that options do not tell of themselves is that of no value: "--from: 1 …".
std::string PlainWords(const CLI::ParseError& error) {
    std::string text = error.what();
    if (error.get_exit_code() != static_cast<int>(CLI::ExitCodes::ArgumentMismatch)) return text;
    return text.substr(0, text.find(':')) + ": the value is missing";
}

int Run(int argc, char** argv, Console& console) {
    CLI::App program("Financial reports over a company database", "varnel");
    const Actions actions = Describe(program);
    try {
        program.parse(argc, argv);
    } catch (const CLI::Success& shown) {
        program.exit(shown);
        return kDone;
    } catch (const CLI::ParseError& error) {
        const auto parsed = program.get_subcommands();
        throw UsageError(PlainWords(error) + SeeHelp(parsed.empty() ? program : *parsed.front()));
    }
    const auto parsed = program.get_subcommands();
    RefuseExtras(program);
    if (parsed.empty()) throw UsageError("say which command" + SeeHelp(program));
    RefuseExtras(*parsed.front());
    return actions.at(parsed.front())(console);
}

/// What was printed last may fail only when it leaves the buffer.
void FlushStandardOutput() {
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
        throw Failure("cannot write standard output");
}

}  // namespace

int Main(int argc, char** argv) {
    CatchSignals();
    Console console;
    try {
        const int code = Run(argc, argv, console);
        FlushStandardOutput();
        return code;
    } catch (...) {
        return TellFailure(console);
    }
}

}  // namespace varnel::cli
