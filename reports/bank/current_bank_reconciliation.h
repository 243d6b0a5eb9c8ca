#pragma once

#include <array>
#include <memory>

#include "framework/record_copy.h"
#include "reports/bank/reconciliation_report.h"

namespace varnel::reports {

/// Current bank reconciliation: the one that the user is working on in the host's screen, from the
/// screen's own rows. It reads no database.
///
/// Late-bound it has, besides the properties that both reconciliations have, `ConcilDataSet` (set
/// only): a `Recordset` with at least the columns `DetDate`, `DetRef`, `DetDesc`, `Conciliated`,
/// `DetAmnt`, `ForeignAmnt`, `Source` and `ExSrcKeyVal`. The report takes a copy of its own; the
/// host's stands on its first row afterwards. An empty reference takes the copy away, and so do
/// rows that lack a column, which is told at once.
class dsrCurrentBankReconciliation final : public ReconciliationReport {
  public:
    dsrCurrentBankReconciliation();

    void ConcilDataSet(const std::shared_ptr<Recordset>& rows);

    void ActiveReport_FetchData(bool& end_of_data) override;

  protected:
    std::shared_ptr<Recordset> OpenItems() override;

  private:
    void FillFields(const Row& item);

    void Detail_Format();

    std::shared_ptr<framework::RecordCopy> items_;  // Null without a data set.
    std::array<Column, 7> columns_;                 // Of it, that are shown.
    std::array<Column, 7> fields_;                  // Of the report, one for each of those.
    Column amount_, reconciled_;
    Column type_;  // The field that groups.
};

}  // namespace varnel::reports
