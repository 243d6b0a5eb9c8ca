#include "reports/exchange/realized_exchange_layout.h"

#include "framework/standard_header.h"
#include "framework/styles.h"

namespace varnel::reports {

namespace {

using namespace framework;

// From the left: when, who, which invoice, which cheque; then the amount, its two rates and what
// they make of it.
constexpr Twips kDateWidth = 1'000;
constexpr Twips kNameLeft = 1'060;
constexpr Twips kNameWidth = 2'440;
constexpr Twips kInvoiceLeft = 3'560;
constexpr Twips kInvoiceWidth = 1'060;
constexpr Twips kChequeLeft = 4'680;
constexpr Twips kChequeWidth = 1'140;
constexpr Twips kPaidLeft = 5'940;
constexpr Twips kCodeLeft = 7'230;
constexpr Twips kCodeWidth = 400;
constexpr Twips kInvoiceRateLeft = 7'420;
constexpr Twips kPaymentRateLeft = 8'460;
constexpr Twips kInvoiceRateWidth = 960;
constexpr Twips kPaymentRateWidth = 1'060;
constexpr Twips kGainLeft = 9'560;
constexpr Twips kAmountWidth = 1'240;
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
    const auto left = [&](std::string_view name, Twips at, Twips width, std::int16_t text) {
        return caption(name, at, width, text, Align::kLeft, Stretch::kShift);
    };
    const auto right = [&](std::string_view name, Twips at, Twips width, std::int16_t text) {
        return caption(name, at, width, text, Align::kRight, Stretch::kShift);
    };
    return {caption("lblPmtDateCap", 0, kDateWidth, 1912, Align::kLeft, Stretch::kNone),
            caption("lblNameCap", kNameLeft, kNameWidth, 30048, Align::kLeft, Stretch::kWiden),
            left("lblInvoiIdCap", kInvoiceLeft, kInvoiceWidth, 30035),
            left("lblChqNoCap", kChequeLeft, kChequeWidth, 30036),
            right("lblPaidCap", kPaidLeft, kAmountWidth, 30037),
            right("lblExchangeRateCap", kInvoiceRateLeft, kInvoiceRateWidth, 30049),
            right("lblPmtRateCap", kPaymentRateLeft, kPaymentRateWidth, 30050),
            right("lblGainCap", kGainLeft, kAmountWidth, 30033),
            {.name = kCaptionRule,
             .kind = ControlKind::kLine,
             .box = {0, 1'250, 10'800, kThin},
             .style = kHairline,
             .stretch = Stretch::kWiden}};
}

ControlLayout Figure(std::string_view name, Twips left, Twips width, Twips top, TextStyle style,
                     std::string_view column = {}) {
    return {.name = name,
            .box = {left, top, width, kLine},
            .style = style,
            .align = Align::kRight,
            .column = column,
            .stretch = Stretch::kShift};
}

ControlLayout BoundText(std::string_view name, const Box& box, TextStyle style,
                        std::string_view field, std::string_view column, Stretch stretch) {
    return {.name = name,
            .box = box,
            .style = style,
            .data_field = field,
            .column = column,
            .can_grow = true,
            .stretch = stretch};
}

SectionLayout CurrencyHeader() {
    return {.name = "ghCurrency",
            .kind = SectionKind::kGroupHeader,
            .height = 340,
            .group_field = "ExCurrencyId",
            .repeat = true,
            .controls = {{.name = "txtCurrency",
                          .box = {0, 100, 10'800, 240},
                          .style = kHeading,
                          .stretch = Stretch::kWiden}}};
}

SectionLayout TypeHeader() {
    return {.name = "ghCurrPmtType",
            .kind = SectionKind::kGroupHeader,
            .height = kGroupHeight,
            .group_field = "CurrPmtType",
            .repeat = true,
            .controls = {{.name = "txtAccount",
                          .box = {0, 70, 10'800, kLine},
                          .style = kBodyBold,
                          .column = "account",
                          .can_grow = true,
                          .stretch = Stretch::kWiden}}};
}

// In the order of the columns of data exports.
SectionLayout Payments() {
    return {.name = "Detail",
            .kind = SectionKind::kDetail,
            .height = kDetailHeight,
            .controls = {{.name = "txtPmtDate",
                          .box = {0, 0, kDateWidth, kLine},
                          .style = kBody,
                          .column = "date"},
                         BoundText("txtName", {kNameLeft, 0, kNameWidth, kLine}, kBody, "Name",
                                   "name", Stretch::kWiden),
                         BoundText("txtInvoiId", {kInvoiceLeft, 0, kInvoiceWidth, kLine}, kBody,
                                   "InvoiId", "invoice", Stretch::kShift),
                         BoundText("txtChqNo", {kChequeLeft, 0, kChequeWidth, kLine}, kBody,
                                   "ChqNo", "cheque", Stretch::kShift),
                         Figure("txtExchangeRate", kInvoiceRateLeft, kInvoiceRateWidth, 0, kQuiet,
                                "invoice_rate"),
                         Figure("txtPmtRate", kPaymentRateLeft, kPaymentRateWidth, 0, kQuiet,
                                "payment_rate"),
                         Figure("txtPaid", kPaidLeft, kAmountWidth, 0, kBody, "paid"),
                         BoundText("txtCurrencyCode", {kCodeLeft, 0, kCodeWidth, kLine}, kQuiet,
                                   "CurrencyCode", "currency", Stretch::kShift),
                         Figure("txtGain", kGainLeft, kAmountWidth, 0, kBody, "gain")}};
}

SectionLayout TypeFooter() {
    const auto rule = [](std::string_view name, Twips left) {
        return ControlLayout{.name = name,
                             .kind = ControlKind::kLine,
                             .box = {left, 0, kAmountWidth, kThin},
                             .style = kTotalLine,
                             .stretch = Stretch::kShift};
    };
    return {.name = "gfCurrPmtType",
            .kind = SectionKind::kGroupFooter,
            .height = kGroupHeight,
            .controls = {{.name = "lblSubtotal",
                          .kind = ControlKind::kLabel,
                          .box = {kNameLeft, 25, kNameWidth, kLine},
                          .style = kQuiet,
                          .caption = 2710},
                         rule("linPaidTotal", kPaidLeft),
                         rule("linGainTotal", kGainLeft),
                         Figure("txtPaidTotal", kPaidLeft, kAmountWidth, 25, kBodyBold),
                         Figure("txtGainTotal", kGainLeft, kAmountWidth, 25, kBodyBold)}};
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
                          .box = {0, 170, 1'800, kLine},
                          .style = kHeading,
                          .caption = 1641},
                         Figure("txtGainGrandTotal", kGainLeft, kAmountWidth, 170, kHeading)}};
}

}  // namespace

const Layout& RealizedExchangeLayout() {
    static const Layout layout{.name = "dsrRealizedExchProfitloss",
                               .sections = {
                                   {.name = "ReportHeader", .kind = SectionKind::kReportHeader},
                                   {.name = "PageHeader",
                                    .kind = SectionKind::kPageHeader,
                                    .height = 1'260,
                                    .controls = PageHeaderControls(Captions())},
                                   CurrencyHeader(),
                                   TypeHeader(),
                                   Payments(),
                                   TypeFooter(),
                                   {.name = "gfCurrency", .kind = SectionKind::kGroupFooter},
                                   GrandTotal(),
                               }};
    return layout;
}

}  // namespace varnel::reports
