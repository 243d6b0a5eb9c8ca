#include "reports/exchange/realized_exchange_layout.h"

#include "framework/layout_parts.h"

namespace varnel::reports {

namespace {

using namespace framework;

// From the left: when, who, which invoice, which cheque; then the amount, its two rates and what
// they make of it.
constexpr auto kDate = ColumnPlace::Left(0, 1'000);
constexpr auto kName = ColumnPlace::Left(1'060, 2'440, Stretch::kWiden);
constexpr auto kInvoice = ColumnPlace::Left(3'560, 1'060, Stretch::kShift);
constexpr auto kCheque = ColumnPlace::Left(4'680, 1'140, Stretch::kShift);
constexpr auto kPaid = ColumnPlace::Amount(5'940, 1'240);
constexpr auto kCode = ColumnPlace::Left(7'230, 400, Stretch::kShift);
constexpr auto kInvoiceRate = ColumnPlace::Amount(7'420, 960);
constexpr auto kPaymentRate = ColumnPlace::Amount(8'460, 1'060);
constexpr auto kGain = ColumnPlace::Amount(9'560, 1'240);

std::vector<ControlLayout> Captions() {
    return {ColumnCaption("lblPmtDateCap", kDate, 1912),
            ColumnCaption("lblNameCap", kName, 30048),
            ColumnCaption("lblInvoiIdCap", kInvoice, 30035),
            ColumnCaption("lblChqNoCap", kCheque, 30036),
            ColumnCaption("lblPaidCap", kPaid, 30037),
            ColumnCaption("lblExchangeRateCap", kInvoiceRate, 30049),
            ColumnCaption("lblPmtRateCap", kPaymentRate, 30050),
            ColumnCaption("lblGainCap", kGain, 30033),
            CaptionRule()};
}

SectionLayout CurrencyHeader() {
    auto currency = ColumnText("txtCurrency", kWholeWidth, 100, kHeading);
    currency.box.height = 240;
    return {.name = "ghCurrency",
            .kind = SectionKind::kGroupHeader,
            .height = 340,
            .group_field = "ExCurrencyId",
            .repeat = true,
            .controls = {currency}};
}

SectionLayout TypeHeader() {
    return {.name = "ghCurrPmtType",
            .kind = SectionKind::kGroupHeader,
            .height = kGroupHeight,
            .group_field = "CurrPmtType",
            .repeat = true,
            .controls = {Growing(ColumnText("txtAccount", kWholeWidth, 70, kBodyBold, "account"))}};
}

// In the order of the columns of data exports.
SectionLayout Payments() {
    const auto bound = [](std::string_view name, const ColumnPlace& place, const TextStyle& style,
                          std::string_view field, std::string_view column) {
        return Growing(Bound(ColumnText(name, place, 0, style, column), field));
    };
    return {.name = "Detail",
            .kind = SectionKind::kDetail,
            .height = kDetailHeight,
            .controls = {ColumnText("txtPmtDate", kDate, 0, kBody, "date"),
                         bound("txtName", kName, kBody, "Name", "name"),
                         bound("txtInvoiId", kInvoice, kBody, "InvoiId", "invoice"),
                         bound("txtChqNo", kCheque, kBody, "ChqNo", "cheque"),
                         ColumnText("txtExchangeRate", kInvoiceRate, 0, kQuiet, "invoice_rate"),
                         ColumnText("txtPmtRate", kPaymentRate, 0, kQuiet, "payment_rate"),
                         ColumnText("txtPaid", kPaid, 0, kBody, "paid"),
                         bound("txtCurrencyCode", kCode, kQuiet, "CurrencyCode", "currency"),
                         ColumnText("txtGain", kGain, 0, kBody, "gain")}};
}

SectionLayout TypeFooter() {
    constexpr auto kLabel = ColumnPlace::Left(kName.left, kName.width);
    return {.name = "gfCurrPmtType",
            .kind = SectionKind::kGroupFooter,
            .height = kGroupHeight,
            .controls = {ColumnLabel("lblSubtotal", kLabel, 25, kQuiet, 2710),
                         TotalRule("linPaidTotal", kPaid, 0), TotalRule("linGainTotal", kGain, 0),
                         ColumnText("txtPaidTotal", kPaid, 25, kBodyBold),
                         ColumnText("txtGainTotal", kGain, 25, kBodyBold)}};
}

SectionLayout GrandTotal() {
    constexpr auto kLabel = ColumnPlace::Left(0, 1'800);
    return {.name = "ReportFooter",
            .kind = SectionKind::kReportFooter,
            .height = kReportFooterHeight,
            .controls = {TotalRule("linGrandTotal", kWholeWidth, 90, kThick),
                         ColumnLabel("lblGrandTotal", kLabel, 170, kHeading, 1641),
                         ColumnText("txtGainGrandTotal", kGain, 170, kHeading)}};
}

}  // namespace

const Layout& RealizedExchangeLayout() {
    static const Layout layout{.name = "dsrRealizedExchProfitloss",
                               .sections = {
                                   {.name = "ReportHeader", .kind = SectionKind::kReportHeader},
                                   PageHeader(PageHeaderControls(Captions())),
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
