#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "host/currency_info.h"
#include "host/exchange_rates.h"
#include "host/member_table.h"

namespace varnel::framework {

/// `IExchangeRates`, once for all reports that have it.
class RevaluedReport : public IExchangeRates {
  public:
    /// Adds its members, by the interface's names, to those of the report it is a part of.
    explicit RevaluedReport(MemberParts& members);

    const std::shared_ptr<RateCollection>& IExchangeRates_ExchangeRates() override {
        return rates_;
    }
    void IExchangeRates_ExchangeRates(std::shared_ptr<RateCollection> rates) override {
        rates_ = std::move(rates);
    }
    const std::string& IExchangeRates_ExchangeRatesDate() override { return date_; }
    void IExchangeRates_ExchangeRatesDate(const std::string& date) override { date_ = date; }
    bool IExchangeRates_Reevaluate() override { return reevaluate_; }
    void IExchangeRates_Reevaluate(bool reevaluate) override { reevaluate_ = reevaluate; }

  private:
    std::shared_ptr<RateCollection> rates_;
    std::string date_;
    bool reevaluate_ = false;
};

/// A foreign-currency balance of the ledger. Amounts are debit positive.
struct LedgerBalance {
    std::int32_t currency_id = 0;
    /// Of its lines, when they were posted.
    Rate booked_rate;
    Currency foreign;
    Currency home;
};

/// What a balance is worth in home currency and how far that is from what was booked: positive is a
/// gain.
struct Revaluation {
    Currency revalued;
    Currency gain;
};

/// The rule of revaluation for one run of a report: home-currency balances, and all in a company of
/// one currency, are worth what was booked; others are worth what the host makes of their foreign
/// amount (at the rate of `rates`, or at the booked one when they do not revalue), to the cent.
class Revaluer {
  public:
    /// Both must outlive it.
    Revaluer(CurrencyInfo& info, IExchangeRates& rates);

    Revaluation Evaluate(const LedgerBalance& balance) const;

  private:
    CurrencyInfo& info_;
    IExchangeRates& rates_;
    std::int32_t home_currency_id_;
    bool foreign_used_;
};

/// The same rule at the rate that `rates` has for its currency, whether or not anything revalues.
/// Error 91 without rates; error 5 naming the currency and `date`, the date of the rates, when
/// there is none for it.
Revaluation EvaluateAtKeyedRate(CurrencyInfo& info, const RateCollection* rates,
                                std::string_view date, const LedgerBalance& balance);

/// The same with the rates of a report.
Revaluation EvaluateAtKeyedRate(CurrencyInfo& info, IExchangeRates& rates,
                                const LedgerBalance& balance);

}  // namespace varnel::framework
