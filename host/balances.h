#pragma once

#include <cstdint>
#include <string>

#include "host/currency.h"
#include "host/date.h"
#include "host/exchange_rates.h"

namespace varnel {

/// Which lines a balance is made of.
struct BalanceScope {
    /// Both days included; 1899-12-31 as `from` takes the whole history.
    Date from = kOpenStart;
    Date to = kOpenEnd;
    /// Parenthesised condition on GLDet, without a leading AND; empty takes all lines.
    std::string segment_clause;
    /// Comma-separated project ids; empty takes all lines.
    std::string project_ids;
    friend bool operator==(const BalanceScope&, const BalanceScope&) = default;
};

/// Stands for every account where one is asked for.
inline constexpr std::int32_t kEveryAccount = -1;

/// Balances of the ledger, debit positive and exact. A host answers every account of a scope from
/// one grouped query.
class BalanceService {
  public:
    virtual ~BalanceService() = default;
    /// The account's net amount over the scope: in home currency, or with `in_foreign_currency` the
    /// sum of the foreign amounts of its lines. `kEveryAccount` takes all.
    virtual Currency AccountBalance(std::int32_t account_id, const BalanceScope& scope,
                                    bool in_foreign_currency) = 0;
    /// The net result of all income-statement accounts strictly before the date (a profit is
    /// negative).
    virtual Currency EarningsBefore(Date date, const BalanceScope& scope) = 0;
    /// The account's amount as financial statements print it. That is its home balance, but for
    /// - current earnings, which carry the net result from the fiscal-year start of the scope's
    ///   last date to that date;
    /// - retained earnings, which carry the earnings before that start;
    /// - with `rates` that revalue, an account that has a foreign currency of its own: what its
    ///   foreign balance is worth at that currency's rate, to the cent. Receivable and payable
    ///   control accounts stay as booked: the balance sheet adjusts them by itself. What the
    ///   accounts of the balance sheet gain that way enters current earnings as a credit, so that
    ///   the balance sheet balances.
    ///
    /// Error 5 naming currency and date when there is no rate. Only statements ask for it: error
    /// 445 in a host that leaves it out.
    virtual Currency StatementBalance(std::int32_t account_id, const BalanceScope& scope,
                                      IExchangeRates& rates);
};

}  // namespace varnel
