#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/exchange/unrealized_detail_run.h"

namespace varnel::test {
namespace {

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

}  // namespace
}  // namespace varnel::test
