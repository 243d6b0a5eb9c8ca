#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "framework/custom_criteria.h"
#include "framework/known_sum.h"
#include "framework/report_base.h"

namespace varnel::reports {

/// What a reconciliation comes to, in the currency of its account.
struct ReconciliationFigures {
    Currency ending_balance;  // Of the bank's statement.
    Currency outstanding_deposits;
    Currency outstanding_withdrawals;  // Positive.
    Currency ledger_balance;           // At the statement's date.
    Currency difference;               // Not explained.
};

/// What the two bank reconciliations share: what the host sets, the groups of reconciled and
/// outstanding items, their totals and the six amounts at the end. A report says where its items
/// come from.
///
/// Late-bound it has the properties `ExConcilAcctId` (internal id of the account), `ConcilAcctId`
/// (its number, printed), `ConcDate` (date of the statement), `EndBalAmnt`, `DepAmntCirc`,
/// `ChqAmntCirc`, `GLBalAmnt` and `DifAmnt`. The custom filter is stored and makes no difference: a
/// filtered list would contradict the totals.
class ReconciliationReport : public framework::ReportBase,
                             public framework::FilterableReport,
                             public IReportConfig {
  public:
    struct Subject {
        std::int32_t account_id = 0;
        std::string account_number;
        Date statement_date;
    };
    Subject& GetSubject() { return subject_; }
    ReconciliationFigures& GetFigures() { return figures_; }

    /// Whether reconciled items are listed too.
    void IReportConfig_ShowConfigurationScreen() override;

  protected:
    ReconciliationReport(const Layout& layout, std::int16_t title_text);

    /// Columns of an item, found once a run.
    struct ItemColumns {
        Column date, reference, description, amount, foreign, source, source_key;
        void Resolve(const Columns& columns);
    };

    bool IncludesReconciled() const { return include_reconciled_; }
    /// Before the run has its rows: in which currency they are is not known, nor any total.
    void ForgetItems();
    /// When an item cannot be told to belong to the group.
    void LoseTotal() { group_total_.Lose(); }
    /// Reads the account's currency and begins the group total.
    void StartItems();
    /// Whether items are in a currency of the account's own, and so by their foreign amounts.
    bool IsForeign(std::int32_t currency_id);
    /// The field that groups; in the rows or a field of the report.
    void GroupBy(Column transaction_type) { transaction_type_ = transaction_type; }
    void ShowItem(const Row& item, const ItemColumns& columns);

    void PageHeader_Format();
    void ghTransactionType_Format();
    void gfTransactionType_Format();
    void ReportFooter_Format();

  private:
    Currency ReadAmount(const Row& item, const ItemColumns& columns);
    void PutInAccountCurrency(Control& control, Currency amount);

    Subject subject_;
    ReconciliationFigures figures_;
    bool include_reconciled_ = false;
    std::optional<std::int32_t> currency_id_;  // Nothing in a run that could not begin.
    bool foreign_ = false;
    framework::KnownSum group_total_;
    Column transaction_type_;
    std::string text_;  // Scratch for texts built row by row.

    Control& txtDetDate = At("txtDetDate");
    Control& txtDetRef = At("txtDetRef");
    Control& txtDetDesc = At("txtDetDesc");
    Control& txtAmount = At("txtAmount");
    Control& lblTransactionType = At("lblTransactionType");
    Control& txtGroupTotal = At("txtGroupTotal");
};

}  // namespace varnel::reports
