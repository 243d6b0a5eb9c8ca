#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "host/object.h"
#include "host/rate.h"

namespace varnel {

/// Exchange rates by currency. The key is the decimal text of the currency's internal id.
class RateCollection : public Object {
  public:
    std::string_view ObjectName() const override { return "ExchangeRates"; }
    /// Error 5 naming the key when there is no such rate: a missing rate is never 0.
    Rate Item(std::string_view key) const;
    bool Has(std::string_view key) const { return rates_.find(key) != rates_.end(); }
    void Set(std::string key, Rate rate) { rates_[std::move(key)] = rate; }

  private:
    std::map<std::string, Rate, std::less<>> rates_;
};

/// What a report that can revalue foreign balances offers.
class IExchangeRates {
  public:
    virtual ~IExchangeRates() = default;
    virtual std::shared_ptr<RateCollection> IExchangeRates_ExchangeRates() = 0;
    virtual void IExchangeRates_ExchangeRates(std::shared_ptr<RateCollection> rates) = 0;
    /// The date of the rates as text, for display.
    virtual std::string IExchangeRates_ExchangeRatesDate() = 0;
    virtual void IExchangeRates_ExchangeRatesDate(const std::string& date) = 0;
    virtual bool IExchangeRates_Reevaluate() = 0;
    virtual void IExchangeRates_Reevaluate(bool reevaluate) = 0;
};

}  // namespace varnel
