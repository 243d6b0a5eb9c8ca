#include "reports/statements/income_statement_parts.h"

#include "framework/exchange_rates_note.h"

namespace varnel::reports {

using namespace framework;

namespace {

constexpr auto kProjectsCaption = ColumnPlace::Left(0, 1'000);
constexpr auto kProjects = ColumnPlace::Left(1'060, 9'740, Stretch::kWiden);

ControlLayout Label(std::string_view name, const ColumnPlace& place, Twips top,
                    const TextStyle& style) {
    auto label = ColumnText(name, place, top, style);
    label.kind = ControlKind::kLabel;
    return label;
}

}  // namespace

ControlLayout DateCaption(std::string_view name, const ColumnPlace& place, int lines) {
    auto dates = Growing(Label(name, place, kDatesTop, kQuiet));
    dates.box.height = lines * kLineHeight;
    return dates;
}

SectionLayout IncomeStatementHeader(std::vector<ControlLayout> captions, int date_lines) {
    auto projects = Label("lblProjects", kProjectsCaption, kProjectsTop, kBodyBold);
    projects.text = "Projets:";
    auto rule = CaptionRule();
    rule.box.top = kDatesTop + date_lines * kLineHeight + 20;
    captions.insert(captions.begin(),
                    {projects, Growing(Label("fldProjects", kProjects, kProjectsTop, kBody)),
                     Growing(Label(kExchangeRatesNote, kWholeWidth, kRatesTop, kQuiet))});
    captions.push_back(rule);
    return {.name = "GroupHeader1",
            .kind = SectionKind::kGroupHeader,
            .height = rule.box.Bottom(),
            .repeat = true,
            .controls = std::move(captions)};
}

}  // namespace varnel::reports
