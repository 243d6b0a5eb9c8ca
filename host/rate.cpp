#include "host/rate.h"

#include <cmath>

#include "host/decimal.h"
#include "host/error.h"

namespace varnel {

Rate Rate::FromDouble(double value) {
    const double scaled = std::round(value * static_cast<double>(kScale));
    if (!(std::abs(scaled) < 9.2e18))
        throw Error(error_number::kOverflow, "Varnel",
                    "The exchange rate is too large or not a number");
    return Rate(static_cast<std::int64_t>(scaled));
}

Rate Rate::Parse(std::string_view text) {
    std::int64_t scaled = 0;
    if (!decimal::Parse(text, kDecimals, scaled))
        throw Error(error_number::kTypeMismatch, "Varnel",
                    "\"" + std::string(text) + "\" is not an exchange rate; write it like 1.3725");
    return Rate(scaled);
}

std::string Rate::ToText(int least_decimals) const {
    std::string text;
    AppendText(text, least_decimals);
    return text;
}

void Rate::AppendText(std::string& out, int least_decimals) const {
    decimal::Append(scaled_, kDecimals, least_decimals, out);
}

Currency Multiply(Currency amount, Rate rate, int decimals) {
    const Int128 product = Int128{amount.Scaled()} * rate.Scaled();
    const auto unit = decimal::PowerOfTen(Currency::kDecimals - decimals);
    const Int128 rounded = decimal::DivideRounded(product, Int128{Rate::kScale} * unit) * unit;
    return Currency::FromScaled(decimal::Narrow(rounded, "The product of amount and rate"));
}

}  // namespace varnel
