#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "company/demo/chart.h"
#include "company/demo/database.h"
#include "company/demo/random.h"
#include "host/date.h"

namespace varnel::company::demo {

/// What a bank line's `Conciliated` and `ExBankConcilHistoryId` hold.
struct Tick {
    std::optional<int> conciliated;
    std::optional<std::int64_t> history;
};

/// Plays the bank: decides when each line of a bank account clears, keeps the statements, and marks
/// the lines as the bookkeeper did.
///
/// Reconciled are the Canadian account at the ends of May (everything until then), June, July and
/// August 2026 and the US account at the end of August. September of the Canadian account is in
/// progress: lines of that month are being ticked, older ones that cleared in it are not yet.
class Reconciliations {
  public:
    Reconciliations();

    /// `amount` in the account's own currency. Lines are met in any order.
    Tick Mark(AccountIndex account, const char* source, Date date, Currency amount, Random& random);
    void Write(Database& database) const;

  private:
    struct Statement {
        std::int64_t history;  // 0 in progress
        AccountIndex account;
        Date date;
        Currency ending, deposits_open, withdrawals_open, ledger;

        void Count(Date line_date, Currency amount, bool cleared, bool outstanding);
    };
    Tick TickOf(AccountIndex account, Date date, Date cleared, Random& random) const;

    std::vector<Statement> statements_;  // saved ones by ascending id, then the one in progress
};

}  // namespace varnel::company::demo
