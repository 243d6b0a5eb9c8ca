#include "render/pdf/pdf_number.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>

namespace varnel::render {
namespace {

std::string Written(Hundredths value) {
    char digits[kLongestNumber];
    return std::string(digits, WriteHundredths(digits, value));
}

std::string Decimal(double value) {
    std::string out;
    AppendDecimal(out, value);
    return out;
}

TEST(PdfNumber, WritesHundredthsWithoutSuperfluousZeros) {
    EXPECT_EQ(Written(0), "0");
    EXPECT_EQ(Written(5), "0.05");
    EXPECT_EQ(Written(50), "0.5");
    EXPECT_EQ(Written(-7), "-0.07");
    EXPECT_EQ(Written(1200), "12");
    EXPECT_EQ(Written(-100001), "-1000.01");
}

TEST(PdfNumber, RoundsLengthsToTheNearestHundredth) {
    EXPECT_EQ(ToHundredths(1.234), 123);
    EXPECT_EQ(ToHundredths(1.236), 124);
    EXPECT_EQ(ToHundredths(-1.236), -124);
    EXPECT_EQ(ToHundredths(0.1 + 0.2), 30);
}

TEST(PdfNumber, RefusesWhatIsNoLength) {
    for (const double bad : {std::numeric_limits<double>::quiet_NaN(),
                             std::numeric_limits<double>::infinity(), -1e7, 1e300}) {
        EXPECT_THROW(ToHundredths(bad), std::invalid_argument);
    }
}

TEST(PdfNumber, WritesUpToThreeDecimals) {
    EXPECT_EQ(Decimal(570.80078125), "570.801");
    EXPECT_EQ(Decimal(0.5), "0.5");
    EXPECT_EQ(Decimal(-0.0004), "0");
    EXPECT_EQ(Decimal(-12.25), "-12.25");
    EXPECT_EQ(Decimal(100), "100");
    EXPECT_EQ(Decimal(0.007), "0.007");
}

}  // namespace
}  // namespace varnel::render
