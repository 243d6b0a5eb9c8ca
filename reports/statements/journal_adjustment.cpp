#include "reports/statements/journal_adjustment.h"

#include <utility>

#include "framework/cell_values.h"
#include "framework/layout_parts.h"
#include "framework/texts.h"

namespace varnel::reports {

using namespace framework;

namespace {

constexpr std::int16_t kTitleText = 8323;
constexpr std::int16_t kDescription = 8571;
constexpr std::int16_t kGrandTotal = 1641;

constexpr auto kName = ColumnPlace::Left(0, 7'500, Stretch::kWiden);
constexpr auto kDebit = ColumnPlace::Amount(7'560, 1'590);
constexpr auto kCredit = ColumnPlace::Amount(9'210, 1'590);
constexpr Twips kTitleTop = 240;
constexpr Twips kHeaderHeight = kTitleTop + 260;

ControlLayout Title() {
    auto title = ColumnText("lblTitle", kName, kTitleTop, kBodyBold);
    title.kind = ControlKind::kLabel;
    return title;
}

const Layout& AdjustmentLayout() {
    static const Layout layout{
        .name = "dsrGeneralJournalAdjust",
        .sections = {
            {.name = "PageHeader",
             .kind = SectionKind::kPageHeader,
             .height = kHeaderHeight,
             .controls = {Title(), ColumnLabel("lblDebit", kDebit, kTitleTop, kCaption, 2656),
                          ColumnLabel("lblCredit", kCredit, kTitleTop, kCaption, 2657)}},
            {.name = "Detail",
             .kind = SectionKind::kDetail,
             .height = kDetailHeight,
             .controls = {Bound(ColumnText("txtAccountDescr", kName, 0, kBody), "AccountDescr"),
                          Bound(ColumnText("txtDebit", kDebit, 0, kBody), "Debit"),
                          Bound(ColumnText("txtCredit", kCredit, 0, kBody), "Credit")}},
            {.name = "ReportFooter",
             .kind = SectionKind::kReportFooter,
             .height = kGroupHeight,
             .controls = {TotalRule("linDebitTotal", kDebit, 0),
                          TotalRule("linCreditTotal", kCredit, 0),
                          ColumnText("lblTotal", kName, 25, kBodyBold),
                          ColumnText("txtDebitTotal", kDebit, 25, kBodyBold),
                          ColumnText("txtCreditTotal", kCredit, 25, kBodyBold)}}}};
    return layout;
}

}  // namespace

dsrGeneralJournalAdjust::dsrGeneralJournalAdjust(std::shared_ptr<Application> application)
    : DesignedReport(AdjustmentLayout()) {
    SetApplication(std::move(application));
    Handle("PageHeader_Format", &dsrGeneralJournalAdjust::PageHeader_Format);
    Handle("ReportFooter_Format", &dsrGeneralJournalAdjust::ReportFooter_Format);
}

// Fields stay over later runs.
void dsrGeneralJournalAdjust::ActiveReport_DataInitialize() {
    Guard("ActiveReport_DataInitialize", [&] {
        if (fields_created_) return;
        debit_ = Data().AddField("Debit");
        credit_ = Data().AddField("Credit");
        description_ = Data().AddField("AccountDescr");
        fields_created_ = true;
    });
}

// The row is there even when its texts could not be worked out.
void dsrGeneralJournalAdjust::ActiveReport_FetchData(bool& end_of_data) {
    Guard("ActiveReport_FetchData", [&] {
        end_of_data = std::exchange(delivered_, !delivered_);
        if (!end_of_data) SegControlsValue(true);
    });
}

void dsrGeneralJournalAdjust::SegControlsValue(bool into_fields) {
    Guard("SegControlsValue", [&] {
        if (amount_.IsZero()) return;
        const bool is_debit = amount_ < Currency();
        auto& info = (Mark(), App().CurrentContext().CurrentCompany().GetCurrencyInfo());
        const std::int32_t home = (Mark(), info.CieHomeCurrencyId());
        if (into_fields) {
            text_.clear();
            Mark(), info.FormatWorldCurrency(amount_.Abs(), home, text_);
            Data().SetField(is_debit ? debit_ : credit_, text_);
            Mark(), Data().SetField(description_, PlainText(App(), kDescription));
        } else {
            Control& side = is_debit ? txtDebitTotal : txtCreditTotal;
            Mark(), PutAmountIn(info, side, amount_.Abs(), home, text_);
        }
    });
}

void dsrGeneralJournalAdjust::EmptyControls() {
    txtDebitTotal.Clear();
    txtCreditTotal.Clear();
}

void dsrGeneralJournalAdjust::PageHeader_Format() {
    Mark(), At("lblTitle").SetText(PlainText(App(), kTitleText));
}

void dsrGeneralJournalAdjust::ReportFooter_Format() {
    EmptyControls();
    At("lblTotal").Clear();
    if (amount_.IsZero()) return;
    Mark(), At("lblTotal").SetText(PlainText(App(), kGrandTotal));
    SegControlsValue(false);
}

}  // namespace varnel::reports
