#pragma once

#include <optional>
#include <string>

#include "framework/gl_config.h"
#include "reports/trial/account_lines.h"
#include "reports/trial/account_report.h"

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
    struct AccountState {
        std::string key;
        framework::KnownSum forward;
        bool left_out = false;
    };

    std::string BuildStatement();
    void ShowFooter(std::optional<Date> adjustments_from);
    bool IsLine() const { return lines_.IsLine(CurrentRow()); }
    void BringForward();
    bool IsLeftOut();
    Currency AddLine();
    void ShowKey();
    void ShowRemarks();
    void ShowForeignAmount();

    void PageHeader_Format();
    void ghAccount_Format();
    void ghForward_Format();
    void Detail_Format();
    void gfAccount_Format();
    void ReportFooter_Format();

    AccountLines lines_{GetSurface(), "txtForeign", "lblForeignCap"};
    AccountSums sums_;
    Column group_type_;
    framework::LedgerOptions options_;
    AccountState current_;
    bool foreign_used_ = false;
    std::string text_;  // Scratch for texts built row by row.

    Section& PageHeader = SectionAt("PageHeader");
    Section& ghAccount = SectionAt("ghAccount");
    Section& ghForward = SectionAt("ghForward");
    Section& Detail = SectionAt("Detail");
    Section& gfAccount = SectionAt("gfAccount");
    BalanceControls forward_{At("txtBalanceForward"), At("lblBalanceForwardType")};
    Control& txtGLAcctId = At("txtGLAcctId");
    Control& txtDescr = At("txtDescr");
    Control& txtDetRef = At("txtDetRef");
    Control& txtRemarks = At("txtRemarks");
};

}  // namespace varnel::reports
