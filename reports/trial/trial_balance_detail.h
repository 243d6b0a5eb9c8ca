#pragma once

#include <optional>
#include <string>

#include "framework/comparable_report.h"
#include "framework/debit_credit.h"
#include "reports/trial/account_lines.h"
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
    struct AccountState {
        TrialAccount account;
        std::string key;
    };
    /// What an account begins with.
    struct Forward {
        Currency balance;
        Currency unrealized;
    };
    std::string BuildStatement();
    bool ResolvesAccounts() const;
    std::string AccountList();
    Currency GetAccountBalanceForSpecialAccounts(const TrialAccount& account);
    Forward BringForward();
    void ShowUnrealized(Currency unrealized);
    void ShowAccountKey();
    bool IsLine() const { return lines_.IsLine(CurrentRow()); }
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

    AccountLines lines_{GetSurface(), "txtCurrency", "lblCurrencyCap"};
    AccountSums sums_;
    Selection selection_;
    AccountState current_;
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
    BalanceControls adjustment_{At("txtBalanceAdj"), At("lblBalanceTypeAdj")};
    BalanceControls adjustment_total_{At("txtBalanceTotalAdj"), At("lblBalanceTotalTypeAdj")};
    Control& txtGLAcctId = At("txtGLAcctId");
    Control& txtDescr = At("txtDescr");
    Control& lblGPUnrealized = At("lblGPUnrealized");
    Control& txtSource = At("txtSource");
    Control& txtDetDesc = At("txtDetDesc");
};

}  // namespace varnel::reports
