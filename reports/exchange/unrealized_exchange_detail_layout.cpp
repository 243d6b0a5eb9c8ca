#include "reports/exchange/unrealized_exchange_detail_layout.h"

#include "framework/exchange_rates_note.h"
#include "framework/layout_parts.h"

namespace varnel::reports {

namespace {

using namespace framework;

constexpr Twips kTextRight = 5'040;
constexpr Twips kAmountWidth = 1'380;

constexpr auto kDate = ColumnPlace::Left(0, 1'040);
constexpr auto kText = ColumnPlace::Left(1'100, kTextRight - 1'100, Stretch::kWiden);
constexpr auto kForeign = ColumnPlace::Amount(5'100, kAmountWidth);
constexpr auto kHome = ColumnPlace::Amount(6'540, kAmountWidth);
constexpr auto kRevalued = ColumnPlace::Amount(7'980, kAmountWidth);
constexpr auto kGain = ColumnPlace::Amount(9'420, kAmountWidth);

constexpr auto kAccount = ColumnPlace::Left(1'100, kLayoutWidth - 1'100, Stretch::kWiden);
constexpr auto kTotalLabel = ColumnPlace::Left(0, 1'900);
constexpr auto kTotalText = ColumnPlace::Left(1'960, kTextRight - 1'960, Stretch::kWiden);

std::vector<ControlLayout> Captions() {
    return {ColumnCaption("lblDateCap", kDate, 1912),
            ColumnCaption("lblDescriptionCap", kText, 1789),
            ColumnCaption("lblForeignCap", kForeign, 5846),
            ColumnCaption("lblHomeCap", kHome, 30031),
            ColumnCaption("lblRevaluedCap", kRevalued, 30032),
            ColumnCaption("lblGainCap", kGain, 30033),
            CaptionRule()};
}

SectionLayout AccountHeader() {
    constexpr Twips kTop = 70;
    constexpr Twips kForwardTop = 310;
    return {.name = "ghGLAcct",
            .kind = SectionKind::kGroupHeader,
            .height = 550,
            .group_field = "InGLAcctId",
            .repeat = true,
            .controls = {ColumnText("txtCurrency", kDate, kTop, kHeading, "currency"),
                         Growing(ColumnText("txtAccount", kAccount, kTop, kHeading, "account")),
                         ColumnText("txtForwardDate", kDate, kForwardTop, kQuiet),
                         ColumnLabel("lblForward", kText, kForwardTop, kBodyBold, 3011),
                         ColumnText("txtForwardForeign", kForeign, kForwardTop, kBodyBold),
                         ColumnText("txtForwardHome", kHome, kForwardTop, kBodyBold),
                         ColumnText("txtForwardRevalued", kRevalued, kForwardTop, kBodyBold),
                         ColumnText("txtForwardGain", kGain, kForwardTop, kBodyBold)}};
}

SectionLayout Lines() {
    return {.name = "Detail",
            .kind = SectionKind::kDetail,
            .height = kDetailHeight,
            .controls = {ColumnText("txtDate", kDate, 0, kBody, "date"),
                         Growing(ColumnText("txtDetDesc", kText, 0, kBody, "description")),
                         ColumnText("txtForeign", kForeign, 0, kBody, "foreign"),
                         ColumnText("txtHome", kHome, 0, kBody, "booked"),
                         ColumnText("txtRevalued", kRevalued, 0, kBody, "revalued"),
                         ColumnText("txtGain", kGain, 0, kBody, "gain")}};
}

// The account stands here too: a period without lines has no account header.
SectionLayout Totals() {
    constexpr Twips kPeriodTop = 150;
    constexpr Twips kClosingTop = 400;
    return {.name = "ReportFooter",
            .kind = SectionKind::kReportFooter,
            .height = 640,
            .controls = {TotalRule("linTotals", kWholeWidth, 90, kThick),
                         ColumnLabel("lblPeriod", kTotalLabel, kPeriodTop, kBodyBold, 2681),
                         ColumnText("txtPeriodForeign", kForeign, kPeriodTop, kBodyBold),
                         ColumnText("txtPeriodHome", kHome, kPeriodTop, kBodyBold),
                         ColumnText("txtPeriodRevalued", kRevalued, kPeriodTop, kBodyBold),
                         ColumnText("txtPeriodGain", kGain, kPeriodTop, kBodyBold),
                         ColumnLabel("lblClosing", kTotalLabel, kClosingTop, kHeading, 30038),
                         Growing(ColumnText("txtClosingAccount", kTotalText, kClosingTop, kBody)),
                         ColumnText("txtClosingForeign", kForeign, kClosingTop, kHeading),
                         ColumnText("txtClosingHome", kHome, kClosingTop, kHeading),
                         ColumnText("txtClosingRevalued", kRevalued, kClosingTop, kHeading),
                         ColumnText("txtClosingGain", kGain, kClosingTop, kHeading)}};
}

}  // namespace

const Layout& UnrealizedExchangeDetailLayout() {
    static const Layout layout{.name = "dsrUnRealExchProfitlossDetail",
                               .sections = {
                                   {.name = "ReportHeader", .kind = SectionKind::kReportHeader},
                                   PageHeader(PageHeaderControlsWithRates(Captions())),
                                   AccountHeader(),
                                   Lines(),
                                   {.name = "gfGLAcct", .kind = SectionKind::kGroupFooter},
                                   PageFooter(),
                                   Totals(),
                               }};
    return layout;
}

}  // namespace varnel::reports
