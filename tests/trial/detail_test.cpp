#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/trial/trial_run.h"

namespace varnel {
namespace {

using test::DetailRun;
using test::kUnrealized;
using test::Shown;
using test::TrialRun;
using testing::ElementsAre;

TEST(DetailTest, RevaluesForwardsAndLinesAndTakesTheDifferenceToTheUnrealizedAccount) {
    TrialRun run = DetailRun();
    run.chart = {{1'030, 1, 2}, {kUnrealized, 5}, {6'000}};
    run.Post(1'030, "2025-01-10", "130", "100", 2);
    run.Post(1'030, "2025-02-10", "24", "20", 2);
    run.Post(1'030, "2025-02-11", "1", "0", 1);
    run.Revalue();
    const auto bands = run();
    // 123.45 - 130 + 24.69 - 24 = -5.86
    EXPECT_THAT(Shown(bands, "ghAccount",
                      {"txtGLAcctId", "txtBalanceForward", "lblBalanceForwardType",
                       "txtGPUnrealized", "lblGPUnrealizedType"}),
                ElementsAre("1030|123.45|DT||", "5900|0.00|DT|5.86|DT", "6000|0.00|DT||"));
    EXPECT_THAT(
        Shown(bands, "Detail",
              {"txtSeqNo", "txtDetDate", "txtDebit", "txtCredit", "txtBalance", "lblBalanceType"}),
        ElementsAre("2|2025-02-10|24.69||148.14|DT", "3|2025-02-11|1.00||149.14|DT"));
    // A difference there is prints the subtotals of accounts of zero too.
    EXPECT_THAT(
        Shown(bands, "gfAccount",
              {"txtDebitTotal", "txtCreditTotal", "txtBalanceTotal", "lblBalanceTotalType"}),
        ElementsAre("25.69|0.00|149.14|DT", "0.00|0.00|5.86|DT", "0.00|0.00|0.00|DT"));
    EXPECT_THAT(Shown(bands, "ReportFooter",
                      {"txtDebitGrandTotal", "txtCreditGrandTotal", "txtBalanceGrandTotal",
                       "lblBalanceGrandTotalType"}),
                ElementsAre("25.69|0.00|155.00|DT"));
    const auto headers = bands.Of("ghAccount");
    EXPECT_EQ(headers[1]["txtGPUnrealized"].tag, "GLUnrealized|5900");
    EXPECT_GT(headers[1].height, headers[0].height);
    EXPECT_EQ(headers[2].height, headers[0].height);
}

TEST(DetailTest, ForeignAmountsHaveTheCodeOfTheirLine) {
    TrialRun run = DetailRun();
    run.chart = {{1'030, 1, 2}};
    run.Post(1'030, "2025-02-10", "2000", "-1234", 3);
    run.Post(1'030, "2025-02-11", "1", "0", 1);
    const std::vector<std::string> columns{"txtCurrency", "txtCurrencyCode"};
    EXPECT_THAT(Shown(run(), "Detail", columns), ElementsAre("|", "|"));
    run.report->IReport_DisplayForeignCurrency(true);
    const auto bands = run();
    EXPECT_THAT(Shown(bands, "Detail", columns), ElementsAre("-1,234.00 EUR|EUR", "|"));
    EXPECT_TRUE(bands.Of("PageHeader")[0]["lblCurrencyCap"].visible);
    EXPECT_EQ(bands.Of("Detail")[0]["txtDetDesc"].box.Right(),
              bands.Of("Detail")[0]["txtCurrency"].box.left - 60);
}

}  // namespace
}  // namespace varnel
