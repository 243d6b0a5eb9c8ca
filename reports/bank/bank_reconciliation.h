#pragma once

#include "reports/bank/reconciliation_query.h"
#include "reports/bank/reconciliation_report.h"

namespace varnel::reports {

/// Bank reconciliation from the ledger: the one in progress, whose amounts the host sets, or a
/// saved one reproduced.
///
/// Late-bound it has, besides the properties that both reconciliations have,
/// `ExBankConcilHistoryId` (a saved reconciliation; below 1 is the one in progress) and the method
/// `RefreshTotalsWithBankConcilHistory`.
class dsrBankReconciliation final : public ReconciliationReport {
  public:
    dsrBankReconciliation();

    std::int32_t ExBankConcilHistoryId() const { return history_id_; }
    void ExBankConcilHistoryId(std::int32_t id) { history_id_ = id; }
    /// Works the five amounts out from the ledger, as they were at the statement's date: call it
    /// before the run, once account and reconciliation are set. When it fails all five are unknown,
    /// and print blank, until the host sets them or a refresh succeeds.
    void RefreshTotalsWithBankConcilHistory();

  protected:
    std::shared_ptr<Recordset> OpenItems() override;

  private:
    /// The saved reconciliation's date, the zero date when there is no such record.
    Date EffectiveDate();
    ReconciliationScope Scope();
    Currency SumOf(const ParameterQuery& query);

    std::int32_t history_id_ = 0;
};

}  // namespace varnel::reports
