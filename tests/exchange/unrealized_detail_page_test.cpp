#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/exchange/unrealized_detail_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

TEST(UnrealizedDetailPageTest, IsTheDetailOfThePeriodAtItsRates) {
    DetailRun run;
    run.host->texts = {{30011, "Unrealized &Detail"},
                       {5914, "Exchange rates ({0})"},
                       {5846, "Currency"},
                       {3012, "From"},
                       {3013, "to"}};
    EXPECT_EQ(run.report->IReport_DateDisplayOptions(), DateDisplay::kFromTo);
    const auto header = run({}).Of("PageHeader").at(0);
    EXPECT_EQ(header.Text("hdrTitle"), "Unrealized Detail");
    EXPECT_EQ(header.Text("lblDateFromDateTo"), "From 2025-02-01 to 2025-03-31");
    EXPECT_EQ(header.Text("txtExchangeRate"), "Exchange rates (USD 1.3725)");
    EXPECT_EQ(header.Text("lblForeignCap"), "Currency USD");
    EXPECT_EQ(header.height, header["lblForeignCap"].box.Bottom());
}

TEST(UnrealizedDetailPageTest, TheAccountHeaderNamesAccountCurrencyAndDayOfTheForward) {
    DetailRun run;
    const auto bands = run({Line("1", "1"), Line("2", "2")});
    EXPECT_THAT(bands.Texts("ReportFooter", "txtClosingAccount"), ElementsAre("1060 - Bank USD"));
    const auto header = bands.Of("ghGLAcct");
    ASSERT_EQ(header.size(), 1u);
    EXPECT_EQ(header[0].Text("txtAccount"), "1060 - Bank USD");
    EXPECT_EQ(header[0]["txtAccount"].tag, "ACC|1060");
    EXPECT_EQ(header[0].Text("txtCurrency"), "USD");
    EXPECT_EQ(header[0]["txtForwardDate"].value, ControlValue(Date::ParseIso("2025-01-31")));
    run.report->IReport_DateFrom(kOpenStart);
    EXPECT_EQ(run({Line("1", "1")}).Of("ghGLAcct")[0].Text("txtForwardDate"), "");
}

TEST(UnrealizedDetailPageTest, EveryControlOfALineOpensItsSource) {
    DetailRun run;
    auto payment = Line("5", "6");
    payment.source = "PMT";
    payment.source_key = Variant::Null{};
    const auto lines = run({Line("1", "1"), payment}).Of("Detail");
    for (const char* control :
         {"txtDate", "txtDetDesc", "txtForeign", "txtHome", "txtRevalued", "txtGain"}) {
        EXPECT_EQ(lines.at(0)[control].tag, "INV|12") << control;
        EXPECT_EQ(lines.at(1)[control].tag, "PMT|") << control;
    }
}

TEST(UnrealizedDetailPageTest, ALineShowsItsDateAndDescriptionAndNoneOfTheLineBefore) {
    DetailRun run;
    auto bare = Line("5", "6");
    bare.date = Variant::Null{};
    bare.description = Variant::Null{};
    const auto bands = run({Line("1", "1"), bare});
    EXPECT_THAT(bands.Texts("Detail", "txtDetDesc"), ElementsAre("Sale", ""));
    EXPECT_THAT(bands.Texts("Detail", "txtDate"), ElementsAre("2025-01-15", ""));
    EXPECT_EQ(bands.Of("Detail")[0]["txtDate"].value, ControlValue(Date::ParseIso("2025-01-15")));
}

TEST(UnrealizedDetailPageTest, ItsPropertiesAreReachedByNameAndStay) {
    DetailRun run;
    EXPECT_FALSE(run.Designer().Get("RatesPreset").ToBool());
    run.Designer().Put("ExCurrencyId", "3");
    run.Designer().Put("GLAcctId", 70'000);
    EXPECT_TRUE(run.Designer().Get("excurrencyid").Holds<std::int32_t>());
    EXPECT_EQ(run.Designer().Get("ExCurrencyId").ToInteger32(), 3);
    EXPECT_EQ(run.Designer().Get("GLAcctId").ToInteger32(), 70'000);
}

TEST(UnrealizedDetailPageTest, RatesThatTheHostHasSetAreTakenAndNoneAskedFor) {
    DetailRun run;
    const auto rates = std::make_shared<RateCollection>();
    rates->Set("2", Rate::Parse("1.40"));
    run.Designer().Put("IExchangeRates_ExchangeRates", ObjectRef(rates));
    run.Designer().Put("IExchangeRates_Reevaluate", true);
    run.Designer().Put("RatesPreset", true);
    run.Forward({{"10", "13"}});
    const auto bands = run({Line("100", "130")});
    EXPECT_EQ(FooterFigures(bands, "Closing"), "110.00 143.00 154.00 11.00");
    EXPECT_THAT(run.host->calls.Names(), testing::Not(testing::Contains("ConfigureExchangeRates")));
}

}  // namespace
}  // namespace varnel::test
