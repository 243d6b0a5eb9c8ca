#include "drivers/sqlite/exact_sum.h"

#include <sqlite3.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "host/currency.h"
#include "host/decimal.h"

namespace varnel::drivers {

namespace {

constexpr double kScale = static_cast<double>(Currency::kScale);
constexpr double kScaledLimit = 9.2e18;  // Below what 64 bits hold.
constexpr const char* kSumTooLarge = "the result of sum() is too large";

/// 128 bits in two halves, since SQLite aligns its memory for 64 bits only.
class Accumulator {
  public:
    void Add(std::int64_t value) {
        const auto addend = static_cast<std::uint64_t>(value);
        const bool carry = __builtin_add_overflow(low_, addend, &low_);
        high_ += (value < 0 ? -1 : 0) + (carry ? 1 : 0);
    }
    Int128 Total() const { return (Int128{high_} << 64) + Int128{low_}; }

  private:
    std::int64_t high_;
    std::uint64_t low_;
};

/// Lives in memory that SQLite hands out filled with zeros.
struct Sum {
    Accumulator integers;
    Accumulator amounts;  // In ten-thousandths.
    bool any_value;
    bool any_amount;
};

bool FitsInt64(Int128 value) {
    return value >= std::numeric_limits<std::int64_t>::min() &&
           value <= std::numeric_limits<std::int64_t>::max();
}

/// Half away from zero. The difference is exact, which adding a half first would not be.
std::int64_t RoundToInteger(double value) {
    const auto whole = static_cast<std::int64_t>(value);
    const double rest = value - static_cast<double>(whole);
    return whole + (rest >= 0.5 ? 1 : 0) - (rest <= -0.5 ? 1 : 0);
}

/// Scales the fraction alone: the scaled value as a whole may need more digits than a real has.
bool ScaleReal(double value, std::int64_t& scaled) {
    if (!(std::abs(value) < kScaledLimit / kScale)) return false;
    const auto units = static_cast<std::int64_t>(value);
    const double fraction = value - static_cast<double>(units);
    scaled = units * Currency::kScale + RoundToInteger(fraction * kScale);
    return true;
}

bool ScaleText(sqlite3_value* value, std::int64_t& scaled) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    if (text == nullptr) return false;
    const std::string_view view(text, static_cast<std::size_t>(sqlite3_value_bytes(value)));
    return decimal::Parse(view, Currency::kDecimals, scaled);
}

void Fail(sqlite3_context* context, const char* message) {
    sqlite3_result_error(context, message, -1);
}

void AddAmount(sqlite3_context* context, Sum& sum, bool is_amount, std::int64_t scaled) {
    if (!is_amount)
        return Fail(context, "sum() met a value that is no amount, or one over 922 trillion");
    sum.amounts.Add(scaled);
    sum.any_value = sum.any_amount = true;
}

void Step(sqlite3_context* context, int, sqlite3_value** values) {
    auto* sum = static_cast<Sum*>(sqlite3_aggregate_context(context, sizeof(Sum)));
    if (sum == nullptr) return sqlite3_result_error_nomem(context);
    std::int64_t scaled = 0;
    bool is_amount = false;
    switch (sqlite3_value_type(values[0])) {
        case SQLITE_NULL:
            return;
        case SQLITE_INTEGER:
            sum->integers.Add(sqlite3_value_int64(values[0]));
            sum->any_value = true;
            return;
        case SQLITE_FLOAT:
            is_amount = ScaleReal(sqlite3_value_double(values[0]), scaled);
            break;
        case SQLITE_TEXT:
            is_amount = ScaleText(values[0], scaled);
            break;
        default:
            break;
    }
    AddAmount(context, *sum, is_amount, scaled);
}

/// True if reading the real number back as an amount gives every digit.
bool FitsReal(Int128 scaled, double real) {
    return std::abs(real * kScale) < kScaledLimit && Currency::FromDouble(real).Scaled() == scaled;
}

void GiveText(sqlite3_context* context, Int128 scaled) {
    const Int128 magnitude = scaled < 0 ? -scaled : scaled;
    if (!FitsInt64(magnitude / Currency::kScale)) return Fail(context, kSumTooLarge);
    std::string text = scaled < 0 ? "-" : "";
    text += std::to_string(static_cast<std::int64_t>(magnitude / Currency::kScale));
    const auto decimals = static_cast<std::int64_t>(magnitude % Currency::kScale);
    text += '.' + std::to_string(Currency::kScale + decimals).substr(1);
    sqlite3_result_text(context, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

void GiveAmount(sqlite3_context* context, Int128 scaled) {
    const double real = static_cast<double>(scaled) / kScale;
    if (!FitsReal(scaled, real)) return GiveText(context, scaled);
    sqlite3_result_double(context, real);
}

void GiveInteger(sqlite3_context* context, Int128 value) {
    if (!FitsInt64(value)) return Fail(context, kSumTooLarge);
    sqlite3_result_int64(context, static_cast<std::int64_t>(value));
}

void Finish(sqlite3_context* context) {
    const auto* sum = static_cast<const Sum*>(sqlite3_aggregate_context(context, 0));
    if (sum == nullptr || !sum->any_value) return sqlite3_result_null(context);
    const Int128 integers = sum->integers.Total();
    if (!sum->any_amount) return GiveInteger(context, integers);
    GiveAmount(context, integers * Currency::kScale + sum->amounts.Total());
}

}  // namespace

int RegisterExactSum(sqlite3* database) {
    const int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    return sqlite3_create_function_v2(database, "sum", 1, flags, nullptr, nullptr, Step, Finish,
                                      nullptr);
}

}  // namespace varnel::drivers
