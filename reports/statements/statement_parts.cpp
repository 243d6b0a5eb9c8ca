#include "reports/statements/statement_parts.h"

namespace varnel::reports {

using namespace framework;

namespace {

constexpr Twips kSectionHeaderHeight = 570;
constexpr Twips kSectionCaptionTop = 240;
constexpr Twips kSectionCaptionHeight = 290;
constexpr Twips kRowRuleTop = 4;
constexpr Twips kRowTop = 20;
constexpr TextStyle kSection = {.size = 190, .bold = true, .ink = Ink::kAccent};

}  // namespace

SectionLayout StatementSection(const ColumnPlace& description) {
    auto caption = ColumnText("lblAcctType", description, kSectionCaptionTop, kSection, "section");
    caption.kind = ControlKind::kLabel;
    caption.box.height = kSectionCaptionHeight;
    return {.name = "ghAcctType",
            .kind = SectionKind::kGroupHeader,
            .height = kSectionHeaderHeight,
            .group_field = "AcctType",
            .repeat = true,
            .keep_together = true,
            .controls = {caption}};
}

SectionLayout StatementRows(const ColumnPlace& description, std::vector<ControlLayout> controls) {
    const auto text = ColumnText("txtDescr", description, kRowTop, kBody, "description");
    controls.insert(controls.begin(),
                    {ExportedText("txtRow", "row"), Growing(Bound(text, "Descr"))});
    return {.name = "Detail",
            .kind = SectionKind::kDetail,
            .height = kDetailHeight,
            .controls = std::move(controls)};
}

ControlLayout RowAmount(std::string_view name, const ColumnPlace& place, std::string_view column) {
    return ColumnText(name, place, kRowTop, kBody, column);
}

ControlLayout RowRule(std::string_view name, const ColumnPlace& place) {
    return Hidden(TotalRule(name, place, kRowRuleTop));
}

ControlLayout SectionCaption(std::string_view name, const ColumnPlace& place, Twips top) {
    auto caption = ColumnText(name, place, top, kBodyBold);
    caption.kind = ControlKind::kLabel;
    return Growing(caption);
}

}  // namespace varnel::reports
