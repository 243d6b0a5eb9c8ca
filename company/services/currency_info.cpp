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

void CompanyCurrencyInfo::RaiseNoRate(const std::string& code, const std::string& date) {
    throw Error(error_number::kInvalidArgument, "CurrencyInfo",
                "There is no exchange rate for " + code + " on or before " + date +
                    "; enter one in the company's rate table or give one");
}

void CompanyCurrencyInfo::AddRate(const GivenRate& given, RateCollection& rates) {
    const CurrencyRecord& record = currencies_.ItemByCode(given.currency_code);
    if (record.id == currencies_.HomeId())
        throw Error(error_number::kInvalidArgument, "CurrencyInfo",
                    record.code + " is the company's own currency and has no exchange rate");
    if (rates.Has(record.id))
        throw Error(error_number::kInvalidArgument, "CurrencyInfo",
                    "The exchange rate of " + record.code + " is given twice");
    rates.Set(record.id, given.rate);
}

void CompanyCurrencyInfo::UseRates(std::span<const GivenRate> rates) {
    RateCollection taken;
    for (const auto& given : rates) AddRate(given, taken);
    given_ = std::move(taken);
}

std::shared_ptr<RateCollection> CompanyCurrencyInfo::RatesOf(std::span<const std::string> filter) {
    auto rates = std::make_shared<RateCollection>();
    for (const auto& piece : filter)
        if (!piece.empty()) AddRate(ParseGivenRate(piece), *rates);
    return rates;
}

void CompanyCurrencyInfo::ConfigureExchangeRates(IExchangeRates& target, Date date,
                                                 bool use_rate_table,
                                                 std::span<const std::string> filter) {
    const auto rates = RatesOf(filter);
    rates->AddMissing(given_);
    const auto& kept = target.IExchangeRates_ExchangeRates();
    if (kept && !use_rate_table) rates->AddMissing(*kept);
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
