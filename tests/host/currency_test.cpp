#include "host/currency.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

#include "tests/support/error_of.h"

namespace varnel::test {
namespace {

constexpr auto kLargest = Currency::FromScaled(std::numeric_limits<std::int64_t>::max());
constexpr auto kSmallest = Currency::FromScaled(std::numeric_limits<std::int64_t>::min());
constexpr auto kGrain = Currency::FromScaled(1);

TEST(CurrencyTest, AResultThatDoesNotFitIsError6AndLeavesTheTotalAsItWas) {
    Currency high = kLargest;
    EXPECT_EQ(ErrorOf([&] { high += kGrain; }), error_number::kOverflow);
    EXPECT_EQ(high, kLargest);

    Currency low = kSmallest;
    EXPECT_EQ(ErrorOf([&] { low -= kGrain; }), error_number::kOverflow);
    EXPECT_EQ(low, kSmallest);

    EXPECT_EQ(ErrorOf([] { (void)-kSmallest; }), error_number::kOverflow);
    EXPECT_EQ(ErrorOf([] { (void)kSmallest.Abs(); }), error_number::kOverflow);
    EXPECT_EQ(ErrorOf([] { (void)Currency::FromWhole(922'337'203'685'478); }),
              error_number::kOverflow);
    EXPECT_EQ(Currency::FromWhole(922'337'203'685'477).Scaled(), 9'223'372'036'854'770'000);
}

TEST(CurrencyTest, TheLimitsThemselvesAreReached) {
    EXPECT_EQ(Currency::FromScaled(std::numeric_limits<std::int64_t>::max() - 1) + kGrain,
              kLargest);
    EXPECT_EQ(Currency() - kLargest - kGrain, kSmallest);
    EXPECT_EQ((-kLargest).Abs(), kLargest);
}

struct TextCase {
    const char* text;
    std::int64_t scaled;
};

constexpr TextCase kTexts[] = {{"50", 500'000},
                               {"-1234.50", -12'345'000},
                               {"+0.0001", 1},
                               {".5", 5'000},
                               {"7.", 70'000},
                               {"000000000000000000000000000012", 120'000},
                               {"0.00004999", 0},
                               {"0.00005", 1},
                               {"-0.00005", -1},
                               {"922337203685477.5807", std::numeric_limits<std::int64_t>::max()},
                               {"-922337203685477.5808", std::numeric_limits<std::int64_t>::min()}};

TEST(CurrencyTest, TextIsReadExactly) {
    for (const auto& [text, scaled] : kTexts)
        EXPECT_EQ(Currency::Parse(text).Scaled(), scaled) << text;
}

TEST(CurrencyTest, TextThatIsNoAmountIsError13NamingIt) {
    for (const char* text : {"", "-", ".", "+-1", "1,234.50", " 1", "1 ", "1.2.3", "12a", "1e3",
                             "922337203685477.5808", "-922337203685477.5809",
                             "99999999999999999999999999999999999999999999999999"}) {
        std::string description;
        EXPECT_EQ(ErrorOf([&] { Currency::Parse(text); }, &description),
                  error_number::kTypeMismatch)
            << text;
        EXPECT_THAT(description, testing::HasSubstr("\"" + std::string(text) + "\""));
    }
}

TEST(CurrencyTest, WritesAtLeastTheDecimalsAskedForAndNoUselessZeros) {
    const auto amount = Currency::FromScaled(-12'345'000);
    EXPECT_EQ(amount.ToText(), "-1234.5000");
    EXPECT_EQ(amount.ToText(2), "-1234.50");
    EXPECT_EQ(amount.ToText(0), "-1234.5");
    EXPECT_EQ(Currency().ToText(0), "0");
    EXPECT_EQ(Currency::FromScaled(-1).ToText(0), "-0.0001");
    EXPECT_EQ(kLargest.ToText(), "922337203685477.5807");
    EXPECT_EQ(kSmallest.ToText(), "-922337203685477.5808");
}

struct RoundCase {
    const char* amount;
    int decimals;
    const char* rounded;
};

constexpr RoundCase kRounded[] = {{"1.005", 2, "1.01"},
                                  {"-1.005", 2, "-1.01"},
                                  {"1.0049", 2, "1"},
                                  {"-1.0049", 2, "-1"},
                                  {"2.675", 2, "2.68"},
                                  {"2.5", 0, "3"},
                                  {"-2.5", 0, "-3"},
                                  {"2.4999", 0, "2"},
                                  {"1.2345", 4, "1.2345"},
                                  {"1.25", 1, "1.3"},
                                  {"922337203685477.5807", 2, "922337203685477.58"}};

TEST(CurrencyTest, RoundingGoesHalfAwayFromZeroAndBeyondTheLimitIsError6) {
    for (const auto& [amount, decimals, rounded] : kRounded)
        EXPECT_EQ(Round(Currency::Parse(amount), decimals), Currency::Parse(rounded)) << amount;
    EXPECT_EQ(ErrorOf([] { Round(kLargest, 0); }), error_number::kOverflow);
    EXPECT_EQ(ErrorOf([] { Round(kSmallest, 0); }), error_number::kOverflow);
}

// The binary number next to each amount of four decimals must come back as that amount. Above
// 2.7e11 a plain multiplication by 10,000 gets some of them wrong.
TEST(CurrencyTest, BinaryNumbersBelow5e11BecomeTheAmountTheyStandFor) {
    for (const std::int64_t units :
         {0LL, 7LL, 1'234'567LL, 274'877'906'944LL, 300'000'000'000LL, 400'000'000'001LL,
          449'999'999'999LL, 450'359'962'737LL, 499'999'999'999LL}) {
        for (std::int64_t fraction = 0; fraction < 10'000; fraction += 7) {
            const std::int64_t scaled = units * 10'000 + fraction;
            const double binary =
                std::strtod(Currency::FromScaled(scaled).ToText().c_str(), nullptr);
            ASSERT_EQ(Currency::FromDouble(binary).Scaled(), scaled);
            ASSERT_EQ(Currency::FromDouble(-binary).Scaled(), -scaled);
        }
    }
}

TEST(CurrencyTest, BinaryNumbersThatDoNotFitAreError6) {
    for (const double value : {922'337'203'685'478.0, -922'337'203'685'478.0, 1e300,
                               std::numeric_limits<double>::infinity(),
                               -std::numeric_limits<double>::infinity(), std::nan("")})
        EXPECT_EQ(ErrorOf([&] { Currency::FromDouble(value); }), error_number::kOverflow) << value;
    EXPECT_EQ(Currency::FromDouble(922'337'203'685'477.0).ToText(0), "922337203685477");
    EXPECT_EQ(Currency::FromDouble(-922'337'203'685'477.0).ToText(0), "-922337203685477");
}

}  // namespace
}  // namespace varnel::test
