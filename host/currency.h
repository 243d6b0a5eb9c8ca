#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace varnel {

/// An amount of money: a 64-bit integer scaled by 10,000, so four exact decimals. Debit positive,
/// credit negative.
///
/// Every operation is checked: a result that does not fit raises error 6 (overflow) and
/// leaves the amount as it was, it never wraps. Nothing rounds except where a function's name says
/// so; rounding is half away from zero. The currency itself is not part of the value: it travels as
/// an id beside it.
class Currency {
  public:
    static constexpr int kDecimals = 4;
    static constexpr std::int64_t kScale = 10'000;

    constexpr Currency() = default;

    static constexpr Currency FromScaled(std::int64_t scaled) { return Currency(scaled); }
    static Currency FromWhole(std::int64_t units);
    /// The nearest ten-thousandth, for drivers whose database stores binary numbers. Exact for
    /// every amount of up to four decimals below 5e11. Raises error 6 when it does not fit or is
    /// not a number.
    static Currency FromDouble(double value);
    /// Reads "-1234.50": a point, no grouping. Raises error 13 naming the text otherwise.
    static Currency Parse(std::string_view text);

    constexpr std::int64_t Scaled() const { return scaled_; }
    constexpr bool IsZero() const { return scaled_ == 0; }
    Currency Abs() const { return scaled_ < 0 ? -*this : *this; }
    /// For a percentage only: the one place where binary floating point may meet money.
    double ToDouble() const { return static_cast<double>(scaled_) / static_cast<double>(kScale); }
    /// Plain decimal text with at least `least_decimals` of the four decimals: "50.0000",
    /// "-1234.50".
    std::string ToText(int least_decimals = kDecimals) const;
    void AppendText(std::string& out, int least_decimals = kDecimals) const;

    Currency& operator+=(Currency other) {
        std::int64_t sum = 0;
        if (__builtin_add_overflow(scaled_, other.scaled_, &sum)) Overflow();
        scaled_ = sum;
        return *this;
    }
    Currency& operator-=(Currency other) {
        std::int64_t difference = 0;
        if (__builtin_sub_overflow(scaled_, other.scaled_, &difference)) Overflow();
        scaled_ = difference;
        return *this;
    }
    friend Currency operator+(Currency a, Currency b) { return a += b; }
    friend Currency operator-(Currency a, Currency b) { return a -= b; }
    Currency operator-() const { return Currency() -= *this; }
    friend constexpr auto operator<=>(Currency, Currency) = default;

  private:
    explicit constexpr Currency(std::int64_t scaled) : scaled_(scaled) {}
    [[noreturn]] static void Overflow();

    std::int64_t scaled_ = 0;
};

/// `amount` with at most `decimals` decimals (0 to 4), half away from zero.
Currency Round(Currency amount, int decimals);

}  // namespace varnel
