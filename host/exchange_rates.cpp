#include "host/exchange_rates.h"

#include <charconv>
#include <optional>

#include "host/error.h"

namespace varnel {

namespace {

/// The id that `key` is the decimal text of: no blanks, no sign but "-", no leading zeros.
std::optional<std::int32_t> IdOf(std::string_view key) {
    std::int32_t id = 0;
    const char* const end = key.data() + key.size();
    const auto read = std::from_chars(key.data(), end, id);
    if (read.ec != std::errc{} || read.ptr != end || std::to_string(id) != key) return {};
    return id;
}

[[noreturn]] void RaiseNoRate(std::string_view key) {
    throw Error(error_number::kInvalidArgument, "ExchangeRates",
                "There is no exchange rate for currency " + std::string(key));
}

}  // namespace

Rate RateCollection::Item(std::string_view key) const {
    const auto id = IdOf(key);
    if (!id || !Has(*id)) RaiseNoRate(key);
    return Item(*id);
}

Rate RateCollection::Item(std::int32_t currency_id) const {
    const auto found = rates_.find(currency_id);
    if (found == rates_.end()) RaiseNoRate(std::to_string(currency_id));
    return found->second;
}

bool RateCollection::Has(std::string_view key) const {
    const auto id = IdOf(key);
    return id && Has(*id);
}

void RateCollection::Set(std::string_view key, Rate rate) {
    const auto id = IdOf(key);
    if (!id)
        throw Error(error_number::kInvalidArgument, "ExchangeRates",
                    "The key of an exchange rate is the id of its currency, not \"" +
                        std::string(key) + "\"");
    Set(*id, rate);
}

}  // namespace varnel
