#pragma once

#include "framework/revalued_report.h"
#include "host/row.h"

namespace varnel::framework {

/// Where a query over foreign balances gives them: `ExCurrencyId`, `ExChangeRate`, `AcctBalForeign`
/// and `AcctBalHome`.
struct LedgerBalanceColumns {
    Column currency_id, booked_rate, foreign, home;

    /// Error 3265 for a column that the query does not give.
    void Resolve(const Columns& columns);
    LedgerBalance Read(const Row& row) const;
};

}  // namespace varnel::framework
