#pragma once

#include <cstdint>
#include <optional>

#include "host/currency.h"

namespace varnel::reports {

/// Which difference from the comparison is a favourable one, and positive.
enum class VarianceSense : std::uint8_t {
    kMoreIsBetter,  // Current less comparison: revenue, results, balances.
    kLessIsBetter,  // Comparison less current: expenses.
};

/// By account type: less is better for 5 to 9.
VarianceSense SenseOf(std::int32_t account_type);

/// How far an amount is from what it is compared with.
struct Variance {
    Currency amount;
    /// Of the comparison's absolute value; none when the comparison is zero.
    std::optional<double> percent;
};

Variance VarianceOf(Currency current, Currency comparison, VarianceSense sense);

}  // namespace varnel::reports
