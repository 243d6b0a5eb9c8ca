#include "reports/journal/entry_layout.h"

#include <utility>

#include "framework/item_adjustment_note.h"
#include "framework/layout_parts.h"

namespace varnel::reports {

namespace {

using namespace framework;

constexpr Twips kTextLeft = 1'840;
constexpr Twips kProjectLeft = 7'280;

constexpr auto kSeqNo = ColumnPlace::Left(0, 680);
constexpr auto kDate = ColumnPlace::Left(740, 1'040);
constexpr auto kAccount =
    ColumnPlace::Left(kTextLeft, kProjectLeft - 60 - kTextLeft, Stretch::kWiden);
constexpr auto kText = ColumnPlace::Left(kTextLeft, kLayoutWidth - kTextLeft, Stretch::kWiden);
constexpr auto kProject = ColumnPlace::Left(kProjectLeft, 760, Stretch::kShift);
constexpr auto kDebit = ColumnPlace::Amount(8'100, 1'320);
constexpr auto kCredit = ColumnPlace::Amount(9'480, 1'320);
// Only with foreign amounts.
constexpr auto kForeign = ColumnPlace::Amount(9'120, 1'220);
constexpr auto kCode = ColumnPlace::Left(10'400, 400, Stretch::kShift);

std::vector<ControlLayout> Captions() {
    return {ColumnCaption("lblSeqNoCap", kSeqNo, 30045),
            ColumnCaption("lblDateCap", kDate, 1912),
            ColumnCaption("lblAccountCap", kAccount, 30025),
            ColumnCaption("lblProjectCap", kProject, 30046),
            ColumnCaption("lblDebitCap", kDebit, 2656),
            ColumnCaption("lblCreditCap", kCredit, 2657),
            Hidden(ColumnCaption("lblForeignCap", kForeign, 5846)),
            CaptionRule()};
}

SectionLayout EntryHeader() {
    return {
        .name = "ghSeqNo",
        .kind = SectionKind::kGroupHeader,
        .height = kGroupHeight,
        .group_field = "SeqNo",
        .repeat = true,
        .controls = {ColumnText("txtSeqNo", kSeqNo, 70, kBodyBold, "entry"),
                     ColumnText("txtDate", kDate, 70, kBodyBold, "date"),
                     Growing(ColumnText("txtDescription", kText, 70, kBodyBold, "description"))}};
}

SectionLayout Lines() {
    const auto code = ColumnText("txtForeignCode", kCode, 0, kQuiet, "currency");
    return {.name = "Detail",
            .kind = SectionKind::kDetail,
            .height = kDetailHeight,
            .controls = {Growing(ColumnText("txtAccount", kAccount, 0, kBody, "account")),
                         Growing(ColumnText("txtProject", kProject, 0, kQuiet, "project")),
                         ColumnText("txtDebit", kDebit, 0, kBody, "debit"),
                         ColumnText("txtCredit", kCredit, 0, kBody, "credit"),
                         Hidden(ColumnText("txtForeign", kForeign, 0, kQuiet, "foreign")),
                         Hidden(Bound(code, "CurrencyCode"))}};
}

SectionLayout Remarks() {
    return {.name = "gfComment",
            .kind = SectionKind::kGroupFooter,
            .height = kDetailHeight,
            .controls = {Growing(Bound(ColumnText("txtRemarks", kText, 0, kRemark), "Remarks"))}};
}

SectionLayout EntryFooter() {
    return {
        .name = "gfSeqNo",
        .kind = SectionKind::kGroupFooter,
        .height = kGroupHeight,
        .controls = {TotalRule("linDebitTotal", kDebit, 0), TotalRule("linCreditTotal", kCredit, 0),
                     ColumnText("txtDebitTotal", kDebit, 25, kBodyBold),
                     ColumnText("txtCreditTotal", kCredit, 25, kBodyBold)}};
}

SectionLayout GrandTotals() {
    constexpr Twips kTop = 170;
    constexpr auto kLabel = ColumnPlace::Left(0, 1'800);
    constexpr auto kCount = ColumnPlace::Left(kTextLeft, 3'000);
    return {.name = "ReportFooter",
            .kind = SectionKind::kReportFooter,
            .height = kReportFooterHeight,
            .controls = {TotalRule("linGrandTotal", kWholeWidth, 90, kThick),
                         ColumnLabel("lblGrandTotal", kLabel, kTop, kHeading, 1641),
                         ColumnText("txtCount", kCount, kTop, kQuiet),
                         ColumnText("txtDebitGrandTotal", kDebit, kTop, kHeading),
                         ColumnText("txtCreditGrandTotal", kCredit, kTop, kHeading)}};
}

}  // namespace

Layout EntryLayout(std::string_view name, std::vector<ControlLayout> page_header) {
    auto captions = Captions();
    page_header.insert(page_header.end(), captions.begin(), captions.end());
    return {.name = name,
            .sections = {
                {.name = "ReportHeader", .kind = SectionKind::kReportHeader},
                PageHeader(PageHeaderControls(std::move(page_header))),
                EntryHeader(),
                {.name = "ghComment", .kind = SectionKind::kGroupHeader, .group_field = "Remarks"},
                Lines(),
                Remarks(),
                EntryFooter(),
                PageFooter({ItemAdjustmentNoteControl()}),
                GrandTotals(),
            }};
}

}  // namespace varnel::reports
