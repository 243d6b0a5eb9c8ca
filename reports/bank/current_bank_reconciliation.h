#pragma once

#include <memory>

#include "framework/record_stream.h"
#include "reports/bank/reconciliation_report.h"

namespace varnel::reports {

/// Current bank reconciliation: the one that the user is working on in the host's screen, from the
/// screen's own rows. It reads no database.
///
/// Late-bound it has, besides the properties that both reconciliations have, `ConcilDataSet` (set
/// only): a `Recordset` with at least the columns `DetDate`, `DetRef`, `DetDesc`, `Conciliated`,
/// `DetAmnt`, `ForeignAmnt`, `Source` and `ExSrcKeyVal`. The report takes a copy of its own; the
/// host's stands on its first row afterwards. An empty reference takes the copy away.
class dsrCurrentBankReconciliation final : public ReconciliationReport {
  public:
    dsrCurrentBankReconciliation();

    void ConcilDataSet(const std::shared_ptr<Recordset>& rows);

    void ActiveReport_ReportStart() override;
    void ActiveReport_DataInitialize() override;
    void ActiveReport_FetchData(bool& end_of_data) override;

  private:
    /// Columns of the report itself.
    struct Fields {
        Column date, reference, description, amount, type;
    };
    void FillFields(const Row& item);

    void Detail_Format();

    std::shared_ptr<framework::RecordCopy> items_;  // Null without a data set.
    ItemColumns columns_;
    Column reconciled_;
    bool fields_created_ = false;
    Fields fields_;
};

}  // namespace varnel::reports
