#include "tests/support/memory_currency_info.h"

namespace varnel::test {

void MemoryCurrencyInfo::RaiseNoRate(const std::string& code, const std::string& date) {
    throw Error(error_number::kInvalidArgument, "MemoryHost",
                "There is no exchange rate for " + code + " on or before " + date);
}

const CurrencyRecord& MemoryCurrencyInfo::At(std::int32_t currency_id) const {
    for (const auto& record : records)
        if (record.id == currency_id) return record;
    throw Error(error_number::kInvalidArgument, "MemoryHost",
                "There is no currency " + std::to_string(currency_id));
}

std::int32_t MemoryCurrencyInfo::CieHomeCurrencyId() {
    calls_.Note("CieHomeCurrencyId");
    return home_id;
}

bool MemoryCurrencyInfo::CieIsForeignCurrencyUsed() {
    calls_.Note("CieIsForeignCurrencyUsed");
    return records.size() > 1;
}

std::int32_t MemoryCurrencyInfo::UnrealizedGainLossAcctId() {
    calls_.Note("UnrealizedGainLossAcctId");
    return unrealized_account_id;
}

void MemoryCurrencyInfo::ConfigureExchangeRates(IExchangeRates& target, Date date,
                                                bool use_rate_table, std::span<const std::string>) {
    calls_.Note("ConfigureExchangeRates");
    if (!use_rate_table) return;  // Rates that it has had already stay.
    const auto rates = std::make_shared<RateCollection>();
    for (const auto& record : records) {
        const auto& noted = rate_table[record.id];
        const auto after = noted.upper_bound(date);
        if (after != noted.begin()) rates->Set(record.id, std::prev(after)->second);
    }
    target.IExchangeRates_ExchangeRates(rates);
    target.IExchangeRates_ExchangeRatesDate(date.ToIso());
    target.IExchangeRates_Reevaluate(records.size() > 1);
}

Currency MemoryCurrencyInfo::EvaluateValueWithExchangeRate(Rate booked_rate,
                                                           std::int32_t currency_id,
                                                           Currency foreign_amount,
                                                           IExchangeRates& rates) {
    calls_.Note("EvaluateValueWithExchangeRate");
    if (currency_id == home_id || records.size() == 1) return foreign_amount;
    if (!rates.IExchangeRates_Reevaluate()) return Multiply(foreign_amount, booked_rate, 2);
    const auto& collection = rates.IExchangeRates_ExchangeRates();
    if (!collection || !collection->Has(currency_id))
        RaiseNoRate(At(currency_id).code, rates.IExchangeRates_ExchangeRatesDate());
    return Multiply(foreign_amount, collection->Item(currency_id), 2);
}

void MemoryCurrencyInfo::FormatWorldCurrency(Currency amount, std::int32_t currency_id,
                                             std::string& out) {
    calls_.Note("FormatWorldCurrency");
    formats_.AppendAmount(amount, At(currency_id).decimals, out);
}

Currency MemoryCurrencyInfo::Round(Currency amount, int decimals) {
    calls_.Note("Round");
    return varnel::Round(amount, decimals);
}

Currency MemoryCurrencyInfo::RoundProduct(Currency amount, Rate rate, int decimals) {
    calls_.Note("RoundProduct");
    return Multiply(amount, rate, decimals);
}

Currencies& MemoryCurrencyInfo::GetCurrencies() {
    calls_.Note("GetCurrencies");
    return *this;
}

const CurrencyRecord& MemoryCurrencyInfo::Item(std::int32_t currency_id) {
    calls_.Note("Currencies.Item");
    return At(currency_id);
}

std::string MemoryCurrencyInfo::GetCurrenciesLegend(IExchangeRates& rates) {
    calls_.Note("GetCurrenciesLegend");
    std::string legend;
    const auto& collection = rates.IExchangeRates_ExchangeRates();
    for (const auto& record : records) {
        if (record.id == home_id || !collection || !collection->Has(record.id)) continue;
        legend +=
            (legend.empty() ? "" : "; ") + record.code + " " + collection->Item(record.id).ToText();
    }
    return legend;
}

std::string MemoryCurrencyInfo::GetAllARAPGLAccountUsed() {
    calls_.Note("GetAllARAPGLAccountUsed");
    return control_account_ids;
}

}  // namespace varnel::test
