#include "reports/statements/balance_sheet_ajust.h"

#include <algorithm>

#include "framework/texts.h"
#include "reports/statements/balance_columns.h"
#include "reports/statements/balance_sheet_ajust_layout.h"
#include "reports/statements/journal_adjustment.h"

namespace varnel::reports {

using namespace framework;

namespace {

constexpr std::int16_t kCaptionText = 8323;
constexpr std::int16_t kDescriptionText = 8571;
constexpr std::int16_t kTotalText = 8322;
constexpr std::int16_t kLiabilitiesAndEquity = 2672;
/// What the balances of all accounts lead to.
constexpr std::string_view kKey = "-1";
constexpr std::string_view kComparisonKey = "-1|LastYear";

constexpr Twips kColumnLefts[] = {
    comparative_balance_columns::kAmount.left, comparative_balance_columns::kComparison.left,
    comparative_balance_columns::kVariance.left, comparative_balance_columns::kPercent.left};

}  // namespace

dsrBalanceSheetAjust::dsrBalanceSheetAjust() : DesignedReport(BalanceSheetAjustLayout()) {
    Handle("ReportHeader_Format", &dsrBalanceSheetAjust::ReportHeader_Format);
    Handle("Detail_Format", &dsrBalanceSheetAjust::Detail_Format);
    Handle("ReportFooter_Format", &dsrBalanceSheetAjust::ReportFooter_Format);
}

void dsrBalanceSheetAjust::ActiveReport_ReportStart() {
    Guard("ActiveReport_ReportStart", [&] {
        delivered_ = false;
        BindLines();
        const KnownSum& amount = adjustment_[0];
        if (!amount.Known() || amount.IsZero()) return;
        auto entry = std::make_shared<dsrGeneralJournalAdjust>(AppRef());
        entry->AdjustingAmount(amount.Value());
        At("dsrGeneralJournalAdjust").SetSubReport(std::move(entry));
    });
}

void dsrBalanceSheetAjust::BindLines() {
    if (style_ == Layouts::kPlain) {
        row_ = StatementLine({.amounts = {&At("txtTotal")}});
        total_ = StatementLine({.amounts = {&At("txtTypeTotal")}});
        closing_ = StatementLine({.amounts = {&At("txtTotalPassCap")}});
        return;
    }
    row_ = StatementLine({.amounts = {&At("txtTotalAdj"), &At("txtTotalAdjComp")},
                          .variance = &At("txtTotalAdjDiff"),
                          .percent = &At("txtTotalAdjDiffPerc")});
    total_ = StatementLine({.amounts = {&At("txtTypeTotal"), &At("txtTypeTotal2")},
                            .variance = &At("txtTotalDiffDollar"),
                            .percent = &At("lblTotalDiffPercent")});
    closing_ = StatementLine({.amounts = {&At("txtTotalPassCap"), &At("txtTotalPassCapPassed")},
                              .variance = &At("txtTotalPassDiffDollar"),
                              .percent = &At("lblTotalPassDiffPercent")});
}

void dsrBalanceSheetAjust::ActiveReport_FetchData(bool& end_of_data) {
    end_of_data = std::exchange(delivered_, true);
}

void dsrBalanceSheetAjust::SetControlsPosition() {
    Guard("SetControlsPosition", [&] {
        for (auto& section : GetSurface().Sections())
            for (auto& control : section.Controls())
                if (control.Design().kind != ControlKind::kSubReport) Place(control);
    });
}

// A column that the balance sheet does not have is not there.
void dsrBalanceSheetAjust::Place(Control& control) {
    const auto* const found = std::ranges::find(kColumnLefts, control.Design().box.left);
    if (found == std::end(kColumnLefts)) {
        control.SetLeft(description_left_);
        control.SetWidth(description_width_);
        return;
    }
    const auto column = static_cast<std::size_t>(found - std::begin(kColumnLefts));
    control.SetVisible(column < columns_.size());
    if (!control.Visible()) return;
    control.SetLeft(columns_[column].left);
    control.SetWidth(columns_[column].width);
}

void dsrBalanceSheetAjust::ReportHeader_Format() {
    SetControlsPosition();
    At("lblAcctType").Clear();  // The text it was designed with is in one language.
    Mark(), At("lblAcctType").SetText(PlainText(App(), kCaptionText));
}

void dsrBalanceSheetAjust::EmptyControls() {
    for (const auto* name :
         {"txtTotal", "txtTotalAdj", "txtTotalAdjComp", "txtTotalAdjDiff", "txtTotalAdjDiffPerc"})
        At(name).Clear();
}

void dsrBalanceSheetAjust::SegControlsValue() {
    Guard("SegControlsValue", [&] {
        Mark(), row_.Show(App().GetFormats(), adjustment_, text_);
        row_.SetTags(kKey, kComparisonKey);
        Mark(), At("txtDescr").SetText(PlainText(App(), kDescriptionText));
    });
}

void dsrBalanceSheetAjust::Detail_Format() {
    EmptyControls();
    SegControlsValue();
}

void dsrBalanceSheetAjust::ReportFooter_Format() {
    Sides after = before_;
    after.Add(adjustment_);
    auto& formats = (Mark(), App().GetFormats());
    Mark(), At("lblTypeCap").SetText(PlainText(App(), kTotalText));
    Mark(), total_.Show(formats, adjustment_, text_);
    Mark(), At("lblGTot").SetText(PlainText(App(), kLiabilitiesAndEquity));
    Mark(), closing_.Show(formats, after, text_);
}

}  // namespace varnel::reports
