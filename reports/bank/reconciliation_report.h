#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "framework/custom_criteria.h"
#include "framework/known_sum.h"
#include "framework/report_base.h"

namespace varnel::reports {

/// What a reconciliation comes to, in the currency of its account; nothing for a figure that could
/// not be worked out.
struct ReconciliationFigures {
    using Figure = std::optional<Currency>;
    Figure ending_balance;  // Of the bank's statement.
    Figure outstanding_deposits;
    Figure outstanding_withdrawals;  // Positive.
    Figure ledger_balance;           // At the statement's date.
    Figure difference;               // Not explained.
};

/// What the two bank reconciliations share: what the host sets, the groups of reconciled and
/// outstanding items, their totals and the six amounts at the end. A report says where its items
/// come from.
///
/// Late-bound it has the properties `ExConcilAcctId` (internal id of the account), `ConcilAcctId`
/// (its number, printed), `ConcDate` (date of the statement), `EndBalAmnt`, `DepAmntCirc`,
/// `ChqAmntCirc`, `GLBalAmnt` and `DifAmnt`, null when unknown. The custom filter is stored and
/// makes no difference: a filtered list would contradict the totals.
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

    /// Takes the items and begins the group total. Without the account's currency or the items the
    /// run has no rows and no amounts.
    void ActiveReport_ReportStart() final;
    /// Whether reconciled items are listed too.
    void IReportConfig_ShowConfigurationScreen() override;

  protected:
    ReconciliationReport(const Layout& layout, std::int16_t title_text);

    /// The rows of a run; null when the report feeds them through its fields.
    virtual std::shared_ptr<Recordset> OpenItems() = 0;

    bool IncludesReconciled() const { return include_reconciled_; }
    /// Whether the run has its items.
    bool HasBegun() const { return currency_id_.has_value(); }
    /// Whether items are in a currency of the account's own, and so by their foreign amounts.
    bool IsForeign(std::int32_t currency_id);

    void Detail_Format();
    void PageHeader_Format();
    void ghTransactionType_Format();
    void gfTransactionType_Format();
    void ReportFooter_Format();

  private:
    /// Columns of an item, found once a run.
    struct ItemColumns {
        Column date, reference, description, amount, foreign, source, source_key, type;
        void Resolve(const Columns& columns);
    };

    Currency ReadAmount(const Row& item);
    void PutText(Control& control, const Row& item, Column column);
    void PutInAccountCurrency(Control& control, Currency amount);
    std::string CurrencyCode(std::int32_t currency_id);

    Subject subject_;
    ReconciliationFigures figures_{Currency(), Currency(), Currency(), Currency(), Currency()};
    bool include_reconciled_ = false;
    std::optional<std::int32_t> currency_id_;  // Nothing in a run that could not begin.
    bool foreign_ = false;
    std::string currency_code_;  // Empty where the company has one currency alone.
    framework::KnownSum group_total_;
    ItemColumns columns_;
    std::string text_;  // Scratch for texts built row by row.

    Control& txtDetDate = At("txtDetDate");
    Control& txtDetRef = At("txtDetRef");
    Control& txtDetDesc = At("txtDetDesc");
    Control& txtAmount = At("txtAmount");
    Control& lblTransactionType = At("lblTransactionType");
    Control& txtGroupTotal = At("txtGroupTotal");
};

}  // namespace varnel::reports
