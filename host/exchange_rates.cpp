#include "host/exchange_rates.h"

#include "host/error.h"

namespace varnel {

Rate RateCollection::Item(std::string_view key) const {
    const auto found = rates_.find(key);
    if (found == rates_.end())
        throw Error(error_number::kInvalidArgument, "ExchangeRates",
                    "There is no exchange rate for currency " + std::string(key));
    return found->second;
}

}  // namespace varnel
