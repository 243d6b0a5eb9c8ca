#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

#include "host/currency.h"

namespace varnel {

/// An exchange rate: home-currency units per unit of the currency, exact to eight decimals.
class Rate {
  public:
    static constexpr int kDecimals = 8;
    static constexpr std::int64_t kScale = 100'000'000;

    constexpr Rate() = default;
    static constexpr Rate FromScaled(std::int64_t scaled) { return Rate(scaled); }
    /// The nearest hundred-millionth. Raises error 6 when it does not fit or is not a number.
    static Rate FromDouble(double value);
    /// Reads "1.3725"; raises error 13 naming the text otherwise. Digits beyond the eighth decimal
    /// are rounded.
    static Rate Parse(std::string_view text);

    constexpr std::int64_t Scaled() const { return scaled_; }
    constexpr bool IsZero() const { return scaled_ == 0; }
    /// Plain decimal text with at least four decimals: "1.3725", "0.73105263".
    std::string ToText(int least_decimals = 4) const;
    void AppendText(std::string& out, int least_decimals = 4) const;
    friend constexpr auto operator<=>(Rate, Rate) = default;

  private:
    explicit constexpr Rate(std::int64_t scaled) : scaled_(scaled) {}
    std::int64_t scaled_ = 0;
};

/// `amount` × `rate` through a 128-bit intermediate, rounded once to `decimals` (0 to 4), half away
/// from zero.
Currency Multiply(Currency amount, Rate rate, int decimals);

}  // namespace varnel
