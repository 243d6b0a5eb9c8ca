#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/trial/trial_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

// What it comes to is worked out for many companies: see properties_test.cpp.
TEST(DetailTest, OnlyTheUnrealizedAccountHasALineForTheDifferenceThatLeadsToIt) {
    TrialRun run = DetailRun();
    run.chart = {{1'030, 1, 2}, {kUnrealized, 5}, {6'000}};
    run.Post(1'030, "2025-01-10", "130", "100", 2);
    run.Revalue();
    const auto headers = run().Of("ghAccount");
    ASSERT_EQ(headers.size(), 3u);
    EXPECT_EQ(headers[1]["txtGPUnrealized"].tag, "GLUnrealized|5900");
    EXPECT_GT(headers[1].height, headers[0].height);
    EXPECT_EQ(headers[2].height, headers[0].height);
}

struct ForeignColumn {
    TrialRun run;
    const char *amount, *caption;
};

TEST(ForeignLineTest, ForeignAmountsHaveTheCodeOfTheirLineAndDescriptionsTheRoomOtherwise) {
    ForeignColumn kReports[] = {{DetailRun(), "txtCurrency", "lblCurrencyCap"},
                                {LedgerRun(), "txtForeign", "lblForeignCap"}};
    for (auto& [run, amount, caption] : kReports) {
        run.chart = {{1'030, 1, 2}};
        run.Post(1'030, "2025-02-10", "2000", "-1234", 3);
        run.Post(1'030, "2025-02-11", "1", "1", 1);
        const std::vector<std::string> columns{amount, "txtCurrencyCode"};
        const auto plain = run();
        EXPECT_THAT(Shown(plain, "Detail", columns), ElementsAre("|", "|"));
        run.report->IReport_DisplayForeignCurrency(true);
        const auto bands = run();
        EXPECT_THAT(Shown(bands, "Detail", columns), ElementsAre("-1,234.00 EUR|EUR", "|"));
        EXPECT_TRUE(bands.Of("PageHeader")[0][caption].visible);
        EXPECT_FALSE(plain.Of("PageHeader")[0][caption].visible);
        const auto line = bands.Of("Detail")[0], wide = plain.Of("Detail")[0];
        EXPECT_EQ(line["txtDetDesc"].box.Right(), line[amount].box.left - 60);
        EXPECT_EQ(wide["txtDetDesc"].box.Right(), wide["txtDebit"].box.left - 60);
    }
}

}  // namespace
}  // namespace varnel::test
