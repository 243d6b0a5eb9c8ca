#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/control_accounts.h"
#include "reports/statements/balance_sheet_ajust.h"
#include "reports/statements/statement_report.h"

namespace varnel::reports {

/// Balance sheet: assets, liabilities and equity at the closing date, with the subtotals that the
/// chart places, a total of each section and the total of liabilities and equity. Revalued, what
/// receivables and payables gain is carried to equity. Under a segment filter the adjusted balance
/// sheet follows.
class dsrBalanceSheet : public StatementReport {
  public:
    dsrBalanceSheet();

    std::string IExcelAddInExport_ExcelAddInTemplate() override { return "BalanceSheet"; }
    void ActiveReport_ReportStart() override;
    void ActiveReport_Terminate() override;

  protected:
    /// Printed lines, as a layout names their controls.
    struct Lines {
        StatementLine row, section_total, adjustment, closing;
        StatementLine first_section_rules;  // Under the first section's total.
    };

    /// Its lines come with SetLines, in the constructor. `columns` are those that are read.
    dsrBalanceSheet(const Layout& layout, std::int16_t title_text, std::string_view columns);
    void SetLines(Lines lines);

    Sides AmountsOf(const StatementRow& row) override;
    void LoseAmounts() override;
    bool IsCreditType(std::int32_t account_type) const override;

    /// The closing dates of the amounts, in the order of the columns; none where one could not be
    /// worked out.
    virtual std::vector<std::optional<Date>> ClosingDates();
    virtual void SetColumnCaptions() {}
    /// The lines of each amount.
    const std::vector<std::optional<BalanceScope>>& Scopes() const { return scopes_; }
    virtual dsrBalanceSheetAjust::Layouts AdjustmentStyle() const {
        return dsrBalanceSheetAjust::Layouts::kPlain;
    }

  private:
    std::string BuildStatement();
    /// Puts one side of an account's amounts, and what it gained in them; nothing where the date is
    /// not known.
    void PutAmount(std::size_t side, std::int32_t account_id, Sides& amounts, Sides& gains);
    Currency ExchangeAdjustment(std::int32_t account_id, const BalanceScope& scope,
                                Currency booked);
    void CloseSection(const Sides& total);
    std::string GetInverseSegmentFilter() const;
    framework::KnownSum OtherSegments(const std::optional<BalanceScope>& scope);
    void InitBalanceSheetAjust();

    void ReportHeader_Format();
    void ghAcctType_Format();
    void GroupFooter1_Format();
    void gfAcctType_Format();
    void ReportFooter_Format();

    std::string_view selected_columns_;
    std::vector<std::optional<BalanceScope>> scopes_;  // One an amount.
    Column currency_id_;
    std::optional<ControlAccounts> control_accounts_;
    std::int32_t home_currency_id_ = 0;
    Sides adjustment_;  // What control accounts have gained so far.
    Sides difference_;  // The first section less the others.
    Sides liabilities_and_equity_;
    bool out_of_balance_ = false;

    Lines lines_;
    Section& GroupFooter1 = SectionAt("GroupFooter1");
    Control& lblAcctType = At("lblAcctType");
    Control& lblTypeCap = At("lblTypeCap");
    Control& lblGTot = At("lblGTot");
};

}  // namespace varnel::reports
