#include "reports/exchange/realized_gain.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/error_of.h"
#include "tests/support/memory_host.h"

namespace varnel::reports {
namespace {

using testing::ElementsAre;

constexpr std::int32_t kCustomer = 1, kSupplier = 2, kDeposit = 3;

AppliedPayment Applied(std::int32_t type, const char* amount, const char* discount,
                       const char* invoice_rate, const char* payment_rate) {
    return {type, Currency::Parse(amount), Currency::Parse(discount), Rate::Parse(invoice_rate),
            Rate::Parse(payment_rate)};
}

// Sheets of ordinary payments are worked through the whole report; these are the edges.
TEST(RealizedGainTest, IsTheSheets) {
    const struct {
        std::int32_t type;
        const char *amount, *discount, *invoice_rate, *payment_rate, *gain;
    } sheets[] = {
        // At and beside the half cent, away from zero: 50 x 0.0001 = 0.005.
        {kCustomer, "50", "0", "1.35", "1.3501", "0.01"},
        {kCustomer, "50", "0", "1.35", "1.3499", "-0.01"},
        {kCustomer, "49.99", "0", "1.35", "1.3501", "0.00"},
        // Rates of six decimals: 1234.56 x 0.022387 = 27.63809472.
        {kCustomer, "1234.56", "0", "1.350125", "1.372512", "27.64"},
        {kDeposit, "1234.56", "0", "1.350125", "1.372512", "27.64"},
        // 10.08 x 1.36 = 13.7088, 0.07 x 1.35 = 0.0945, 10.01 x 1.35 = 13.5135:
        // 13.71 - (0.09 + 13.51) = 0.11, where one rounding of 10.08 x 0.01 would give 0.10.
        {kCustomer, "10.01", "0.07", "1.35", "1.36", "0.11"},
        // At the invoice's own rate: 10.08 x 1.35 = 13.608, 13.61 - (0.09 + 13.51).
        {kCustomer, "10.01", "0.07", "1.35", "1.35", "0.01"},
        // 707.17 x 0.731053 = 516.97875001, 7.07 x 0.728415 = 5.14989405,
        // 700.10 x 0.728415 = 509.9633415: 516.98 - (5.15 + 509.96).
        {kSupplier, "700.10", "7.07", "0.731053", "0.728415", "1.87"},
        // Money that went back.
        {kCustomer, "-1000", "0", "1.35", "1.3725", "-22.50"},
        {kCustomer, "-10.01", "-0.07", "1.35", "1.36", "-0.11"},  // -13.71 + (0.09 + 13.51)
        {kSupplier, "-1000", "0", "1.35", "1.3725", "22.50"},
        // 499,999,999,999.99 x 0.0225 = 11,249,999,999.999775.
        {kCustomer, "499999999999.99", "0", "1.35", "1.3725", "11250000000.00"},
        // Other kinds of payment realize nothing.
        {0, "1000", "0", "1.35", "1.3725", "0.00"},
        {4, "980", "20", "1.35", "1.3725", "0.00"}};
    test::MemoryHost host;
    for (const auto& [type, amount, discount, invoice_rate, payment_rate, gain] : sheets) {
        const auto payment = Applied(type, amount, discount, invoice_rate, payment_rate);
        EXPECT_EQ(RealizedGain(host.company.currency_info, payment).ToText(2), gain)
            << type << ", " << amount;
    }
}

TEST(RealizedGainRoundingTest, IsTheHostsOncePerProductAndOnceAtTheEnd) {
    test::MemoryHost plain, discounted;
    RealizedGain(plain.company.currency_info, Applied(kCustomer, "1000", "0", "1.35", "1.3725"));
    EXPECT_THAT(plain.calls.Names(), ElementsAre("RoundProduct"));
    RealizedGain(discounted.company.currency_info,
                 Applied(kSupplier, "980", "20", "1.35", "1.3725"));
    EXPECT_THAT(discounted.calls.Names(),
                ElementsAre("RoundProduct", "RoundProduct", "RoundProduct", "Round"));
}

TEST(RealizedGainRoundingTest, WhatDoesNotFitIsAnOverflow) {
    test::MemoryHost host;
    const auto gain_of = [&](const AppliedPayment& payment) {
        return test::ErrorOf([&] { RealizedGain(host.company.currency_info, payment); });
    };
    // More than 922,337,203,685,477.5807 cannot be held.
    EXPECT_EQ(gain_of(Applied(kCustomer, "900000000000000", "0", "0", "2")), 6);
    EXPECT_EQ(gain_of(Applied(kCustomer, "900000000000000", "900000000000000", "1", "1")), 6);
    EXPECT_EQ(gain_of(Applied(kCustomer, "0", "0", "-90000000000", "90000000000")), 6);
}

}  // namespace
}  // namespace varnel::reports
