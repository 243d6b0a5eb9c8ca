#pragma once

#include <cstdint>

#include "host/currency.h"
#include "host/rate.h"

namespace varnel::company::demo {

constexpr Currency Cents(std::int64_t cents) { return Currency::FromScaled(cents * 100); }
constexpr Currency Dollars(std::int64_t dollars) { return Cents(dollars * 100); }

/// `amount` × `numerator` / `denominator`, rounded to whole cents, half away from zero.
constexpr Currency Share(Currency amount, std::int64_t numerator, std::int64_t denominator) {
    const std::int64_t product = amount.Scaled() / 100 * numerator;
    const std::int64_t half = product < 0 ? -denominator / 2 : denominator / 2;
    return Cents((product + half) / denominator);
}

/// Currency ids of the demo company.
inline constexpr int kCad = 1;
inline constexpr int kUsd = 2;
inline constexpr int kEur = 3;
inline constexpr int kCurrencies = 3;
inline constexpr int kHome = kCad;
inline constexpr Rate kPar = Rate::FromScaled(Rate::kScale);

}  // namespace varnel::company::demo
