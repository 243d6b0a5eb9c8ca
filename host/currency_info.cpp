#include "host/currency_info.h"

#include "host/missing_service.h"

namespace varnel {

void CurrencyInfo::ConfigureExchangeRates(IExchangeRates&, Date, bool,
                                          std::span<const std::string>) {
    RaiseMissingService("exchange rates");
}

Currency CurrencyInfo::EvaluateValueWithExchangeRate(Rate, std::int32_t, Currency,
                                                     IExchangeRates&) {
    RaiseMissingService("revaluation");
}

Currencies& CurrencyInfo::GetCurrencies() { RaiseMissingService("list of currencies"); }

}  // namespace varnel
