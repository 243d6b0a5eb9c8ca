#include "reports/bank/reconciliation_layout.h"

#include "framework/item_adjustment_note.h"
#include "framework/layout_parts.h"

namespace varnel::reports {

namespace {

using namespace framework;

constexpr auto kDate = ColumnPlace::Left(240, 1'200);
constexpr auto kReference = ColumnPlace::Left(1'500, 1'700);
constexpr auto kDescription = ColumnPlace::Left(3'260, 5'480, Stretch::kWiden);
constexpr auto kAmount = ColumnPlace::Amount(8'800, 2'000);
constexpr auto kGroup = ColumnPlace::Left(0, 8'700, Stretch::kWiden);

// In the block of the header, where other reports have their period.
constexpr Twips kSubjectTop = 640;
constexpr auto kAccountCaption = ColumnPlace::Left(0, 900);
constexpr auto kAccount = ColumnPlace::Left(960, 1'300);
constexpr auto kCurrency = ColumnPlace::Left(2'300, 560);
constexpr auto kStatementCaption = ColumnPlace::Left(3'140, 1'500);
constexpr auto kStatementDate = ColumnPlace::Left(4'700, 1'800);
// As large as the values, so that they stand on one line.
constexpr TextStyle kSubjectCaption = {.size = kPeriod.size, .ink = Ink::kMuted};

// Of the summary.
constexpr Twips kSummaryTop = 240;
constexpr Twips kSummaryStep = 250;
constexpr auto kSummaryCaption = ColumnPlace::Left(4'200, 4'540, Stretch::kShift);

ControlLayout Label(ControlLayout text) {
    text.kind = ControlKind::kLabel;
    return text;
}

std::vector<ControlLayout> HeaderControls() {
    return {Label(ColumnText("lblConcilAcct", kAccountCaption, kSubjectTop, kSubjectCaption)),
            ColumnText("txtConcilAcctId", kAccount, kSubjectTop, kPeriod),
            ColumnText("txtCurrency", kCurrency, kSubjectTop, kPeriod),
            Label(ColumnText("lblConcDate", kStatementCaption, kSubjectTop, kSubjectCaption)),
            ColumnText("txtConcDate", kStatementDate, kSubjectTop, kPeriod),
            ColumnCaption("lblDateCap", kDate, 1912),
            ColumnCaption("lblDescriptionCap", kDescription, 1789),
            ColumnCaption("lblReferenceCap", kReference, 30051),
            ColumnCaption("lblAmountCap", kAmount, 30052),
            CaptionRule()};
}

SectionLayout Group() {
    return {.name = "ghTransactionType",
            .kind = SectionKind::kGroupHeader,
            .height = 400,
            .group_field = "TransactionType",
            .repeat = true,
            .controls = {Label(ColumnText("lblTransactionType", kGroup, 130, kHeading, "group"))}};
}

SectionLayout Item() {
    return {.name = "Detail",
            .kind = SectionKind::kDetail,
            .height = kDetailHeight,
            .controls = {ColumnText("txtDetDate", kDate, 0, kBody, "date"),
                         Growing(ColumnText("txtDetRef", kReference, 0, kBody, "reference")),
                         Growing(ColumnText("txtDetDesc", kDescription, 0, kBody, "description")),
                         ColumnText("txtAmount", kAmount, 0, kBody, "amount")}};
}

SectionLayout GroupTotal() {
    return {.name = "gfTransactionType",
            .kind = SectionKind::kGroupFooter,
            .height = kGroupHeight,
            .controls = {TotalRule("linGroupTotal", kAmount, 10),
                         ColumnLabel("lblGroupTotal", kDescription, 35, kBodyBold, 30026),
                         ColumnText("txtGroupTotal", kAmount, 35, kBodyBold)}};
}

SectionLayout Summary() {
    const auto top = [](int line) { return kSummaryTop + line * kSummaryStep; };
    const Twips under_adjusted = 60, end = top(5) + under_adjusted + 230;
    return {.name = "ReportFooter",
            .kind = SectionKind::kReportFooter,
            .height = end + 100,
            .controls = {
                ColumnLabel("lblEndBal", kSummaryCaption, top(0), kBody, 30020),
                ColumnText("txtEndBal", kAmount, top(0), kBody),
                Label(ColumnText("lblDepCirc", kSummaryCaption, top(1), kBody)),
                ColumnText("txtDepCirc", kAmount, top(1), kBody),
                Label(ColumnText("lblChqCirc", kSummaryCaption, top(2), kBody)),
                ColumnText("txtChqCirc", kAmount, top(2), kBody),
                TotalRule("linAdjustedBal", kAmount, top(3) - 10),
                ColumnLabel("lblAdjustedBal", kSummaryCaption, top(3), kBodyBold, 30021),
                ColumnText("txtAdjustedBal", kAmount, top(3), kBodyBold),
                ColumnLabel("lblGLBal", kSummaryCaption, top(4) + under_adjusted, kBody, 30022),
                ColumnText("txtGLBal", kAmount, top(4) + under_adjusted, kBody),
                ColumnLabel("lblDif", kSummaryCaption, top(5) + under_adjusted, kBodyBold, 30023),
                ColumnText("txtDif", kAmount, top(5) + under_adjusted, kBodyBold),
                TotalRule("linDif", kAmount, end), TotalRule("linDif2", kAmount, end + 40)}};
}

}  // namespace

Layout ReconciliationLayout(std::string_view name) {
    return {.name = name,
            .sections = {PageHeader(PageHeaderControls(HeaderControls())), Group(), Item(),
                         GroupTotal(), PageFooter(), Summary()}};
}

}  // namespace varnel::reports
