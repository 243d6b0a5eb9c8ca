#include "company/services/reconciliations.h"

#include "company/services/query.h"

namespace varnel::company {

std::shared_ptr<Recordset> CompanyReconciliations::OpenRecords() {
    return Query(database_,
                 "SELECT \"ID\", \"BankConcilDate\", ExAcctId, EndBalAmnt FROM BankConcilHistory "
                 "ORDER BY \"ID\"");
}

}  // namespace varnel::company
