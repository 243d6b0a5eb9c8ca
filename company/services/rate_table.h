#pragma once

#include <cstdint>
#include <vector>

#include "host/data_access.h"

namespace varnel::company {

/// An exchange rate of the company and the day it was noted.
struct DatedRate {
    std::int32_t currency_id;
    Date date;
    Rate rate;
};

/// The latest rate of each currency on or before the date, from ExchangeRate. Currencies without
/// one are not in the list.
std::vector<DatedRate> RatesAt(CompanyDatabase& database, Date date);

}  // namespace varnel::company
