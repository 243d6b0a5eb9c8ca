#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/variant.h"

namespace varnel::reports {

/// What a saved reconciliation, or the one in progress (0), is asked with.
struct ReconciliationScope {
    std::int32_t account_id = 0;
    std::int32_t history_id = 0;
    Date statement_date;
};

/// The column that holds the amounts of an account: in a currency of its own its foreign ones.
inline const char* AmountColumn(bool foreign) { return foreign ? "ForeignAmnt" : "DetAmnt"; }

/// A line that no reconciliation holds: what is outstanding today.
inline constexpr const char* kNotReconciled =
    "(GLDet.Conciliated = 0 OR GLDet.Conciliated is null)";

/// A statement with the values of its markers, in order.
struct ParameterQuery {
    std::string text;
    std::vector<Variant> parameters;
};

/// The items of a reconciliation by kind, as the column TransactionType: 1 reconciled withdrawals,
/// 2 reconciled deposits, 3 and 4 the outstanding ones. The database type chooses the dialect: 0 is
/// a server, 1 the desktop engine; of another type comes a text that no database takes.
ParameterQuery ItemsQuery(int database_type, const ReconciliationScope& scope,
                          bool include_reconciled);

/// Single sums over the account's lines, in the amounts of that column. Lines reconciled later than
/// the reconciliation are outstanding in it.
ParameterQuery OutstandingWithdrawalsQuery(const std::string& amount_column,
                                           const ReconciliationScope& scope);
ParameterQuery OutstandingDepositsQuery(const std::string& amount_column,
                                        const ReconciliationScope& scope);
ParameterQuery LedgerBalanceQuery(const std::string& amount_column,
                                  const ReconciliationScope& scope);

}  // namespace varnel::reports
