#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/journal/journal_run.h"
#include "tests/journal/picking_tool.h"

namespace varnel {
namespace {

using test::JournalRun;
using test::PickingTool;
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
    const char* name;
    const char* segments;
    bool also_none;
    const char* filter;
    std::vector<std::string> picked;
    const char* statement;
};

void PrintTo(const StatementCase& tried, std::ostream* out) { *out << tried.name; }

class JournalStatementTest : public testing::TestWithParam<StatementCase> {};

TEST_P(JournalStatementTest, IsExactlyThis) {
    JournalRun run;
    const auto tool = std::make_shared<PickingTool>();
    tool->picked = GetParam().picked;
    auto& segments = dynamic_cast<ISegmentFilter&>(*run.report);
    segments.ISegmentFilter_SegmentFilter(GetParam().segments);
    segments.ISegmentFilter_SegmentNoneFilter(GetParam().also_none);
    auto& filter = dynamic_cast<IFilterableReport&>(*run.report);
    filter.IFilterableReport_Filter(GetParam().filter);
    filter.IFilterableReport_FilterTool(tool);
    run({});
    ASSERT_EQ(run.host->database.Commands().size(), 1u);
    EXPECT_EQ(run.host->database.Commands()[0]->text, GetParam().statement);
}

TEST(JournalStatementByNameTest, FiltersAreReachedByNameToo) {
    JournalRun run;
    const auto report = run.report->IReport_ReportDesigner();
    report->Put("ISegmentFilter_SegmentFilter", "3,7");
    report->Put("ISegmentFilter_SegmentNoneFilter", true);
    report->Put("IFilterableReport_Filter", "1=1|GLAcct.GLAcctId");
    report->Put("IFilterableReport_FilterTool", ObjectRef(std::make_shared<PickingTool>()));
    run({});
    EXPECT_EQ(run.host->database.Commands()[0]->text, JOURNAL_ROWS
              " AND (GLDet.ExSegmentId IN (3,7) OR GLDet.ExSegmentId IS NULL) AND (1=1)  "
              "ORDER BY GLDet.SeqNo, GLAcct.GLAcctId");
}

INSTANTIATE_TEST_SUITE_P(
    Variants, JournalStatementTest,
    testing::Values(
        StatementCase{"plain", "", false, "", {}, JOURNAL_ROWS BY_DATE},
        StatementCase{"segments",
                      "3,7",
                      false,
                      "",
                      {},
                      JOURNAL_ROWS " AND (GLDet.ExSegmentId IN (3,7))" BY_DATE},
        StatementCase{
            "none", "", true, "", {}, JOURNAL_ROWS " AND (GLDet.ExSegmentId IS NULL)" BY_DATE},
        StatementCase{"segments or none",
                      "3,7",
                      true,
                      "",
                      {},
                      JOURNAL_ROWS
                      " AND (GLDet.ExSegmentId IN (3,7) OR GLDet.ExSegmentId IS NULL)" BY_DATE},
        StatementCase{"criteria",
                      "",
                      false,
                      "GLDet.DetAmnt > 5",
                      {},
                      JOURNAL_ROWS " AND (GLDet.DetAmnt > 5) " BY_DATE},
        StatementCase{"ordering",
                      "",
                      false,
                      "|GLAcct.GLAcctId",
                      {},
                      JOURNAL_ROWS " ORDER BY GLDet.SeqNo, GLAcct.GLAcctId"},
        StatementCase{"bar alone", "", false, "|", {}, JOURNAL_ROWS BY_DATE},
        StatementCase{"one document",
                      "",
                      false,
                      "",
                      {"12"},
                      JOURNAL_ROWS " AND GLDet.ExSrcKeyVal IN (12)" BY_DATE},
        StatementCase{"all",
                      "3",
                      true,
                      "GLDet.DetAmnt > 5|GLDet.DetRef DESC",
                      {"12", "15"},
                      JOURNAL_ROWS " AND GLDet.ExSrcKeyVal IN (12,15)"
                                   " AND (GLDet.ExSegmentId IN (3) OR GLDet.ExSegmentId IS NULL)"
                                   " AND (GLDet.DetAmnt > 5) "
                                   " ORDER BY GLDet.SeqNo, GLDet.DetRef DESC"}));

TEST(JournalQueryTest, AsksTheCommandInOrderWithTheDatesUnchangedAtOpenLimits) {
    JournalRun run;
    run.report->IReport_DateFrom(kOpenStart);
    run.report->IReport_DateTo(kOpenEnd);
    run({});
    const auto& command = *run.host->database.Commands().at(0);
    EXPECT_THAT(command.calls,
                ElementsAre("timeout 0", "connection memory", "text", "parameter 1899-12-31",
                            "parameter 9999-12-31", "execute -1"));
    for (const auto& parameter : command.parameters) EXPECT_TRUE(parameter.Holds<Date>());
}

TEST(JournalQueryTest, ASecondRunBuildsANewCommandWithItsOwnParameters) {
    JournalRun run;
    run({});
    run.report->IReport_DateTo(Date::ParseIso("2025-02-28"));
    run({});
    const auto& commands = run.host->database.Commands();
    ASSERT_EQ(commands.size(), 2u);
    EXPECT_EQ(commands[1]->text, commands[0]->text);
    EXPECT_EQ(commands[0]->parameters.at(1).ToText(), "2025-03-31");
    ASSERT_EQ(commands[1]->parameters.size(), 2u);
    EXPECT_EQ(commands[1]->parameters[0].ToText(), "2025-01-01");
    EXPECT_EQ(commands[1]->parameters[1].ToText(), "2025-02-28");
}

TEST(JournalQueryTest, TheStatementIsTheSameForEveryDatabase) {
    JournalRun run;
    run.host->database.type = 0;
    run({});
    run.host->database.type = 1;
    run({});
    const auto& commands = run.host->database.Commands();
    EXPECT_EQ(commands.at(0)->text, commands.at(1)->text);
}

TEST(JournalQueryTest, TheFilterToolLearnsWhichTablesCriteriaMayName) {
    JournalRun run;
    const auto tool = std::make_shared<PickingTool>();
    dynamic_cast<IFilterableReport&>(*run.report).IFilterableReport_FilterTool(tool);
    run({});
    EXPECT_EQ(tool->tables, "GLDet, GLAcct, GJTrxHdr, WorldCurrency");
    run.host->company.uses_projects = true;
    run({});
    EXPECT_EQ(tool->tables, "GLDet, GLAcct, GJTrxHdr, ProjInfo, WorldCurrency");
}

}  // namespace
}  // namespace varnel
