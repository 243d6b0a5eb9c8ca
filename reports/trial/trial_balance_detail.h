#pragma once

#include <optional>
#include <string>

#include "framework/comparable_report.h"
#include "framework/debit_credit.h"
#include "reports/trial/balance_controls.h"
#include "reports/trial/trial_report.h"

namespace varnel::reports {

/// Trial balance detail: for every account the balance brought forward, the ledger lines of the
/// period with a running balance, and a subtotal.
///
/// Late-bound it has the properties `HideInactiveAccounts`, `ProjIds` (comma-separated project
/// ids), `AccountIds` (comma-separated internal account ids) and `SingleAcctId`; empty and 0 take
/// all.
class dsrTrialBalanceDetail final : public TrialReport,
                                    public framework::ComparableReport,
                                    public IReportConfig {
  public:
    dsrTrialBalanceDetail();

    void IReportConfig_ShowConfigurationScreen() override;
    void ActiveReport_ReportStart() override;

    /// What the host sets before the run.
    struct Selection {
        bool hide_inactive = false;
        std::string project_ids = {};
        std::string account_ids = {};
        std::int32_t single_account = 0;
    };
    Selection& GetSelection() { return selection_; }

  private:
    struct LineColumns {
        Column id, number, date, amount, foreign, currency_id, source, source_key;
        void Resolve(const Columns& columns);
    };
    struct AccountState {
        TrialAccount account;
        std::string key;
        framework::DebitCredit totals;
        framework::KnownSum balance;  // The running one.
    };
    /// What an account begins with.
    struct Forward {
        Currency balance;
        Currency unrealized;
    };
    std::string BuildStatement();
    bool ResolvesAccounts() const;
    std::string AccountList();
    void PlaceColumns();
    Currency GetAccountBalanceForSpecialAccounts(const TrialAccount& account);
    Forward BringForward();
    void AddToBalance(Currency amount);
    void LoseBalance();
    void ShowUnrealized(Currency unrealized);
    void ShowAccountKey();
    bool IsLine() const { return !CurrentRow().IsNull(columns_.id); }
    std::int32_t LineCurrency() const;
    Currency LineAmount(std::int32_t currency_id);
    bool IsInForeignCurrency(std::int32_t currency_id) const;
    const std::string& CurrencyCode(std::int32_t currency_id);
    std::optional<Currency> AddLine();
    void LoseLine();
    void ShowForeignAmount();
    void ShowKey();
    void SetComparableAccoutGroup(const Forward& forward);
    void AddComparableAccoutGroup();
    void AddComparableBalanceForward(const Forward& forward);
    void AddComparableAccountRow(std::optional<Currency> amount);
    void EndComparableAccount();
    void ShowBalance(const BalanceControls& controls, const framework::KnownSum& balance);
    void SetAdjControlsPosition(bool visible);
    void SetAdjControlsValue();

    void PageHeader_Format();
    void ghAccount_Format();
    void Detail_Format();
    void gfAccount_Format();
    void ReportFooter_Format();

    LineColumns columns_;
    Selection selection_;
    AccountState current_;
    framework::DebitCredit totals_;
    framework::KnownSum balance_total_;
    bool include_zero_balances_ = false;
    bool foreign_used_ = false;
    std::string text_;  // Scratch for texts built row by row.

    Section& PageHeader = SectionAt("PageHeader");
    Section& ghAccount = SectionAt("ghAccount");
    Section& Detail = SectionAt("Detail");
    Section& gfAccount = SectionAt("gfAccount");
    Section& ReportFooter = SectionAt("ReportFooter");
    BalanceControls forward_{At("txtBalanceForward"), At("lblBalanceForwardType")};
    BalanceControls unrealized_{At("txtGPUnrealized"), At("lblGPUnrealizedType")};
    BalanceControls running_{At("txtBalance"), At("lblBalanceType")};
    BalanceControls account_balance_{At("txtBalanceTotal"), At("lblBalanceTotalType")};
    BalanceControls adjustment_{At("txtBalanceAdj"), At("lblBalanceTypeAdj")};
    BalanceControls adjustment_total_{At("txtBalanceTotalAdj"), At("lblBalanceTotalTypeAdj")};
    BalanceControls grand_balance_{At("txtBalanceGrandTotal"), At("lblBalanceGrandTotalType")};
    Control& txtGLAcctId = At("txtGLAcctId");
    Control& txtDescr = At("txtDescr");
    Control& lblGPUnrealized = At("lblGPUnrealized");
    Control& txtSeqNo = At("txtSeqNo");
    Control& txtSource = At("txtSource");
    Control& txtDetDate = At("txtDetDate");
    Control& txtDetDesc = At("txtDetDesc");
    Control& txtCurrency = At("txtCurrency");
    Control& txtCurrencyCode = At("txtCurrencyCode");
    Control& txtDebit = At("txtDebit");
    Control& txtCredit = At("txtCredit");
    Control& txtDebitTotal = At("txtDebitTotal");
    Control& txtCreditTotal = At("txtCreditTotal");
    Control& txtDebitGrandTotal = At("txtDebitGrandTotal");
    Control& txtCreditGrandTotal = At("txtCreditGrandTotal");
};

}  // namespace varnel::reports
