#pragma once

#include <optional>
#include <string>

#include "host/control_accounts.h"
#include "reports/statements/statement_report.h"

namespace varnel::reports {

/// Balance sheet: assets, liabilities and equity at the closing date, with the subtotals that the
/// chart places, a total of each section and the total of liabilities and equity. Revalued, what
/// receivables and payables gain is carried to equity.
class dsrBalanceSheet final : public StatementReport {
  public:
    dsrBalanceSheet();

    void ActiveReport_ReportStart() override;
    void ActiveReport_Terminate() override { control_accounts_.reset(); }

  protected:
    Sides AmountsOf(const StatementRow& row) override;
    void AccountCounted() override { adjustment_.Add({account_adjustment_}); }
    bool IsCreditType(std::int32_t account_type) const override;

  private:
    std::string BuildStatement();
    Currency ExchangeAdjustment(std::int32_t account_id, Currency booked);
    void CloseSection(const Sides& total);

    void ReportHeader_Format();
    void ghAcctType_Format();
    void GroupFooter1_Format();
    void gfAcctType_Format();
    void ReportFooter_Format();

    BalanceScope scope_;
    Column currency_id_;
    std::optional<ControlAccounts> control_accounts_;
    std::int32_t home_currency_id_ = 0;
    Currency account_adjustment_;  // What the account gains, if it is a control account.
    Sides adjustment_;             // What those that print have gained so far.
    Sides difference_;             // The first section less the others.
    Sides liabilities_and_equity_;
    bool out_of_balance_ = false;

    StatementLine section_total_;
    StatementLine adjustment_line_;
    StatementLine closing_line_;
    Section& GroupFooter1 = SectionAt("GroupFooter1");
    Control& lblAcctType = At("lblAcctType");
    Control& lblTypeCap = At("lblTypeCap");
    Control& lblGTot = At("lblGTot");
};

}  // namespace varnel::reports
