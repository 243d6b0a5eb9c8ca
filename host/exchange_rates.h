#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "host/object.h"
#include "host/rate.h"

namespace varnel {

/// Exchange rates by currency. The key is the decimal text of the currency's internal id; a row
/// loop asks by the id itself.
class RateCollection : public Object {
  public:
    std::string_view ObjectName() const override { return "ExchangeRates"; }
    /// Error 5 naming the key when there is no such rate: a missing rate is never 0.
    Rate Item(std::string_view key) const;
    Rate Item(std::int32_t currency_id) const;
    bool Has(std::string_view key) const;
    bool Has(std::int32_t currency_id) const { return rates_.contains(currency_id); }
    /// Replaces the rate that the key has. Error 5 for a key that is not the decimal text of an id.
    void Set(std::string_view key, Rate rate);
    void Set(std::int32_t currency_id, Rate rate) { rates_[currency_id] = rate; }
    /// Takes the rates of `other` for currencies that have none here.
    void AddMissing(const RateCollection& other) {
        rates_.insert(other.rates_.begin(), other.rates_.end());
    }

  private:
    std::map<std::int32_t, Rate> rates_;
};

/// What a report that can revalue foreign balances offers.
class IExchangeRates {
  public:
    virtual ~IExchangeRates() = default;
    /// Null when the host has given none.
    virtual const std::shared_ptr<RateCollection>& IExchangeRates_ExchangeRates() = 0;
    virtual void IExchangeRates_ExchangeRates(std::shared_ptr<RateCollection> rates) = 0;
    /// The date of the rates as text, for display.
    virtual const std::string& IExchangeRates_ExchangeRatesDate() = 0;
    virtual void IExchangeRates_ExchangeRatesDate(const std::string& date) = 0;
    virtual bool IExchangeRates_Reevaluate() = 0;
    virtual void IExchangeRates_Reevaluate(bool reevaluate) = 0;
};

}  // namespace varnel
