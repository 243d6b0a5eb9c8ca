#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/exchange/realized_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

testing::Matcher<std::string> FormA(const std::string& description, const std::string& procedure) {
    return testing::MatchesRegex(description + "\r\nin Varnel\\.dsrRealizedExchProfitloss\\." +
                                 procedure + " at line [1-9][0-9]*");
}

TEST(RealizedFailureTest, AnUnknownCurrencyCostsATextAndNoTotal) {
    RealizedRun run;
    const auto bands = run({Paid("1000", 3, 99)});
    EXPECT_THAT(run.host->message_boxes,
                ElementsAre(FormA("There is no currency 99", "Detail_Format")));
    EXPECT_THAT(bands.Texts("Detail", "txtPaid"), ElementsAre(""));
    EXPECT_THAT(bands.Texts("Detail", "txtGain"), ElementsAre("22.50"));
    EXPECT_THAT(bands.Texts("gfCurrPmtType", "txtPaidTotal"), ElementsAre("1,000.00"));
    EXPECT_THAT(bands.Texts("ReportFooter", "txtGainGrandTotal"), ElementsAre("22.50"));
}

TEST(RealizedFailureTest, AnAmountThatCannotBeReadLeavesTheTotalsItBelongsToBlank) {
    RealizedRun run;
    auto unreadable = Paid("0");
    unreadable.amount = "12,50";
    const auto bands = run({Paid("1000"), unreadable, Paid("2000"), Paid("400", 2)});
    EXPECT_THAT(run.host->message_boxes,
                ElementsAre(FormA("\"12,50\" is not an amount.*", "Detail_Format")));
    EXPECT_THAT(bands.Texts("Detail", "txtPaid"),
                ElementsAre("1,000.00", "", "2,000.00", "400.00"));
    EXPECT_THAT(bands.Texts("Detail", "txtGain"), ElementsAre("22.50", "", "45.00", "-9.00"));
    EXPECT_THAT(bands.Texts("gfCurrPmtType", "txtPaidTotal"), ElementsAre("", "400.00"));
    EXPECT_THAT(bands.Texts("gfCurrPmtType", "txtGainTotal"), ElementsAre("", "-9.00"));
    EXPECT_THAT(bands.Texts("ReportFooter", "txtGainGrandTotal"), ElementsAre(""));
}

TEST(RealizedFailureTest, AnAccountThatTheChartDoesNotHaveIsBlankWithoutAKey) {
    RealizedRun run;
    auto deposit = Paid("1000", 3);
    deposit.account_id = 5;
    const auto bands = run({Paid("1000"), deposit});
    EXPECT_THAT(run.host->message_boxes, ElementsAre(FormA(".*", "ghCurrPmtType_Format")));
    EXPECT_EQ(bands.Of("ghCurrPmtType").at(1)["txtAccount"].text, "");
    EXPECT_EQ(bands.Of("ghCurrPmtType").at(1)["txtAccount"].tag, "");
    EXPECT_THAT(bands.Texts("gfCurrPmtType", "txtGainTotal"), ElementsAre("22.50", "22.50"));
}

}  // namespace
}  // namespace varnel::test
