#include "host/rate.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "host/exchange_rates.h"
#include "tests/support/error_of.h"

namespace varnel::test {
namespace {

TEST(RateTest, KeepsEightDecimalsAndWritesAtLeastFour) {
    EXPECT_EQ(Rate::Parse("1.3725").ToText(), "1.3725");
    EXPECT_EQ(Rate::Parse("0.73105263").ToText(), "0.73105263");
    EXPECT_EQ(Rate::Parse("1.5").ToText(), "1.5000");
    EXPECT_EQ(Rate::Parse("0.123456785").Scaled(), 12'345'679);
    EXPECT_EQ(Rate::FromDouble(0.73105263).Scaled(), 73'105'263);
    EXPECT_EQ(Rate::FromDouble(1.3725).Scaled(), 137'250'000);
}

TEST(RateTest, WhatIsNoRateIsAnError) {
    EXPECT_EQ(ErrorOf([] { Rate::Parse("1,37"); }), error_number::kTypeMismatch);
    EXPECT_EQ(ErrorOf([] { Rate::FromDouble(1e12); }), error_number::kOverflow);
    EXPECT_EQ(ErrorOf([] { Rate::FromDouble(std::nan("")); }), error_number::kOverflow);
}

struct ProductCase {
    const char* amount;
    const char* rate;
    int decimals;
    const char* product;
};

// 0.0149 × 1.00 would give 0.02 if it were rounded to 0.015 on the way; 1.35 × 0.33333333 =
// 0.4499999955; 400,000,000,000 × 1.37250001 needs 73 bits between the factors and the division.
constexpr ProductCase kProducts[] = {{"0.01", "0.5", 2, "0.01"},
                                     {"-0.01", "0.5", 2, "-0.01"},
                                     {"0.01", "0.49", 2, "0"},
                                     {"0.0149", "1", 2, "0.01"},
                                     {"1.35", "0.33333333", 2, "0.45"},
                                     {"1.35", "0.33333333", 4, "0.45"},
                                     {"1.35", "0.33333333", 1, "0.4"},
                                     {"-1234.56", "1.3725", 2, "-1694.43"},
                                     {"1234.56", "1.3725", 0, "1694"},
                                     {"400000000000", "1.37250001", 2, "549000004000"},
                                     {"922337203685477.5807", "1", 4, "922337203685477.5807"}};

TEST(RateTest, AProductIsRoundedOnceHalfAwayFromZero) {
    for (const auto& [amount, rate, decimals, product] : kProducts)
        EXPECT_EQ(Multiply(Currency::Parse(amount), Rate::Parse(rate), decimals).ToText(0),
                  product);
}

TEST(RateTest, AProductThatDoesNotFitIsError6) {
    EXPECT_EQ(
        ErrorOf([] { Multiply(Currency::FromWhole(900'000'000'000'000), Rate::Parse("1.1"), 2); }),
        error_number::kOverflow);
    EXPECT_EQ(ErrorOf([] {
                  Multiply(Currency::FromScaled(std::numeric_limits<std::int64_t>::min()),
                           Rate::FromScaled(std::numeric_limits<std::int64_t>::max()), 2);
              }),
              error_number::kOverflow);
}

TEST(RateTest, AMissingExchangeRateIsAnErrorNeverZero) {
    RateCollection rates;
    rates.Set("2", Rate::Parse("1.35"));
    EXPECT_EQ(rates.Item("2"), Rate::Parse("1.35"));
    std::string description;
    EXPECT_EQ(ErrorOf([&] { rates.Item("3"); }, &description), error_number::kInvalidArgument);
    EXPECT_EQ(description, "There is no exchange rate for currency 3");
    EXPECT_EQ(rates.Item(2), Rate::Parse("1.35"));
    EXPECT_EQ(ErrorOf([&] { rates.Item(3); }), error_number::kInvalidArgument);
}

TEST(RateTest, TheKeyOfAnExchangeRateIsTheDecimalTextOfAnId) {
    RateCollection rates;
    rates.Set("12", Rate::Parse("1.35"));
    for (const char* key : {"012", " 12", "12 ", "+12", "USD", ""}) {
        EXPECT_FALSE(rates.Has(key)) << key;
        EXPECT_EQ(ErrorOf([&] { rates.Item(key); }), error_number::kInvalidArgument) << key;
        EXPECT_EQ(ErrorOf([&] { rates.Set(key, Rate()); }), error_number::kInvalidArgument) << key;
    }
}

}  // namespace
}  // namespace varnel::test
