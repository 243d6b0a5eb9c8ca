#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "tests/exchange/unrealized_detail_run.h"

namespace varnel {
namespace {

using test::DetailRun;
using test::Line;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

std::string In(const std::string& procedure) {
    return "\r\nin Varnel.dsrUnRealExchProfitlossDetail." + procedure + " at line ";
}

TEST(UnrealizedDetailFailureTest, AMissingRateIsToldOnceAndShowsNoFigure) {
    DetailRun run;
    run.host->company.currency_info.rate_table.clear();
    const auto bands = run({Line("100", "130"), Line("200", "260")});
    EXPECT_THAT(run.host->message_boxes,
                ElementsAre(AllOf(StartsWith("There is no exchange rate for USD at 2025-03-31"),
                                  HasSubstr(In("ActiveReport_ReportStart")))));
    EXPECT_TRUE(bands.Of("Detail").empty());
    EXPECT_EQ(FooterFigures(bands, "Period"), "- - - -");
    EXPECT_EQ(FooterFigures(bands, "Closing"), "- - - -");
}

TEST(UnrealizedDetailFailureTest, PresetRatesWithoutTheCurrencyAreAnErrorTooAndSoAreNone) {
    for (const bool given : {true, false}) {
        DetailRun run;
        if (given)
            run.Designer().Put("IExchangeRates_ExchangeRates",
                               ObjectRef(std::make_shared<RateCollection>()));
        run.Designer().Put("IExchangeRates_ExchangeRatesDate", "31 March");
        run.Designer().Put("RatesPreset", true);
        const auto bands = run({Line("100", "130")});
        EXPECT_THAT(run.host->message_boxes,
                    ElementsAre(StartsWith("There is no exchange rate for USD at 31 March\r\n")));
        EXPECT_TRUE(bands.Of("Detail").empty());
    }
}

TEST(UnrealizedDetailFailureTest, AForwardThatCannotBeHadIsBlankAndSoIsTheClosingBalance) {
    DetailRun run;
    run.host->database.Answer(test::kBalanceStatement, {{"ExCurrencyId", "AcctBalHome"}, {}});
    const auto bands = run({Line("100", "130")});
    ASSERT_EQ(run.host->message_boxes.size(), 1u);
    EXPECT_THAT(run.host->message_boxes[0],
                AllOf(StartsWith("The row set has no column"), HasSubstr(In("GetAccountBalance"))));
    EXPECT_EQ(ForwardFigures(bands), "- - - -");
    EXPECT_EQ(FooterFigures(bands, "Period"), "100.00 130.00 137.25 7.25");
    EXPECT_EQ(FooterFigures(bands, "Closing"), "- - - -");
}

TEST(UnrealizedDetailFailureTest, ALineThatCannotBeReadIsBlankAndLeavesNoKeyAndNoTotal) {
    DetailRun run;
    auto unreadable = Line("0", "5");
    unreadable.foreign = "12,50";
    const auto bands = run({Line("100", "130"), unreadable, Line("1", "1")});
    ASSERT_EQ(run.host->message_boxes.size(), 1u);
    EXPECT_THAT(run.host->message_boxes[0],
                AllOf(HasSubstr("12,50"), HasSubstr(In("Detail_Format"))));
    EXPECT_THAT(DetailFigures(bands),
                ElementsAre("100.00 130.00 137.25 7.25", "- - - -", "1.00 1.00 1.37 0.37"));
    EXPECT_EQ(bands.Of("Detail")[1]["txtGain"].tag, "");
    EXPECT_EQ(FooterFigures(bands, "Period"), "- - - -");
    EXPECT_EQ(FooterFigures(bands, "Closing"), "- - - -");
}

TEST(UnrealizedDetailFailureTest, AnAccountThatTheCompanyDoesNotHaveEndsTheStart) {
    DetailRun run;
    run.Designer().Put("GLAcctId", 4);
    const auto bands = run({Line("100", "130")});
    ASSERT_EQ(run.host->message_boxes.size(), 1u);
    EXPECT_THAT(run.host->message_boxes[0],
                AllOf(HasSubstr("\"4\""), HasSubstr(In("ActiveReport_ReportStart"))));
    EXPECT_TRUE(bands.Of("Detail").empty());
}

/// What came of a run in which one host call failed.
struct Outcome {
    test::CollectedBands bands;
    std::vector<std::string> messages;
    std::string error;  // That reached the caller.
    int calls = 0;
};

Outcome RunWithFault(int failing) {
    const auto host = std::make_shared<test::MemoryHost>();
    host->calls.FailAt(failing);
    Outcome outcome;
    try {
        DetailRun run(host);
        run.Forward({{"1000", "1250"}, {"500", "735", 3}});
        outcome.bands = run({Line("100", "130"), Line("-40", "-52"), Line("7", "9")});
    } catch (const Error& error) {
        outcome.error = error.Description();
    }
    outcome.messages = host->message_boxes;
    outcome.calls = host->calls.Count();
    return outcome;
}

/// Amounts of every band with their place in the run.
std::vector<std::string> Amounts(const test::CollectedBands& bands) {
    std::vector<std::string> amounts = test::DetailFigures(bands);
    for (const auto& line : {test::ForwardFigures(bands), test::FooterFigures(bands, "Period"),
                             test::FooterFigures(bands, "Closing")})
        amounts.push_back(line);
    std::vector<std::string> words;
    for (const auto& line : amounts) {
        std::istringstream in(line);
        for (std::string word; in >> word;) words.push_back(word);
    }
    return words;
}

TEST(UnrealizedDetailFailureTest, NoHostCallFailsSilentlyOrLeavesAWrongFigure) {
    const Outcome right = RunWithFault(0);
    const auto expected = Amounts(right.bands);
    ASSERT_EQ(FooterFigures(right.bands, "Closing"), "1,067.00 1,337.00 1,464.46 127.46");
    int told = 0;
    for (int k = 1; k <= right.calls; ++k) {
        SCOPED_TRACE("host call " + std::to_string(k));
        const Outcome outcome = RunWithFault(k);
        const std::string failure = "Host call " + std::to_string(k) + ", ";
        ASSERT_THAT(outcome.error + (outcome.messages.empty() ? "" : outcome.messages[0]),
                    HasSubstr(failure));
        if (!outcome.error.empty()) continue;
        ++told;
        EXPECT_THAT(outcome.messages[0], testing::MatchesRegex(".*\r\nin Varnel\\.dsr[A-Za-z]+\\."
                                                               "[A-Za-z_]+ at line [1-9][0-9]*"));
        const auto shown = Amounts(outcome.bands);
        const bool empty = outcome.bands.Of("Detail").empty();
        for (std::size_t i = 0; i < shown.size(); ++i)
            EXPECT_TRUE(shown[i] == "-" || (!empty && shown[i] == expected[i])) << shown[i];
    }
    EXPECT_GT(told, 50);
}

}  // namespace
}  // namespace varnel
