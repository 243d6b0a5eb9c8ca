#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/trial/trial_run.h"

namespace varnel {
namespace {

using test::CollectedBands;
using test::DetailRun;
using test::kRetainedEarnings;
using test::kUnrealized;
using test::Shown;
using test::TrialRun;
using testing::ElementsAre;

using Lines = std::vector<std::string>;

Lines Forwards(const CollectedBands& bands) {
    return Shown(bands, "ghAccount",
                 {"txtGLAcctId", "txtBalanceForward", "lblBalanceForwardType", "txtGPUnrealized",
                  "lblGPUnrealizedType"});
}

Lines LedgerLines(const CollectedBands& bands) {
    return Shown(
        bands, "Detail",
        {"txtSeqNo", "txtDetDate", "txtDebit", "txtCredit", "txtBalance", "lblBalanceType"});
}

Lines Subtotals(const CollectedBands& bands) {
    return Shown(bands, "gfAccount",
                 {"txtDebitTotal", "txtCreditTotal", "txtBalanceTotal", "lblBalanceTotalType"});
}

Lines GrandTotals(const CollectedBands& bands) {
    return Shown(bands, "ReportFooter",
                 {"txtDebitGrandTotal", "txtCreditGrandTotal", "txtBalanceGrandTotal",
                  "lblBalanceGrandTotalType"});
}

TEST(DetailTest, BringsBalancesForwardAndRunsOnFromThem) {
    TrialRun run = DetailRun();
    run.chart = {{1'010}, {1'020}};
    run.Post(1'010, "2025-01-31", "50");
    run.Post(1'010, "2025-02-01", "-90");
    run.Post(1'010, "2025-03-31", "1040");
    run.Post(1'020, "2025-01-31", "-3");
    run.Post(1'020, "2025-02-02", "3");
    run.Post(1'020, "2025-04-01", "8");
    const auto bands = run();
    EXPECT_THAT(Forwards(bands), ElementsAre("1010|50.00|DT||", "1020|3.00|CT||"));
    EXPECT_THAT(LedgerLines(bands),
                ElementsAre("2|2025-02-01||90.00|40.00|CT", "3|2025-03-31|1,040.00||1,000.00|DT",
                            "5|2025-02-02|3.00||0.00|DT"));
    EXPECT_THAT(Subtotals(bands), ElementsAre("1,040.00|90.00|1,000.00|DT", "3.00|0.00|0.00|DT"));
    EXPECT_THAT(GrandTotals(bands), ElementsAre("1,043.00|90.00|1,000.00|DT"));
}

TEST(DetailTest, IncomeIsBroughtForwardFromItsYearAndTheYearsBeforeInRetainedEarnings) {
    TrialRun run = DetailRun();
    run.chart = {{kRetainedEarnings, 3}, {4'000, 4}};
    run.Post(4'000, "2024-03-01", "-100");
    run.Post(4'000, "2025-01-10", "-3");
    run.Post(4'000, "2025-03-10", "-0.5");
    EXPECT_THAT(Forwards(run()), ElementsAre("3100|100.00|CT||", "4000|3.00|CT||"));
    run.report->IReport_DateFrom(Date::ParseIso("2024-06-01"));  // Of the year before.
    EXPECT_THAT(Forwards(run()), ElementsAre("3100|100.00|CT||", "4000|0.00|DT||"));
}

TEST(DetailTest, WhatHasNeitherLinesNorBalanceIsLeftOutWholeUnlessAskedFor) {
    TrialRun run = DetailRun();
    run.chart = {{1'010}, {1'020}, {1'030}};
    run.Post(1'020, "2025-01-15", "5");
    run.Post(1'030, "2025-02-15", "2");
    run.Post(1'030, "2025-02-16", "-2");
    auto bands = run();
    EXPECT_THAT(Forwards(bands), ElementsAre("1020|5.00|DT||", "1030|0.00|DT||"));
    EXPECT_THAT(Subtotals(bands), ElementsAre("0.00|0.00|5.00|DT", "2.00|2.00|0.00|DT"));
    EXPECT_EQ(bands.Of("Detail").size(), 2u);
    run.IncludeZeroBalances();
    bands = run();
    EXPECT_EQ(Forwards(bands).at(0), "1010|0.00|DT||");
    EXPECT_EQ(Subtotals(bands).at(0), "0.00|0.00|0.00|DT");
    EXPECT_EQ(bands.Of("Detail").size(), 2u);
}

/// 1030: 100 USD at 130 brought forward, 20 USD at 24 in the period.
void PostForeign(TrialRun& run) {
    run.chart = {{1'030, 1, 2}, {kUnrealized, 5}, {6'000}};
    run.Post(1'030, "2025-01-10", "130", "100", 2);
    run.Post(1'030, "2025-02-10", "24", "20", 2);
    run.Post(1'030, "2025-02-11", "1", "0", 1);
}

TEST(DetailTest, RevaluesForwardsAndLinesAndTakesTheDifferenceToTheUnrealizedAccount) {
    TrialRun run = DetailRun();
    PostForeign(run);
    run.Revalue();
    const auto bands = run();
    // 123.45 - 130 + 24.69 - 24 = -5.86
    EXPECT_THAT(Forwards(bands),
                ElementsAre("1030|123.45|DT||", "5900|0.00|DT|5.86|DT", "6000|0.00|DT||"));
    EXPECT_THAT(LedgerLines(bands),
                ElementsAre("2|2025-02-10|24.69||148.14|DT", "3|2025-02-11|1.00||149.14|DT"));
    // A difference there is prints the subtotals of accounts of zero too.
    EXPECT_THAT(Subtotals(bands),
                ElementsAre("25.69|0.00|149.14|DT", "0.00|0.00|5.86|DT", "0.00|0.00|0.00|DT"));
    EXPECT_THAT(GrandTotals(bands), ElementsAre("25.69|0.00|155.00|DT"));
    const auto headers = bands.Of("ghAccount");
    EXPECT_EQ(headers[1]["txtGPUnrealized"].tag, "GLUnrealized|5900");
    EXPECT_GT(headers[1].height, headers[0].height);
    EXPECT_EQ(headers[2].height, headers[0].height);
}

TEST(DetailTest, ALossIsTakenFromTheUnrealizedAccount) {
    TrialRun run = DetailRun();
    run.chart = {{1'030, 1, 2}, {kUnrealized, 5}};
    run.Post(1'030, "2025-01-10", "120", "100", 2);
    run.Post(kUnrealized, "2025-01-11", "1");
    run.Revalue();
    const auto bands = run();
    EXPECT_EQ(Forwards(bands).at(1), "5900|1.00|DT|3.45|CT");
    EXPECT_EQ(Subtotals(bands).at(1), "0.00|0.00|2.45|CT");
}

TEST(DetailTest, KeysLeadToTheDocumentOnTheUnrealizedAccountToItself) {
    TrialRun run = DetailRun();
    run.chart = {{1'010}, {kRetainedEarnings, 3}, {kUnrealized, 5}};
    for (const auto& account : run.chart) run.Post(account.id, "2025-02-15", "1");
    const auto bands = run();
    std::vector<std::string> keys;
    for (const auto& band : bands.bands)
        if (band.section == "ghAccount")
            keys.push_back(band["txtBalanceForward"].tag);
        else if (band.section == "Detail")
            keys.push_back(band["txtDebit"].tag);
    EXPECT_THAT(keys, ElementsAre("1010", "INV|101", "", "INV|102", "GLUnrealized|5900",
                                  "GLUnrealized|5900"));
}

TEST(DetailTest, ForeignAmountsHaveTheCodeOfTheirLine) {
    TrialRun run = DetailRun();
    run.chart = {{1'030, 1, 2}};
    run.Post(1'030, "2025-02-10", "2000", "-1234", 3);
    run.Post(1'030, "2025-02-11", "1", "0", 1);
    const Lines columns{"txtCurrency", "txtCurrencyCode"};
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
