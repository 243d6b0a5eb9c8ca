#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/exchange/unrealized_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

#define ROWS                                                                                \
    "SELECT GLAcct.InGLAcctId, GLAcct.GLAcctId, GLDet.ExCurrencyId, GLDet.DetDate,        " \
    "GLDet.SeqNo, GLDet.DetDesc, GLDet.ExChangeRate, SUM(ForeignAmnt) As AcctBalForeign, "  \
    "       SUM(DetAmnt) As AcctBalHome, WorldCurrency.CurrencyCode, WorldCurrency.Descr "  \
    "FROM (GLAcct INNER JOIN GLDet ON GLAcct.InGLAcctId = GLDet.ExAcctId) LEFT JOIN "       \
    "WorldCurrency on GLDet.ExCurrencyID = WorldCurrency.InCurrencyId WHERE ((ChqAcct <> "  \
    "0 AND GLAcct.ExCurrencyId <> ?) OR       InGLAcctId IN ( 1200,2100) OR       "         \
    "InGLAcctId IN ( 1500)) AND       GLDet.ExCurrencyId <> ? AND GLDet.DetDate <= ? "
#define GROUPED                                                                               \
    " GROUP BY WorldCurrency.CurrencyCode, WorldCurrency.Descr, GLAcct.GLAcctId, "            \
    "GLAcct.InGLAcctId, GLDet.ExCurrencyId, GLDet.DetDate, GLDet.SeqNo, GLDet.ExChangeRate, " \
    "GLDet.DetDesc  ORDER BY WorldCurrency.CurrencyCode, GLAcct.GLAcctId, GLDet.DetDate, "    \
    "GLDet.SeqNo "

const RecordedCommand& LastStatement(UnrealizedRun& run) {
    run({});
    return *run.host->database.Commands().back();
}

TEST(UnrealizedStatementTest, NamesTheAccountsOfTheHostAndTakesHomeCurrencyTwiceThenTheDate) {
    UnrealizedRun run;
    const auto& command = LastStatement(run);
    EXPECT_EQ(command.text, ROWS GROUPED);
    ASSERT_EQ(command.parameters.size(), 3u);
    for (const std::size_t home : {0u, 1u}) EXPECT_EQ(command.parameters[home].ToInteger32(), 1);
    EXPECT_EQ(command.parameters[2].ToDate(), run.to);
}

TEST(UnrealizedStatementTest, KeepsToTheSegmentsAndNeverToTheFilter) {
    UnrealizedRun run;
    const auto report = run.report->IReport_ReportDesigner();
    report->Put("ISegmentFilter_SegmentFilter", "3,7");
    report->Put("IFilterableReport_Filter", "USD=1.5|EUR=1.6");
    report->Put("ISegmentFilter_SegmentNoneFilter", true);
    EXPECT_EQ(LastStatement(run).text,
              ROWS " AND (GLDet.ExSegmentId IN (3,7) OR GLDet.ExSegmentId IS NULL) " GROUPED);
}

TEST(UnrealizedRatesTest, AreConfiguredForTheClosingDateOnEveryRun) {
    UnrealizedRun run;
    run.host->company.currency_info.rate_table[2][Date::ParseIso("2025-04-01")] = Rate::Parse("2");
    run({});
    EXPECT_EQ(run.Rates().IExchangeRates_ExchangeRates()->Item(2).ToText(), "1.3725");
    EXPECT_EQ(run.Rates().IExchangeRates_ExchangeRatesDate(), "2025-03-31");
    run.report->IReport_DateTo(Date::ParseIso("2025-04-30"));
    run({});
    EXPECT_EQ(run.Rates().IExchangeRates_ExchangeRates()->Item(2).ToText(), "2.0000");
}

TEST(UnrealizedRatesTest, StayAsTheHostHasSetThemWhenPreset) {
    UnrealizedRun run;
    const auto report = run.report->IReport_ReportDesigner();
    EXPECT_FALSE(report->Get("RatesPreset").ToBool());
    const auto rates = std::make_shared<RateCollection>();
    rates->Set(2, Rate::Parse("1.5"));
    report->Put("RatesPreset", true);
    report->Put("IExchangeRates_ExchangeRates", ObjectRef(rates));
    report->Put("IExchangeRates_ExchangeRatesDate", "yesterday");
    report->Put("IExchangeRates_Reevaluate", true);
    for (int i = 0; i < 2; ++i) {
        const auto bands = run({{.foreign = "100", .home = "130"}});
        EXPECT_THAT(bands.Texts("gfAccountType", "txtRevalued"), ElementsAre("150.00"));
        EXPECT_THAT(bands.Texts("ReportFooter", "txtRatesDate"),
                    ElementsAre("Exchange rates (yesterday)"));
    }
}

}  // namespace
}  // namespace varnel::test
