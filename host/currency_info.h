#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "host/currency.h"
#include "host/date.h"
#include "host/exchange_rates.h"
#include "host/rate.h"

namespace varnel {

/// A currency of the company.
struct CurrencyRecord {
    std::int32_t id = 0;
    std::string code;
    std::string description;
    int decimals = 2;
    /// Receivable and payable control accounts of this currency; 0 when the company's own serve.
    std::int32_t ar_account_id = 0;
    std::int32_t ap_account_id = 0;
};

class Currencies {
  public:
    virtual ~Currencies() = default;
    /// Error 5 naming the id when there is no such currency.
    virtual const CurrencyRecord& Item(std::int32_t currency_id) = 0;
    /// The rates in words: "USD 1.3500; EUR 1.4700".
    virtual std::string GetCurrenciesLegend(IExchangeRates& rates) = 0;
    /// Ids of all receivable and payable control accounts in use, comma-separated; "-1" when there
    /// is none.
    virtual std::string GetAllARAPGLAccountUsed() = 0;
};

/// What reports ask about currencies, rates and rounding.
class CurrencyInfo {
  public:
    virtual ~CurrencyInfo() = default;
    virtual std::int32_t CieHomeCurrencyId() = 0;
    /// Whether the company works in more than one currency.
    virtual bool CieIsForeignCurrencyUsed() = 0;
    /// Account of the unrealized exchange gain or loss; 0 when the company has none.
    virtual std::int32_t UnrealizedGainLossAcctId() { return 0; }
    /// Appends the amount in that currency's format: its own decimals, no code.
    virtual void FormatWorldCurrency(Currency amount, std::int32_t currency_id,
                                     std::string& out) = 0;
    /// Rounding service: half away from zero.
    virtual Currency Round(Currency amount, int decimals) {
        return varnel::Round(amount, decimals);
    }
    /// Amount × rate, rounded once.
    virtual Currency RoundProduct(Currency amount, Rate rate, int decimals) {
        return Multiply(amount, rate, decimals);
    }

    // What only reports that revalue need: error 445 in a host that leaves it out.
    /// Fills rates, their date and the revaluation switch of `target` for the closing date.
    /// `use_rate_table`: take what the company's own table says. `filter` is the report's filter,
    /// split at "|". A currency without a rate is left out, never given a rate of 0: whoever needs
    /// it finds it missing.
    virtual void ConfigureExchangeRates(IExchangeRates& target, Date date, bool use_rate_table,
                                        std::span<const std::string> filter);
    /// One foreign amount in home currency: at the rate of `rates` when it revalues, else at the
    /// line's booked rate. Rounded once, to the cent, so that it agrees with rows that a report
    /// revalues by itself.
    virtual Currency EvaluateValueWithExchangeRate(Rate booked_rate, std::int32_t currency_id,
                                                   Currency foreign_amount, IExchangeRates& rates);
    virtual Currencies& GetCurrencies();
};

}  // namespace varnel
