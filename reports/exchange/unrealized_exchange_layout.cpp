#include "reports/exchange/unrealized_exchange_layout.h"

#include "framework/exchange_rates_note.h"
#include "framework/layout_parts.h"

namespace varnel::reports {

namespace {

using namespace framework;

constexpr Twips kAmountWidth = 1'400;
constexpr Twips kForeignLeft = 4'540;
constexpr Twips kGainLeft = 9'400;
constexpr Twips kNameLeft = 700;
constexpr Twips kBeforeForeign = kForeignLeft - 60;

constexpr auto kCurrency = ColumnPlace::Left(0, kNameLeft - 60);
constexpr auto kCurrencyName =
    ColumnPlace::Left(kNameLeft, kLayoutWidth - kNameLeft, Stretch::kWiden);
constexpr auto kAccount = ColumnPlace::Left(240, kBeforeForeign - 240, Stretch::kWiden);
constexpr auto kForeign = ColumnPlace::Amount(kForeignLeft, kAmountWidth);
constexpr auto kCode = ColumnPlace::Left(6'000, 420, Stretch::kShift);
constexpr auto kBooked = ColumnPlace::Amount(6'480, kAmountWidth);
constexpr auto kRevalued = ColumnPlace::Amount(7'940, kAmountWidth);
constexpr auto kGain = ColumnPlace::Amount(kGainLeft, kAmountWidth);
/// What stands before the amounts, and what stands before the last of them.
constexpr auto kLabel = ColumnPlace::Left(0, kBeforeForeign, Stretch::kWiden);
constexpr auto kRatesDate = ColumnPlace::Amount(kForeignLeft, kGainLeft - 60 - kForeignLeft);

std::vector<ControlLayout> Captions() {
    return {ColumnCaption("lblAccountCap", kLabel, 30025),
            ColumnCaption("lblForeignCap", kForeign, 30030),
            ColumnCaption("lblBookedCap", kBooked, 30031),
            ColumnCaption("lblRevaluedCap", kRevalued, 30032),
            ColumnCaption("lblGainCap", kGain, 30033),
            CaptionRule()};
}

SectionLayout CurrencyHeader() {
    const auto code = ColumnText("txtCurrency", kCurrency, 70, kBodyBold, "currency");
    const auto name = ColumnText("txtCurrencyName", kCurrencyName, 70, kBodyBold);
    return {.name = "ghCurrency",
            .kind = SectionKind::kGroupHeader,
            .height = kGroupHeight,
            .group_field = "ExCurrencyId",
            .repeat = true,
            .controls = {Bound(code, "CurrencyCode"), Bound(name, "Descr")}};
}

SectionLayout AccountFooter() {
    return {.name = "gfAccountType",
            .kind = SectionKind::kGroupFooter,
            .height = kDetailHeight,
            .controls = {Growing(ColumnText("txtAccount", kAccount, 0, kBody, "account")),
                         ColumnText("txtForeign", kForeign, 0, kBody, "foreign"),
                         Bound(ColumnText("txtCode", kCode, 0, kQuiet), "CurrencyCode"),
                         ColumnText("txtBooked", kBooked, 0, kBody, "booked"),
                         ColumnText("txtRevalued", kRevalued, 0, kBody, "revalued"),
                         ColumnText("txtGain", kGain, 0, kBody, "gain")}};
}

SectionLayout CurrencyFooter() {
    return {.name = "gfCurrency",
            .kind = SectionKind::kGroupFooter,
            .height = kGroupHeight,
            .controls = {TotalRule("linBookedTotal", kBooked, 0),
                         TotalRule("linRevaluedTotal", kRevalued, 0),
                         TotalRule("linGainTotal", kGain, 0),
                         ColumnText("txtCurrencyTotal", kAccount, 25, kBodyBold),
                         ColumnText("txtBookedTotal", kBooked, 25, kBodyBold),
                         ColumnText("txtRevaluedTotal", kRevalued, 25, kBodyBold),
                         ColumnText("txtGainTotal", kGain, 25, kBodyBold)}};
}

SectionLayout GrandTotal() {
    constexpr Twips kTop = 170;
    return {.name = "ReportFooter",
            .kind = SectionKind::kReportFooter,
            .height = kReportFooterHeight,
            .controls = {TotalRule("linGrandTotal", kWholeWidth, 90, kThick),
                         ColumnLabel("lblGrandTotal", kLabel, kTop, kHeading, 30040),
                         ColumnText("txtRatesDate", kRatesDate, kTop, kQuiet),
                         ColumnText("txtGainGrandTotal", kGain, kTop, kHeading)}};
}

}  // namespace

const Layout& UnrealizedExchangeLayout() {
    static const Layout layout{.name = "dsrUnRealExchProfitloss",
                               .sections = {
                                   {.name = "ReportHeader", .kind = SectionKind::kReportHeader},
                                   PageHeader(PageHeaderControlsWithRates(Captions())),
                                   CurrencyHeader(),
                                   {.name = "ghAccountType",
                                    .kind = SectionKind::kGroupHeader,
                                    .group_field = "InGLAcctId"},
                                   {.name = "Detail", .kind = SectionKind::kDetail},
                                   AccountFooter(),
                                   CurrencyFooter(),
                                   PageFooter(),
                                   GrandTotal(),
                               }};
    return layout;
}

}  // namespace varnel::reports
