#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>

#include "cli/commands/command.h"
#include "cli/compare_run.h"
#include "cli/errors.h"
#include "cli/report_table.h"

namespace varnel::cli {

namespace {

void AppendWord(std::string& words, std::string_view word) {
    if (!words.empty()) words += ' ';
    words += word;
}

std::vector<std::string> NamesOf(const CLI::Option& option) {
    std::vector<std::string> names;
    for (const auto& name : option.get_snames()) names.push_back("-" + name);
    for (const auto& name : option.get_lnames()) names.push_back("--" + name);
    return names;
}

/// What completes the value of an option, from what the help calls it; empty for nothing.
std::string ValueWords(const CLI::Option& option) {
    std::string value = option.get_type_name();
    if (value == "FILE") return "compgen -f -- \"$word\"";
    if (value.find('|') == std::string::npos) return {};
    std::ranges::replace(value, '|', ' ');
    return "compgen -W '" + value + "' -- \"$word\"";
}

void AppendValueCases(const CLI::App& command, std::string& script) {
    for (const auto* option : command.get_options()) {
        const auto words = ValueWords(*option);
        const auto names = NamesOf(*option);
        if (words.empty() || names.empty()) continue;
        std::string pattern = command.get_name();
        pattern += " " + names[0];
        script += "        '" + pattern + "'";
        for (std::size_t i = 1; i < names.size(); ++i)
            script += "|'" + command.get_name() + " " + names[i] + "'";
        script += ") COMPREPLY=($(" + words + ")); return ;;\n";
    }
}

std::string OptionWords(const CLI::App& command) {
    std::string words;
    for (const auto* option : command.get_options())
        for (const auto& name : NamesOf(*option)) AppendWord(words, name);
    return words;
}

std::string NamesOfReports() {
    std::string words;
    for (const auto& entry : Reports()) AppendWord(words, entry.name);
    return words;
}

/// The words that a command takes by itself: reports, shells; a file's name is left to the shell.
std::string PlainWords(const std::string& command) {
    if (command == "run") return NamesOfReports();
    if (command == "compare") return ComparableReports();
    return command == "completion" ? "bash" : "";
}

std::string BashScript(const CLI::App& program) {
    std::string commands;
    std::string values;
    std::string words;
    for (const auto* command : program.get_subcommands({})) {
        const auto& name = command->get_name();
        AppendWord(commands, name);
        AppendValueCases(*command, values);
        std::string list = OptionWords(*command);
        AppendWord(list, PlainWords(name));
        words.append("        ").append(name).append(") words='").append(list).append("' ;;\n");
    }
    return "# Completion of varnel for bash: source <(varnel completion bash)\n"
           "_varnel() {\n"
           "    local word=${COMP_WORDS[COMP_CWORD]} words\n"
           "    local previous=${COMP_WORDS[COMP_CWORD-1]}\n"
           "    case \"${COMP_WORDS[1]} $previous\" in\n" +
           values +
           "    esac\n"
           "    case ${COMP_WORDS[1]} in\n" +
           words + "        *) words='" + commands + " " + OptionWords(program) +
           "' ;;\n"
           "    esac\n"
           "    COMPREPLY=($(compgen -W \"$words\" -- \"$word\"))\n"
           "}\n"
           "complete -o default -F _varnel varnel\n";
}

int PrintCompletion(const std::string& shell, const CLI::App& program) {
    if (shell != "bash")
        throw UsageError((shell.empty() ? "say for which shell" : "there is no shell " + shell) +
                         ": varnel completion bash");
    std::fputs(BashScript(program).c_str(), stdout);
    return kDone;
}

}  // namespace

Command::Action DescribeCompletion(CLI::App& app) {
    auto shell = std::make_shared<std::string>();
    app.add_option("SHELL", *shell, "The shell: bash")->type_name("");
    app.footer("In ~/.bashrc: source <(varnel completion bash)");
    const CLI::App* program = app.get_parent();
    return [shell, program](Console&) { return PrintCompletion(*shell, *program); };
}

}  // namespace varnel::cli
