#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <queue>
#include <vector>

#include "host/currency.h"
#include "host/date.h"
#include "host/rate.h"

namespace varnel::company::demo {

/// What is left to pay on an invoice, in its currency.
struct OpenItem {
    std::int64_t invoice = 0;
    int party = 0;
    const char* name = "";
    int segment = 0;
    Date due;
    Rate rate;
    Currency open;
};

/// The unpaid invoices of one currency on one side (customers or suppliers), paid in order of the
/// day on which the party is going to pay.
class OpenItems {
  public:
    void Add(const OpenItem& item);
    bool AnyDue(Date today) const;
    /// Takes up to `most` due items of the party whose payment is due first, oldest first, that
    /// together stay within `limit`. None when nothing is due or the first is beyond the limit.
    std::vector<OpenItem> TakeDue(Date today, std::size_t most, Currency limit);

  private:
    struct Turn {
        Date due;
        std::uint64_t order;
        int party;
        bool operator>(const Turn& other) const {
            return due != other.due ? due > other.due : order > other.order;
        }
    };
    struct Party {
        std::deque<OpenItem> items;
        int served_early = 0;  // turns to drop: their items went with an earlier one
    };
    void DropServedTurns();

    std::priority_queue<Turn, std::vector<Turn>, std::greater<>> turns_;
    std::map<int, Party> parties_;
    std::uint64_t order_ = 0;
};

}  // namespace varnel::company::demo
