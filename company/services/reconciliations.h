#pragma once

#include "host/company.h"

namespace varnel::company {

/// Saved bank reconciliations from BankConcilHistory.
class CompanyReconciliations final : public ReconciliationHistory {
  public:
    explicit CompanyReconciliations(CompanyDatabase& database) : database_(database) {}
    std::shared_ptr<Recordset> OpenRecords() override;

  private:
    CompanyDatabase& database_;
};

}  // namespace varnel::company
