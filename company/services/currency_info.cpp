#include "company/services/currency_info.h"

#include <algorithm>

#include "company/services/rate_table.h"
#include "company/services/setting_names.h"
#include "host/company.h"
#include "host/error.h"

namespace varnel::company {

namespace {

constexpr int kCents = 2;

}  // namespace

std::int32_t CompanyCurrencyInfo::UnrealizedGainLossAcctId() {
    return params_.Find(account_param::kUnrealizedGainLoss, kCompanySection);
}

void CompanyCurrencyInfo::RaiseNoRate(const std::string& codes, const std::string& date) {
    throw Error(error_number::kInvalidArgument, "CurrencyInfo",
                "There is no exchange rate for " + codes + " on or before " + date +
                    "; enter one in the company's rate table");
}

void CompanyCurrencyInfo::RequireRates(const RateCollection& rates, const std::string& date) {
    std::string missing;
    for (const auto& record : currencies_.All())
        if (record.id != currencies_.HomeId() && !rates.Has(record.id))
            missing += (missing.empty() ? "" : ", ") + record.code;
    if (!missing.empty()) RaiseNoRate(missing, date);
}

void CompanyCurrencyInfo::ConfigureExchangeRates(IExchangeRates& target, Date date,
                                                 bool use_rate_table,
                                                 std::span<const std::string> /*filter*/) {
    const auto given = target.IExchangeRates_ExchangeRates();
    const auto rates = given && !use_rate_table ? std::make_shared<RateCollection>(*given)
                                                : std::make_shared<RateCollection>();
    const bool foreign_used = currencies_.ForeignUsed();
    Date newest = kOpenStart;
    if (foreign_used) {
        for (const auto& [currency_id, rate_date, rate] : RatesAt(database_, date)) {
            if (!rates->Has(currency_id)) rates->Set(currency_id, rate);
            newest = std::max(newest, rate_date);
        }
    }
    std::string date_text;
    formats_.AppendShortDate(date >= kOpenEnd && newest > kOpenStart ? newest : date, date_text);
    target.IExchangeRates_ExchangeRates(rates);
    target.IExchangeRates_ExchangeRatesDate(date_text);
    target.IExchangeRates_Reevaluate(foreign_used);
    if (foreign_used) RequireRates(*rates, date_text);
}

Currency CompanyCurrencyInfo::EvaluateValueWithExchangeRate(Rate booked_rate,
                                                            std::int32_t currency_id,
                                                            Currency foreign_amount,
                                                            IExchangeRates& rates) {
    if (currency_id == currencies_.HomeId() || !currencies_.ForeignUsed()) return foreign_amount;
    if (!rates.IExchangeRates_Reevaluate())
        return RoundProduct(foreign_amount, booked_rate, kCents);
    const auto& collection = rates.IExchangeRates_ExchangeRates();
    if (!collection || !collection->Has(currency_id))
        RaiseNoRate(currencies_.Item(currency_id).code, rates.IExchangeRates_ExchangeRatesDate());
    return RoundProduct(foreign_amount, collection->Item(currency_id), kCents);
}

void CompanyCurrencyInfo::FormatWorldCurrency(Currency amount, std::int32_t currency_id,
                                              std::string& out) {
    formats_.AppendAmount(amount, currencies_.Item(currency_id).decimals, out);
}

}  // namespace varnel::company
