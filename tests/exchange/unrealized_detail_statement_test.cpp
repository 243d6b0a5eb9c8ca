#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/exchange/unrealized_detail_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

#define LINES                                                                             \
    "SELECT GLAcct.InGLAcctId, GLDet.ExCurrencyId, GLDet.DetDate, ForeignAmnt As "        \
    "AcctBalForeign, DetAmnt As AcctBalHome, GLDet.DetDesc, GLDet.Source, "               \
    "GLDet.ExSrcKeyVal, WorldCurrency.CurrencyCode, WorldCurrency.Descr FROM (GLAcct "    \
    "INNER JOIN GLDet ON GLAcct.InGLAcctId = GLDet.ExAcctId) LEFT JOIN WorldCurrency on " \
    "GLDet.ExCurrencyID = WorldCurrency.InCurrencyId WHERE GLDet.ExCurrencyId = ? AND "   \
    "InGLAcctId  = ? AND GLDet.DetDate BETWEEN ? AND ? "
#define IN_ORDER " ORDER BY DetDate, SeqNo "

#define BALANCE                                                                          \
    "SELECT GLAcct.InGLAcctId, GLDet.ExCurrencyId, GLDet.DetDate,        GLDet.SeqNo, "  \
    "GLDet.DetDesc, GLDet.ExChangeRate, SUM(ForeignAmnt) As AcctBalForeign,        "     \
    "SUM(DetAmnt) As AcctBalHome, WorldCurrency.CurrencyCode, WorldCurrency.Descr FROM " \
    "(GLAcct INNER JOIN GLDet ON GLAcct.InGLAcctId = GLDet.ExAcctId) LEFT JOIN "         \
    "WorldCurrency on GLDet.ExCurrencyID = WorldCurrency.InCurrencyId WHERE "            \
    "GLAcct.InGLAcctId = ? AND GLDet.DetDate <= ? "
#define GROUPED                                                                     \
    "GROUP BY GLAcct.InGLAcctId, WorldCurrency.CurrencyCode, WorldCurrency.Descr, " \
    "GLDet.ExCurrencyId, GLDet.DetDate, GLDet.SeqNo, GLDet.ExChangeRate, GLDet.DetDesc"

TEST(UnrealizedDetailQueryTest, IsExactlyThisAndTheForwardTakesTheSameSegments) {
    DetailRun run;
    run({});
    EXPECT_EQ(run.Asked(kLinesStatement).at(0).text, LINES IN_ORDER);
    EXPECT_EQ(run.Asked(kBalanceStatement).at(0).text, BALANCE GROUPED);
    run.FilterSegments("3,7");
    run({});
    EXPECT_EQ(run.Asked(kLinesStatement).at(1).text,
              LINES " AND (GLDet.ExSegmentId IN (3,7)) " IN_ORDER);
    EXPECT_EQ(run.Asked(kBalanceStatement).at(1).text,
              BALANCE "AND GLDet.ExSegmentId IN (3,7) " GROUPED);
    run.FilterSegments("3,7", true);
    run({});
    EXPECT_EQ(run.Asked(kLinesStatement).at(2).text,
              LINES " AND (GLDet.ExSegmentId IN (3,7) OR GLDet.ExSegmentId IS NULL) " IN_ORDER);
    EXPECT_EQ(run.Asked(kBalanceStatement).at(2).text,
              BALANCE "AND (GLDet.ExSegmentId IN (3,7) OR GLDet.ExSegmentId IS NULL) " GROUPED);
}

std::vector<std::string> Texts(const std::vector<Variant>& parameters) {
    std::vector<std::string> texts;
    for (const auto& parameter : parameters) texts.push_back(parameter.ToText());
    return texts;
}

TEST(UnrealizedDetailQueryTest,
     LinesAreThoseOfCurrencyAccountAndPeriodAndTheForwardEndsADayBefore) {
    DetailRun run;
    run({});
    const auto lines = run.Asked(kLinesStatement).at(0).parameters;
    EXPECT_THAT(Texts(lines), ElementsAre("2", "1060", "2025-02-01", "2025-03-31"));
    for (const std::size_t id : {0u, 1u}) EXPECT_TRUE(lines[id].Holds<std::int32_t>());
    for (const std::size_t limit : {2u, 3u}) EXPECT_TRUE(lines[limit].Holds<Date>());
    const auto balance = run.Asked(kBalanceStatement).at(0).parameters;
    EXPECT_THAT(Texts(balance), ElementsAre("1060", "2025-01-31"));
    EXPECT_TRUE(balance[0].Holds<std::int32_t>() && balance[1].Holds<Date>());
}

TEST(UnrealizedDetailQueryTest, AnOpenStartBringsNothingForwardAndAsksNothing) {
    DetailRun run;
    run.Forward({{"1000", "1250"}});
    run.report->IReport_DateFrom(kOpenStart);
    const auto bands = run({Line("100", "130")});
    EXPECT_TRUE(run.Asked(kBalanceStatement).empty());
    EXPECT_EQ(ForwardFigures(bands), "0.00 0.00 0.00 0.00");
    EXPECT_EQ(FooterFigures(bands, "Closing"), "100.00 130.00 137.25 7.25");
    EXPECT_EQ(run.Asked(kLinesStatement).at(0).parameters.at(2).ToText(), "1899-12-31");
}

TEST(UnrealizedDetailQueryTest, TheDayAfterTheOpenStartIsNotOpen) {
    DetailRun run;
    run.report->IReport_DateFrom(kOpenStart + 1);
    run({});
    EXPECT_EQ(run.Asked(kBalanceStatement).at(0).parameters.at(1).ToText(), "1899-12-31");
}

TEST(UnrealizedDetailQueryTest, TheFilterIsNoPartOfTheStatementsNorOfThePage) {
    DetailRun run;
    run.Filter("USD=1.40|GLAcctId");
    const auto bands = run({});
    EXPECT_EQ(run.Asked(kLinesStatement).at(0).text, LINES IN_ORDER);
    for (const auto& band : bands.bands) EXPECT_EQ(band.depth, 0);
}

}  // namespace
}  // namespace varnel::test
