#include "reports/exchange/unrealized_exchange_layout.h"

#include "framework/exchange_rates_note.h"
#include "framework/standard_header.h"
#include "framework/styles.h"

namespace varnel::reports {

namespace {

using namespace framework;

constexpr Twips kAmountWidth = 1'400;
constexpr Twips kGainLeft = 9'400;
constexpr Twips kRevaluedLeft = 7'940;
constexpr Twips kBookedLeft = 6'480;
constexpr Twips kCodeLeft = 6'000;
constexpr Twips kCodeWidth = 420;
constexpr Twips kForeignLeft = 4'540;
constexpr Twips kAccountLeft = 240;
constexpr Twips kAccountWidth = kForeignLeft - 60 - kAccountLeft;
constexpr Twips kNameLeft = 700;
constexpr Twips kLine = 220;

std::vector<ControlLayout> Captions() {
    const auto caption = [](std::string_view name, Twips left, Twips width, std::int16_t text,
                            Align align, Stretch stretch) {
        return ControlLayout{.name = name,
                             .kind = ControlKind::kLabel,
                             .box = {left, 990, width, 270},
                             .style = kCaption,
                             .align = align,
                             .caption = text,
                             .stretch = stretch};
    };
    const auto amount = [&](std::string_view name, Twips left, std::int16_t text) {
        return caption(name, left, kAmountWidth, text, Align::kRight, Stretch::kShift);
    };
    return {caption("lblAccountCap", 0, kForeignLeft - 60, 30025, Align::kLeft, Stretch::kWiden),
            amount("lblForeignCap", kForeignLeft, 30030),
            amount("lblBookedCap", kBookedLeft, 30031),
            amount("lblRevaluedCap", kRevaluedLeft, 30032),
            amount("lblGainCap", kGainLeft, 30033),
            {.name = kCaptionRule,
             .kind = ControlKind::kLine,
             .box = {0, 1'250, 10'800, kThin},
             .style = kHairline,
             .stretch = Stretch::kWiden}};
}

ControlLayout Amount(std::string_view name, Twips left, Twips top, TextStyle style,
                     std::string_view column = {}) {
    return {.name = name,
            .box = {left, top, kAmountWidth, kLine},
            .style = style,
            .align = Align::kRight,
            .column = column,
            .stretch = Stretch::kShift};
}

ControlLayout RuleAbove(std::string_view name, Twips left) {
    return {.name = name,
            .kind = ControlKind::kLine,
            .box = {left, 0, kAmountWidth, kThin},
            .style = kTotalLine,
            .stretch = Stretch::kShift};
}

SectionLayout CurrencyHeader() {
    return {.name = "ghCurrency",
            .kind = SectionKind::kGroupHeader,
            .height = kGroupHeight,
            .group_field = "ExCurrencyId",
            .repeat = true,
            .controls = {{.name = "txtCurrency",
                          .box = {0, 70, kNameLeft - 60, kLine},
                          .style = kBodyBold,
                          .data_field = "CurrencyCode",
                          .column = "currency"},
                         {.name = "txtCurrencyName",
                          .box = {kNameLeft, 70, 10'800 - kNameLeft, kLine},
                          .style = kBodyBold,
                          .data_field = "Descr",
                          .stretch = Stretch::kWiden}}};
}

SectionLayout AccountFooter() {
    return {.name = "gfAccountType",
            .kind = SectionKind::kGroupFooter,
            .height = kDetailHeight,
            .controls = {{.name = "txtAccount",
                          .box = {kAccountLeft, 0, kAccountWidth, kLine},
                          .style = kBody,
                          .column = "account",
                          .can_grow = true,
                          .stretch = Stretch::kWiden},
                         Amount("txtForeign", kForeignLeft, 0, kBody, "foreign"),
                         {.name = "txtCode",
                          .box = {kCodeLeft, 0, kCodeWidth, kLine},
                          .style = kQuiet,
                          .data_field = "CurrencyCode",
                          .stretch = Stretch::kShift},
                         Amount("txtBooked", kBookedLeft, 0, kBody, "booked"),
                         Amount("txtRevalued", kRevaluedLeft, 0, kBody, "revalued"),
                         Amount("txtGain", kGainLeft, 0, kBody, "gain")}};
}

SectionLayout CurrencyFooter() {
    return {.name = "gfCurrency",
            .kind = SectionKind::kGroupFooter,
            .height = kGroupHeight,
            .controls = {RuleAbove("linBookedTotal", kBookedLeft),
                         RuleAbove("linRevaluedTotal", kRevaluedLeft),
                         RuleAbove("linGainTotal", kGainLeft),
                         {.name = "txtCurrencyTotal",
                          .box = {kAccountLeft, 25, kAccountWidth, kLine},
                          .style = kBodyBold,
                          .stretch = Stretch::kWiden},
                         Amount("txtBookedTotal", kBookedLeft, 25, kBodyBold),
                         Amount("txtRevaluedTotal", kRevaluedLeft, 25, kBodyBold),
                         Amount("txtGainTotal", kGainLeft, 25, kBodyBold)}};
}

SectionLayout GrandTotal() {
    return {.name = "ReportFooter",
            .kind = SectionKind::kReportFooter,
            .height = kReportFooterHeight,
            .controls = {{.name = "linGrandTotal",
                          .kind = ControlKind::kLine,
                          .box = {0, 90, 10'800, kThick},
                          .style = kTotalLine,
                          .stretch = Stretch::kWiden},
                         {.name = "lblGrandTotal",
                          .kind = ControlKind::kLabel,
                          .box = {0, 170, kForeignLeft - 60, kLine},
                          .style = kHeading,
                          .caption = 30040,
                          .stretch = Stretch::kWiden},
                         {.name = "txtRatesDate",
                          .box = {kForeignLeft, 170, kGainLeft - 60 - kForeignLeft, kLine},
                          .style = kQuiet,
                          .align = Align::kRight,
                          .stretch = Stretch::kShift},
                         Amount("txtGainGrandTotal", kGainLeft, 170, kHeading)}};
}

}  // namespace

const Layout& UnrealizedExchangeLayout() {
    static const Layout layout{
        .name = "dsrUnRealExchProfitloss",
        .sections = {
            {.name = "ReportHeader", .kind = SectionKind::kReportHeader},
            {.name = "PageHeader",
             .kind = SectionKind::kPageHeader,
             .height = 1'260,
             .controls = PageHeaderControlsWithRates(Captions())},
            CurrencyHeader(),
            {.name = "ghAccountType",
             .kind = SectionKind::kGroupHeader,
             .group_field = "InGLAcctId"},
            {.name = "Detail", .kind = SectionKind::kDetail},
            AccountFooter(),
            CurrencyFooter(),
            {.name = "PageFooter", .kind = SectionKind::kPageFooter, .height = kPageFooterHeight},
            GrandTotal(),
        }};
    return layout;
}

}  // namespace varnel::reports
