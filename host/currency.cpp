#include "host/currency.h"

#include <cmath>

#include "host/decimal.h"
#include "host/error.h"

namespace varnel {

void Currency::Overflow() {
    throw Error(error_number::kOverflow, "Varnel",
                "The amount is too large: the total exceeds 922 trillion");
}

Currency Currency::FromWhole(std::int64_t units) {
    return Currency(decimal::Narrow(Int128{units} * kScale, "The amount"));
}

Currency Currency::FromDouble(double value) {
    // The decimals alone are scaled: the product of the whole would have to be rounded to a binary
    // number first, and is off by one above 2.7e11.
    const double whole = std::trunc(value);
    if (!(std::abs(whole) < 922'337'203'685'477.5)) Overflow();
    const double decimals = std::round((value - whole) * static_cast<double>(kScale));
    return FromWhole(static_cast<std::int64_t>(whole)) +
           FromScaled(static_cast<std::int64_t>(decimals));
}

Currency Currency::Parse(std::string_view text) {
    std::int64_t scaled = 0;
    if (!decimal::Parse(text, kDecimals, scaled))
        throw Error(error_number::kTypeMismatch, "Varnel",
                    "\"" + std::string(text) + "\" is not an amount; write it like -1234.50");
    return Currency(scaled);
}

std::string Currency::ToText(int least_decimals) const {
    std::string text;
    AppendText(text, least_decimals);
    return text;
}

void Currency::AppendText(std::string& out, int least_decimals) const {
    decimal::Append(scaled_, kDecimals, least_decimals, out);
}

Currency Round(Currency amount, int decimals) {
    const auto unit = decimal::PowerOfTen(Currency::kDecimals - decimals);
    const Int128 rounded = decimal::DivideRounded(amount.Scaled(), unit) * unit;
    return Currency::FromScaled(decimal::Narrow(rounded, "The rounded amount"));
}

}  // namespace varnel
