#include "reports/statements/variance.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/statements/statement_run.h"

namespace varnel::test {
namespace {

using reports::SenseOf;
using reports::VarianceOf;
using testing::ElementsAre;

struct Compared {
    std::int32_t type;
    const char *current, *comparison;
    const char* variance;  // Amount and percent.
};

constexpr Compared kCases[] = {
    // More than before is better.
    {4, "100", "80", "20.00 25.00"},
    {4, "100", "100", "0.00 0.00"},
    {4, "-50", "100", "-150.00 -150.00"},
    {4, "100", "-50", "150.00 300.00"},
    {4, "-100", "-80", "-20.00 -25.00"},
    {4, "100", "0", "100.00 NA"},
    {4, "0", "0", "0.00 NA"},
    {4, "1", "3", "-2.00 -66.67"},
    {4, "999999999.99", "0.01", "999999999.98 9999999999800.00"},
    // Less is.
    {5, "80", "100", "20.00 20.00"},
    {5, "100", "-50", "-150.00 -300.00"},
    {5, "-100", "-200", "-100.00 -50.00"},
    {5, "100", "0", "-100.00 NA"},
    {5, "0.01", "0.03", "0.02 66.67"},
    // By type.
    {1, "120", "100", "20.00 20.00"},
    {2, "120", "100", "20.00 20.00"},
    {3, "120", "100", "20.00 20.00"},
    {6, "120", "100", "-20.00 -20.00"},
    {7, "120", "100", "-20.00 -20.00"},
    {8, "120", "100", "-20.00 -20.00"},
    {9, "120", "100", "-20.00 -20.00"},
    {10, "120", "100", "20.00 20.00"},
};

TEST(VarianceTest, IsFavourableByTypeAndInPercentOfWhatTheComparisonIsWithoutItsSign) {
    HostCalls calls;
    MemoryFormats formats(calls);
    formats.group_mark.clear();
    for (const auto& tried : kCases) {
        const auto variance = VarianceOf(Currency::Parse(tried.current),
                                         Currency::Parse(tried.comparison), SenseOf(tried.type));
        std::string text = variance.amount.ToText(2) + " ";
        if (variance.percent)
            formats.AppendNumber(*variance.percent, 2, text);
        else
            text += "NA";
        EXPECT_EQ(text, tried.variance)
            << tried.current << " after " << tried.comparison << ", type " << tried.type;
    }
}

TEST(VarianceTest, PrintsAsTheHostWritesNumbers) {
    StatementRun run = ComparativeIncomeRun();
    run.chart = {{5'010, 5}, {5'020, 5}};
    run.Post(5'010, "2025-02-10", "3000");
    run.Post(5'010, "2024-02-10", "1");
    run.Post(5'020, "2025-02-10", "1");
    EXPECT_THAT(run.Rows(), ElementsAre("5010|3,000.00|3,000.00|1.00|-2,999.00|-299,900.00",
                                        "5020|1.00|1.00|0.00|-1.00|NA"));
    run.host->formats.decimal_mark = ",";
    run.host->formats.group_mark = " ";
    EXPECT_THAT(run.Rows(), ElementsAre("5010|3 000,00|3 000,00|1,00|-2 999,00|-299 900,00",
                                        "5020|1,00|1,00|0,00|-1,00|NA"));
}

}  // namespace
}  // namespace varnel::test
