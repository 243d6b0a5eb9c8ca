#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/exchange/realized_run.h"

namespace varnel {
namespace {

using test::CollectedBands;
using test::Paid;
using test::RealizedRun;
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

TEST(RealizedFailureTest, ATotalThatOverflowsIsToldAndNeverWraps) {
    RealizedRun run;
    auto large = Paid("900000000000000");
    large.invoice_rate = large.payment_rate = "1";
    const auto bands = run({large, large, Paid("1000")});
    EXPECT_THAT(run.host->message_boxes, ElementsAre(FormA(".*", "Detail_Format")));
    EXPECT_THAT(bands.Texts("gfCurrPmtType", "txtPaidTotal"), ElementsAre(""));
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

TEST(RealizedFailureTest, AQueryThatFailsLeavesAReportWithoutATotal) {
    RealizedRun run;
    const auto bands = test::Collect(*run.report->IReport_ReportDesigner());
    EXPECT_THAT(run.host->message_boxes,
                ElementsAre(FormA("No rows were given for: SELECT.*", "ActiveReport_ReportStart")));
    EXPECT_TRUE(bands.Of("Detail").empty());
    EXPECT_THAT(bands.Texts("ReportFooter", "txtGainGrandTotal"), ElementsAre(""));
}

constexpr std::pair<const char*, const char*> kFigures[] = {
    {"Detail", "txtPmtDate"},       {"Detail", "txtExchangeRate"}, {"Detail", "txtPmtRate"},
    {"Detail", "txtPaid"},          {"Detail", "txtGain"},         {"ghCurrency", "txtCurrency"},
    {"ghCurrPmtType", "txtAccount"}};

// Rows before the report's last run are others, so that leftovers would show.
CollectedBands RunTwice(RealizedRun& run) {
    run({Paid("7000"), Paid("70", 2)});
    return run({Paid("1000"), Paid("400"), Paid("600", 2), Paid("150000", 2, 3)});
}

TEST(RealizedFailureTest, NoHostCallFailsSilentlyOrLeavesAWrongText) {
    RealizedRun sound;
    const int before = sound.host->calls.Count();
    const CollectedBands right = RunTwice(sound);
    ASSERT_TRUE(sound.host->message_boxes.empty());
    const int calls = sound.host->calls.Count();
    for (int k = before + 1; k <= calls; ++k) {
        SCOPED_TRACE("host call " + std::to_string(k));
        RealizedRun run;
        run.host->calls.FailAt(k);
        CollectedBands bands;
        try {
            bands = RunTwice(run);
        } catch (const Error& error) {
            EXPECT_THAT(error.Description(), testing::StartsWith("Host call "));
            continue;
        }
        ASSERT_EQ(run.host->message_boxes.size(), 1u);
        EXPECT_THAT(run.host->message_boxes[0],
                    testing::MatchesRegex("Host call .* failed.*\r\nin Varnel\\.dsr[A-Za-z]+\\."
                                          "[A-Za-z_]+ at line [1-9][0-9]*"));
        for (const auto& [section, control] : kFigures) {
            const auto texts = bands.Texts(section, control);
            const auto expected = right.Texts(section, control);
            for (std::size_t i = 0; i < texts.size() && i < expected.size(); ++i)
                EXPECT_TRUE(texts[i].empty() || texts[i] == expected[i])
                    << control << " shows " << texts[i] << " for " << expected[i];
        }
    }
    EXPECT_GT(calls - before, 100);
}

}  // namespace
}  // namespace varnel
