#pragma once

#include <optional>
#include <string>

#include "framework/debit_credit.h"
#include "framework/gl_config.h"
#include "reports/trial/account_report.h"
#include "reports/trial/balance_controls.h"

namespace varnel::reports {

/// General ledger by account: for every account the balance brought forward, each ledger line of
/// the period with a running balance, and a subtotal. What is brought forward and the lines make
/// the balance of the trial balance.
///
/// Criteria of the user's choose accounts, not lines, whose sums would not be balances.
class dsrGeneralLedgerByAccount final : public AccountReport, public IReportConfig {
  public:
    dsrGeneralLedgerByAccount();

    void IReportConfig_ShowConfigurationScreen() override;
    void ActiveReport_ReportStart() override;

  private:
    struct LineColumns {
        Column id, number, date, amount, foreign, currency_id, source, source_key, reference,
            description, remarks, group_type;
        void Resolve(const Columns& columns);
    };
    struct AccountState {
        std::string key;
        framework::KnownSum forward;
        framework::DebitCredit totals;
        framework::KnownSum balance;  // The running one.
        bool left_out = false;
    };

    std::string BuildStatement();
    void PlaceColumns();
    void ShowFooter(std::optional<Date> adjustments_from);
    bool IsLine() const { return !CurrentRow().IsNull(columns_.id); }
    void BringForward();
    bool IsLeftOut();
    Currency AddLine();
    void ShowTexts();
    void ShowRemarks();
    void ShowForeignAmount();
    void ShowBalance(const BalanceControls& controls, const framework::KnownSum& balance) {
        controls.Show(App().GetFormats(), balance, text_);
    }

    void PageHeader_Format();
    void ghAccount_Format();
    void ghForward_Format();
    void Detail_Format();
    void gfAccount_Format();
    void ReportFooter_Format();

    LineColumns columns_;
    framework::LedgerOptions options_;
    AccountState current_;
    framework::DebitCredit totals_;
    framework::KnownSum balance_total_;
    bool foreign_used_ = false;
    std::string text_;  // Scratch for texts built row by row.

    Section& PageHeader = SectionAt("PageHeader");
    Section& ghAccount = SectionAt("ghAccount");
    Section& ghForward = SectionAt("ghForward");
    Section& Detail = SectionAt("Detail");
    Section& gfAccount = SectionAt("gfAccount");
    BalanceControls forward_{At("txtBalanceForward"), At("lblBalanceForwardType")};
    BalanceControls running_{At("txtBalance"), At("lblBalanceType")};
    BalanceControls account_balance_{At("txtBalanceTotal"), At("lblBalanceTotalType")};
    BalanceControls grand_balance_{At("txtBalanceGrandTotal"), At("lblBalanceGrandTotalType")};
    Control& txtGLAcctId = At("txtGLAcctId");
    Control& txtDescr = At("txtDescr");
    Control& txtDetDate = At("txtDetDate");
    Control& txtSeqNo = At("txtSeqNo");
    Control& txtSource = At("txtSource");
    Control& txtDetRef = At("txtDetRef");
    Control& txtDetDesc = At("txtDetDesc");
    Control& txtRemarks = At("txtRemarks");
    Control& txtForeign = At("txtForeign");
    Control& txtCurrencyCode = At("txtCurrencyCode");
    Control& txtDebit = At("txtDebit");
    Control& txtCredit = At("txtCredit");
    Control& txtDebitTotal = At("txtDebitTotal");
    Control& txtCreditTotal = At("txtCreditTotal");
    Control& txtDebitGrandTotal = At("txtDebitGrandTotal");
    Control& txtCreditGrandTotal = At("txtCreditGrandTotal");
};

}  // namespace varnel::reports
