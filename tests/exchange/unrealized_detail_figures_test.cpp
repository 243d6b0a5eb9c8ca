#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/exchange/unrealized_detail_run.h"

namespace varnel::test {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

TEST(UnrealizedDetailFiguresTest, AZeroAmountIsNotPrintedAndCountsAllTheSame) {
    DetailRun run;
    ForeignLine null = Line("0", "7");
    null.foreign = Variant::Null{};
    const auto bands = run({Line("100", "130"), Line("0", "-5.50"), Line("20", "0"), null});
    EXPECT_THAT(DetailFigures(bands), ElementsAre("100.00 130.00 137.25 7.25", "- -5.50 0.00 5.50",
                                                  "20.00 - 27.45 27.45", "- 7.00 0.00 -7.00"));
    EXPECT_EQ(bands.Of("Detail")[1]["txtForeign"].value, ControlValue());
    EXPECT_EQ(FooterFigures(bands, "Period"), "120.00 131.50 164.70 33.20");
}

TEST(UnrealizedDetailFiguresTest, RowsInOtherCurrenciesAreNotBroughtForward) {
    DetailRun run;
    run.Forward({{"500", "735", 3}, {"1000", "1250"}, {"0", "80", 1}, {"0", "9", Variant::Null{}}});
    EXPECT_EQ(ForwardFigures(run({Line("1", "1")})), "1,000.00 1,250.00 1,372.50 122.50");
}

TEST(UnrealizedDetailFiguresTest, TheForwardIsAtBookedRatesWhenNothingIsRevaluedTheLinesAreNot) {
    DetailRun run;
    const auto rates = std::make_shared<RateCollection>();
    rates->Set(2, Rate::Parse("1.40"));
    run.Designer().Put("IExchangeRates_ExchangeRates", ObjectRef(rates));
    run.Designer().Put("IExchangeRates_Reevaluate", false);
    run.Designer().Put("RatesPreset", true);
    run.Forward({{"1000", "1250", 2, "1.3333"}});
    const auto bands = run({Line("100", "130")});
    EXPECT_EQ(ForwardFigures(bands), "1,000.00 1,250.00 1,333.30 83.30");
    EXPECT_THAT(DetailFigures(bands), ElementsAre("100.00 130.00 140.00 10.00"));
}

TEST(UnrealizedDetailFiguresTest, ForeignAmountsHaveTheDecimalsOfTheirCurrencyHomeAmountsTwo) {
    DetailRun run;
    run.host->company.currency_info.records[1].decimals = 0;
    run.Forward({{"500", "600"}});
    const auto bands = run({Line("1000", "1300")});
    EXPECT_THAT(DetailFigures(bands), ElementsAre("1,000 1,300.00 1,372.50 72.50"));
    EXPECT_EQ(ForwardFigures(bands), "500 600.00 686.25 86.25");
    EXPECT_EQ(FooterFigures(bands, "Closing"), "1,500 1,900.00 2,058.75 158.75");
}

TEST(UnrealizedDetailFiguresTest, ACompanyOfOneCurrencyNeedsNoRate) {
    DetailRun run;
    run.host->company.currency_info.records.resize(1);
    run.Designer().Put("ExCurrencyId", 1);
    const auto bands = run({Line("100", "130")});
    EXPECT_THAT(DetailFigures(bands), ElementsAre("100.00 130.00 130.00 0.00"));
    EXPECT_THAT(run.host->message_boxes, testing::IsEmpty());
}

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
