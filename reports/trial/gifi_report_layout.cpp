#include "reports/trial/gifi_report_layout.h"

#include "framework/exchange_rates_note.h"
#include "framework/item_adjustment_note.h"
#include "framework/layout_parts.h"

namespace varnel::reports {

namespace {

using namespace framework;

constexpr auto kCode = ColumnPlace::Left(0, 1'200);
constexpr auto kDescription = ColumnPlace::Left(1'260, 7'700, Stretch::kWiden);
constexpr auto kAmount = ColumnPlace::Amount(9'020, 1'780);

SectionLayout Code() {
    return {.name = "ghGIFI",
            .kind = SectionKind::kGroupHeader,
            .height = kGroupHeight,
            .group_field = "GIFIAcctId",
            .repeat = true,
            .controls = {
                Bound(ColumnText("txtGIFIAcctId", kCode, 60, kBodyBold, "gifi"), "GIFIAcctId")}};
}

SectionLayout Accounts() {
    return {.name = "Detail",
            .kind = SectionKind::kDetail,
            .height = kDetailHeight,
            .controls = {Growing(ColumnText("txtDescr", kDescription, 0, kBody)),
                         ExportedText("txtAcctNumber", "account", "GLAcctId"),
                         ExportedText("txtAcctDescr", "description", "Descr"),
                         ColumnText("txtAmount", kAmount, 0, kBody, "amount")}};
}

SectionLayout CodeTotal() {
    return {.name = "gfGIFI",
            .kind = SectionKind::kGroupFooter,
            .height = kGroupHeight,
            .controls = {TotalRule("linTotal", kAmount, 0),
                         ColumnText("txtTotal", kAmount, 25, kBodyBold)}};
}

SectionLayout Count() {
    return {.name = "ReportFooter",
            .kind = SectionKind::kReportFooter,
            .height = kReportFooterHeight,
            .controls = {ColumnText("txtCount", ColumnPlace::Left(0, 5'000), 170, kQuiet)}};
}

}  // namespace

const Layout& GifiReportLayout() {
    static const Layout layout{
        .name = "dsrGIFIReport",
        .sections = {PageHeader(PageHeaderControlsWithRates(
                         {ColumnCaption("lblCodeCap", kCode, 1741),
                          ColumnCaption("lblDescrCap", kDescription, 1789),
                          ColumnCaption("lblAmountCap", kAmount, 2637), CaptionRule()})),
                     Code(), Accounts(), CodeTotal(), PageFooter({ItemAdjustmentNoteControl()}),
                     Count()}};
    return layout;
}

}  // namespace varnel::reports
