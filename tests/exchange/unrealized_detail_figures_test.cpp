#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/exchange/unrealized_detail_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

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

}  // namespace
}  // namespace varnel::test
