#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/journal/journal_run.h"
#include "tests/support/picking_tool.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

#define JOURNAL_ROWS                                                                          \
    "SELECT GLDet.InGLDetId, GLDet.ExCurrencyId, GLDet.SeqNo, GLDet.DetAmnt, "                \
    "GLDet.ForeignAmnt, GLDet.DetDate, GLDet.DetDesc, GLDet.DetRef, GLDet.Source, "           \
    "GLDet.ExSrcKeyVal, GLDet.Remarks, GLDet.ExProjId, GLAcct.GLAcctId, GLAcct.Descr, "       \
    "ProjInfo.ProjId, WorldCurrency.InCurrencyId, WorldCurrency.CurrencyCode, "               \
    "WorldCurrency.CurrencyCode + ' - ' + WorldCurrency.Descr As CurrencyFullDescr FROM "     \
    "(((GLDet GLDet LEFT OUTER JOIN GJTrxHdr GJTrxHdr ON GLDet.ExSrcKeyVal = "                \
    "GJTrxHdr.InTrxId) LEFT OUTER JOIN ProjInfo ProjInfo ON GLDet.ExProjId = "                \
    "ProjInfo.InProjId) LEFT OUTER JOIN GLAcct GLAcct ON GLDet.ExAcctId = "                   \
    "GLAcct.InGLAcctId) LEFT JOIN WorldCurrency ON WorldCurrency.InCurrencyId = "             \
    "GLDet.ExCurrencyId WHERE GLDet.Source IN('GJ','BKT','BRC') AND GLDet.DetDate BETWEEN ? " \
    "AND ? "
#define BY_DATE " ORDER BY GLDet.DetDate, GLDet.SeqNo, GLDet.InGLDetId"

struct StatementCase {
    const char* segments;
    bool also_none;
    const char* filter;
    std::vector<std::string> picked;
    const char* statement;
};

// What each part alone comes to is for the tests of segment filters and custom criteria.
const StatementCase kStatements[] = {
    {"", false, "|", {}, JOURNAL_ROWS BY_DATE},
    {"",
     true,
     "",
     {"12"},
     JOURNAL_ROWS " AND GLDet.ExSrcKeyVal IN (12) AND (GLDet.ExSegmentId IS NULL)" BY_DATE},
    {"3",
     true,
     "GLDet.DetAmnt > 5|GLDet.DetRef DESC",
     {"12", "15"},
     JOURNAL_ROWS " AND GLDet.ExSrcKeyVal IN (12,15)"
                  " AND (GLDet.ExSegmentId IN (3) OR GLDet.ExSegmentId IS NULL)"
                  " AND (GLDet.DetAmnt > 5)  ORDER BY GLDet.SeqNo, GLDet.DetRef DESC"}};

TEST(JournalStatementTest, IsExactlyThis) {
    for (const auto& [segments, also_none, filter, picked, statement] : kStatements) {
        JournalRun run;
        const auto tool = std::make_shared<PickingTool>();
        tool->picked = picked;
        run.FilterSegments(segments, also_none);
        run.Filter(filter, tool);
        run({});
        ASSERT_EQ(run.host->database.Commands().size(), 1u);
        EXPECT_EQ(run.Command().text, statement);
    }
}

TEST(JournalQueryTest, AsksAnewInEachRunWithTheDatesUnchangedAtOpenLimits) {
    JournalRun run;
    run({});
    run.report->IReport_DateFrom(kOpenStart);
    run.report->IReport_DateTo(kOpenEnd);
    run({});
    const auto& command = *run.host->database.Commands().at(1);
    EXPECT_THAT(command.calls,
                ElementsAre("timeout 0", "connection memory", "text", "parameter 1899-12-31",
                            "parameter 9999-12-31", "execute -1"));
    for (const auto& parameter : command.parameters) EXPECT_TRUE(parameter.Holds<Date>());
}

TEST(JournalQueryTest, TheFilterToolLearnsWhichTablesCriteriaMayName) {
    JournalRun run;
    const auto tool = std::make_shared<PickingTool>();
    run.Filter("", tool);
    run({});
    EXPECT_EQ(tool->tables, "GLDet, GLAcct, GJTrxHdr, WorldCurrency");
    run.host->company.uses_projects = true;
    run({});
    EXPECT_EQ(tool->tables, "GLDet, GLAcct, GJTrxHdr, ProjInfo, WorldCurrency");
}

}  // namespace
}  // namespace varnel::test
