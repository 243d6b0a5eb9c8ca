#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "framework/designed_report.h"
#include "reports/statements/statement_line.h"

namespace varnel::reports {

/// Adjusted balance sheet: what a balance sheet under a segment filter prints after its closing
/// line, so that it reconciles. One line with the transactions of all other segments, and
/// liabilities and equity with it. Given a difference, the journal line that it is comes below.
///
/// The balance sheet makes it and sets what it prints; amounts are credit positive, the
/// comparison's is of the comparative style alone.
class dsrBalanceSheetAjust final : public framework::DesignedReport {
  public:
    enum class Layouts : std::uint8_t { kPlain, kComparative };

    dsrBalanceSheetAjust();

    void Application(std::shared_ptr<varnel::Application> application) {
        SetApplication(std::move(application));
    }
    /// Where the columns of the balance sheet stand: its description, and its amounts in order.
    void DescrLeft(Twips left) { description_left_ = left; }
    void DescrWidth(Twips width) { description_width_ = width; }
    void AmountColumns(std::vector<Box> columns) { columns_ = std::move(columns); }
    void AdjustingAmount(const framework::KnownSum& amount) { adjustment_.Put(0, amount); }
    void AdjustingAmountComp(const framework::KnownSum& amount) { adjustment_.Put(1, amount); }
    void Style(Layouts style) { style_ = style; }
    /// Liabilities and equity of the balance sheet, before the adjustment.
    void LiabilitiesAndEquity(const Sides& totals) { before_ = totals; }

    void ActiveReport_ReportStart() override;
    void ActiveReport_FetchData(bool& end_of_data) override;

  private:
    void BindLines();
    void SegControlsValue();
    void EmptyControls();
    void SetControlsPosition();
    void Place(Control& control);

    void ReportHeader_Format();
    void Detail_Format();
    void ReportFooter_Format();

    Twips description_left_ = 0;
    Twips description_width_ = 0;
    std::vector<Box> columns_;
    Layouts style_ = Layouts::kPlain;
    Sides before_;
    bool delivered_ = false;
    Sides adjustment_;
    StatementLine row_, total_, closing_;
    std::string text_;
};

}  // namespace varnel::reports
