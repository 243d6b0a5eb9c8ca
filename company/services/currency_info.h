#pragma once

#include "company/services/account_params.h"
#include "company/services/currencies.h"
#include "company/services/given_rates.h"
#include "host/application.h"
#include "host/currency_info.h"

namespace varnel::company {

/// Currencies, rates and rounding over the company database.
class CompanyCurrencyInfo final : public CurrencyInfo {
  public:
    CompanyCurrencyInfo(CompanyDatabase& database, CompanyCurrencies& currencies,
                        AccountParams& params, Formats& formats)
        : database_(database), currencies_(currencies), params_(params), formats_(formats) {}

    /// Takes these rates instead of the company's table from now on. Error 5 for a currency that
    /// the company does not have, for its own and for one given twice.
    void UseRates(std::span<const GivenRate> rates);

    std::int32_t CieHomeCurrencyId() override { return currencies_.HomeId(); }
    bool CieIsForeignCurrencyUsed() override { return currencies_.ForeignUsed(); }
    std::int32_t UnrealizedGainLossAcctId() override;

    /// Sets the latest rate on or before the date for every foreign currency, the text of the date
    /// (with an open end: of the newest rate) and the switch, which is on when the company works in
    /// more than one currency. Without `use_rate_table` rates that `target` has already stay. Rates
    /// that the user gave come before the table's; pieces of `filter`, as "USD=1.3725", before all.
    ///
    /// A currency that has no rate by then is left out: who needs it finds it missing. Error 5 for
    /// a piece of `filter` that is no rate, before anything is set.
    void ConfigureExchangeRates(IExchangeRates& target, Date date, bool use_rate_table,
                                std::span<const std::string> filter) override;
    /// Rounded once, to the cent. The amount itself in home currency and in a company of one
    /// currency. Error 5 naming currency and date when `rates` revalues and has no rate.
    Currency EvaluateValueWithExchangeRate(Rate booked_rate, std::int32_t currency_id,
                                           Currency foreign_amount, IExchangeRates& rates) override;
    void FormatWorldCurrency(Currency amount, std::int32_t currency_id, std::string& out) override;
    Currencies& GetCurrencies() override { return currencies_; }

  private:
    std::shared_ptr<RateCollection> RatesOf(std::span<const std::string> filter);
    void AddRate(const GivenRate& given, RateCollection& rates);
    [[noreturn]] void RaiseNoRate(const std::string& code, const std::string& date);

    CompanyDatabase& database_;
    CompanyCurrencies& currencies_;
    AccountParams& params_;
    Formats& formats_;
    RateCollection given_;
};

}  // namespace varnel::company
