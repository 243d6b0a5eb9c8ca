#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/exchange/unrealized_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::MatchesRegex;

TEST(UnrealizedFailureTest, ARateThatTheCompanyHasNotIsToldWhereABalanceNeedsIt) {
    UnrealizedRun run;
    run.host->company.currency_info.rate_table[3].clear();
    const auto bands = run({{1'060, 2, "100", "130"}});
    EXPECT_TRUE(run.host->message_boxes.empty()) << "no balance in EUR";
    EXPECT_NE(bands.Texts("ReportFooter", "txtGainGrandTotal").at(0), "");

    const auto missing = run({{1'065, 3, "1", "1"}, {1'060, 2, "100", "130"}});
    EXPECT_THAT(
        run.host->message_boxes,
        ElementsAre(MatchesRegex("There is no exchange rate for EUR on or before 2025-03-31\r\n"
                                 "in Varnel.dsrUnRealExchProfitloss.Detail_Format at "
                                 "line [1-9][0-9]*")));
    EXPECT_THAT(missing.Texts("ReportFooter", "txtGainGrandTotal"), ElementsAre(""));
}

TEST(UnrealizedFailureTest, ABalanceThatCannotBeValuedLeavesBlankWhatItBelongsToAndIsToldOnce) {
    UnrealizedRun run;
    run.report->IReport_ReportDesigner()->Put("RatesPreset", true);
    const auto rates = std::make_shared<RateCollection>();
    rates->Set(2, Rate::Parse("1.5"));
    run.Rates().IExchangeRates_ExchangeRates(rates);
    run.Rates().IExchangeRates_Reevaluate(true);
    const auto bands = run({{1'065, 3, "1", "1"},
                            {1'065, 3, "2", "2"},
                            {1'060, 2, "100", "130"},
                            {1'200, 2, "10", "13"}});
    ASSERT_EQ(run.host->message_boxes.size(), 1u);
    EXPECT_THAT(run.host->message_boxes[0], HasSubstr("no exchange rate for EUR"));
    EXPECT_THAT(run.host->message_boxes[0], HasSubstr(".Detail_Format at line "));
    EXPECT_THAT(bands.Texts("gfAccountType", "txtAccount"),
                ElementsAre("1065 - Bank EUR", "1060 - Bank USD", "1200 - Receivables"));
    EXPECT_THAT(bands.Texts("gfAccountType", "txtGain"), ElementsAre("", "20.00", "2.00"));
    EXPECT_THAT(bands.Texts("gfAccountType", "txtForeign"), ElementsAre("", "100.00", "10.00"));
    EXPECT_THAT(bands.Texts("gfCurrency", "txtGainTotal"), ElementsAre("", "22.00"));
    EXPECT_THAT(bands.Texts("ReportFooter", "txtGainGrandTotal"), ElementsAre(""));
}

}  // namespace
}  // namespace varnel::test
