#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>

#include "cli/commands/arguments.h"
#include "cli/errors.h"
#include "cli/report_table.h"
#include "cli/run_options.h"
#include "cli/run_settings.h"
#include "company/texts/texts.h"
#include "framework/texts.h"

namespace varnel::cli {

namespace {

std::string OptionList(const ReportEntry& entry) {
    std::string list;
    for (const auto* option : OptionsOf(entry)) {
        list += list.empty() ? "" : " ";
        list += option->LongName();
    }
    return list;
}

int ListReports(const std::string& asked_language, Console& console) {
    const std::string language = ReadLanguage(asked_language);
    company::Texts texts(company::LanguageOf(language), [&](std::int16_t number) {
        console.Say("there is no text " + std::to_string(number) + " in this language");
    });
    for (const auto& entry : Reports()) {
        const auto title = framework::WithoutAccelerators(texts.Get(TitleText(entry)));
        std::printf("%-30s %s\n    %s\n", std::string(entry.name).c_str(), title.c_str(),
                    OptionList(entry).c_str());
    }
    return kDone;
}

}  // namespace

Command::Action DescribeReports(CLI::App& app) {
    auto language = std::make_shared<std::string>("en-CA");
    AddText(app, {"--lang", "en-CA|fr-CA", "Language of the titles"}, *language);
    return [language](Console& console) { return ListReports(*language, console); };
}

}  // namespace varnel::cli
