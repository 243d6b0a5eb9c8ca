#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/trial/trial_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

void TakeRatesAway(TrialRun& run) {
    dynamic_cast<IExchangeRates&>(*run.report)
        .IExchangeRates_ExchangeRates(std::make_shared<RateCollection>());
}

TEST(TrialFailureTest, WhatCannotBeRevaluedLeavesTotalsAndTheUnrealizedAccountBlank) {
    TrialRun run = SummaryRun();
    run.FilterSegments("3");
    run.chart = {{1'010, 1, 2}, {1'020}, {kUnrealized, 5}, {6'000}};
    run.Post(1'010, "2025-01-10", "130", "100", 2);
    run.Post(1'020, "2025-01-10", "-5");
    run.Post(6'000, "2025-01-10", "4");
    run.Revalue();
    TakeRatesAway(run);
    const auto bands = run();
    EXPECT_THAT(Shown(bands, "Detail", {"txtAcctId", "txtDebit", "txtCredit"}),
                ElementsAre("1010||", "1020||5.00", "5900||", "6000|4.00|"));
    EXPECT_THAT(
        Shown(bands, "ReportFooter", {"txtCreditAdj", "txtDebitGrandTotal", "txtCreditGrandTotal"}),
        ElementsAre("||"));
    ASSERT_EQ(run.host->message_boxes.size(), 2u);
    EXPECT_THAT(run.host->message_boxes[0], HasSubstr("no exchange rate for USD"));
    EXPECT_THAT(run.host->message_boxes[1], HasSubstr("unrealized gain or loss"));
}

TEST(TrialFailureTest, TheDetailTellsALineThatCannotBeRevaluedOncePerAccount) {
    TrialRun run = DetailRun();
    run.chart = {{1'010}, {1'020}};
    run.Post(1'010, "2025-02-10", "24", "20", 2);
    run.Post(1'010, "2025-02-11", "24", "20", 2);
    run.Post(1'010, "2025-02-12", "5");
    run.Post(1'020, "2025-02-12", "6");
    run.Revalue();
    TakeRatesAway(run);
    const auto bands = run();
    EXPECT_THAT(Shown(bands, "Detail", {"txtDebit", "txtBalance"}),
                ElementsAre("|", "|", "5.00|", "6.00|6.00"));
    EXPECT_THAT(Shown(bands, "gfAccount", {"txtDebitTotal", "txtBalanceTotal"}),
                ElementsAre("|", "6.00|6.00"));
    EXPECT_THAT(Shown(bands, "ReportFooter", {"txtDebitGrandTotal", "txtBalanceGrandTotal"}),
                ElementsAre("|"));
    EXPECT_EQ(run.host->message_boxes.size(), 1u);
}

/// A row of 24 CAD for 20 USD, then the unrealized account.
TrialRun ForeignRun(TrialRun run) {
    run.Revalue();
    run.chart = {{1'030, 1, 2}, {kUnrealized, 5}};
    run.Post(1'030, "2025-02-10", "24", "20", 2);
    run.Post(kUnrealized, "2025-01-10", "1");
    run.Prepare();
    return run;
}

TEST(TrialFailureTest, AnAccountThatCannotBeReadMayBeAForeignOne) {
    TrialRun run = ForeignRun(SummaryRun());
    auto accounts = run.Accounts();
    accounts.rows[0][2] = "no type";
    run.host->database.Answer("GLAcct", accounts);
    EXPECT_THAT(Shown(Collect(*run.report->IReport_ReportDesigner()), "Detail",
                      {"txtAcctId", "txtDebit", "txtCredit"}),
                ElementsAre("1030||", "5900||"));
}

TEST(TrialFailureTest, ALineWhoseForeignAmountCannotBeReadMakesTheDifferenceUnknown) {
    TrialRun run = ForeignRun(DetailRun());
    auto lines = run.AccountsWithLines();
    lines.rows[0][11] = "no amount";
    run.host->database.Answer("GLAcct", lines);
    EXPECT_THAT(Shown(Collect(*run.report->IReport_ReportDesigner()), "gfAccount",
                      {"txtDebitTotal", "txtBalanceTotal"}),
                ElementsAre("|", "0.00|"));
}

}  // namespace
}  // namespace varnel::test
