#include "framework/revalued_report.h"

#include "host/error.h"

namespace varnel::framework {

namespace {

constexpr int kCents = 2;

constexpr Member<RevaluedReport> kMembers[] = {
    {"IExchangeRates_ExchangeRates",
     [](RevaluedReport& r) -> Variant { return ObjectRef(r.IExchangeRates_ExchangeRates()); },
     [](RevaluedReport& r, const Variant& v) {
         r.IExchangeRates_ExchangeRates(ObjectAs<RateCollection>(v));
     }},
    {"IExchangeRates_ExchangeRatesDate",
     [](RevaluedReport& r) -> Variant { return r.IExchangeRates_ExchangeRatesDate(); },
     [](RevaluedReport& r, const Variant& v) { r.IExchangeRates_ExchangeRatesDate(v.ToText()); }},
    {"IExchangeRates_Reevaluate",
     [](RevaluedReport& r) -> Variant { return r.IExchangeRates_Reevaluate(); },
     [](RevaluedReport& r, const Variant& v) { r.IExchangeRates_Reevaluate(v.ToBool()); }},
};

[[noreturn]] void RaiseNoRate(CurrencyInfo& info, std::int32_t currency_id, std::string_view date) {
    throw Error(error_number::kInvalidArgument, "ExchangeRates",
                "There is no exchange rate for " + info.GetCurrencies().Item(currency_id).code +
                    " at " + std::string(date) + "; enter one or give one");
}

}  // namespace

RevaluedReport::RevaluedReport(MemberParts& members) {
    members.Add<RevaluedReport>(*this, kMembers);
}

Revaluer::Revaluer(CurrencyInfo& info, IExchangeRates& rates)
    : info_(info),
      rates_(rates),
      home_currency_id_(info.CieHomeCurrencyId()),
      foreign_used_(info.CieIsForeignCurrencyUsed()) {}

Revaluation Revaluer::Evaluate(const LedgerBalance& balance) const {
    if (!foreign_used_ || balance.currency_id == home_currency_id_) return {balance.home, {}};
    const Currency worth = info_.EvaluateValueWithExchangeRate(
        balance.booked_rate, balance.currency_id, balance.foreign, rates_);
    const Currency revalued = info_.Round(worth, kCents);
    return {revalued, revalued - balance.home};
}

Revaluation EvaluateAtKeyedRate(CurrencyInfo& info, const RateCollection* rates,
                                std::string_view date, const LedgerBalance& balance) {
    if (!info.CieIsForeignCurrencyUsed() || balance.currency_id == info.CieHomeCurrencyId())
        return {balance.home, {}};
    if (rates == nullptr)
        throw Error(error_number::kObjectNotSet, "ExchangeRates",
                    "There are no exchange rates: set them before the report runs");
    if (!rates->Has(balance.currency_id)) RaiseNoRate(info, balance.currency_id, date);
    const Currency revalued =
        info.RoundProduct(balance.foreign, rates->Item(balance.currency_id), kCents);
    return {revalued, revalued - balance.home};
}

Revaluation EvaluateAtKeyedRate(CurrencyInfo& info, IExchangeRates& rates,
                                const LedgerBalance& balance) {
    return EvaluateAtKeyedRate(info, rates.IExchangeRates_ExchangeRates().get(),
                               rates.IExchangeRates_ExchangeRatesDate(), balance);
}

}  // namespace varnel::framework
