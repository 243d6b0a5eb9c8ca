#pragma once

#include <array>
#include <vector>

#include "company/demo/amounts.h"
#include "company/demo/random.h"
#include "host/date.h"
#include "host/rate.h"

namespace varnel::company::demo {

/// Rates of the two foreign currencies, one for each business day from December 2023 to December
/// 2026: a random walk that is drawn back to a long-run level.
class RateTable {
  public:
    explicit RateTable(Random& random);

    static Date Begin();
    static Date End();
    /// The rate published for `date`, or the last one before it; 1 for the home currency. A few
    /// have more than four decimals.
    Rate On(int currency, Date date) const;
    /// The same to the four decimals that documents carry.
    Rate ForDocument(int currency, Date date) const;

  private:
    std::array<std::vector<Rate>, kCurrencies + 1> rates_;  // by currency and calendar day
};

}  // namespace varnel::company::demo
