#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "reports/trial/trial_balance_detail.h"
#include "tests/journal/picking_tool.h"
#include "tests/trial/trial_run.h"

namespace varnel {
namespace {

using test::DetailRun;
using test::GifiRun;
using test::SummaryRun;
using test::TrialRun;
using testing::ElementsAre;

#define CHART                                                                     \
    "SELECT GLAcct.InGLAcctId, GLAcct.GLAcctId, GLAcct.AcctType, "                \
    "GLAcct.ExCurrencyId, GLAcct.Descr, GLAcct.Inactive, "                        \
    "WorldCurrency.CurrencyCode, WorldCurrency.Descr as WorldCurrencyDescr FROM " \
    "GLAcct LEFT JOIN WorldCurrency ON WorldCurrency.InCurrencyId = GLAcct.ExCurrencyId"

#define GIFI_CHART                                                                     \
    "SELECT GLAcct.InGLAcctId, GLAcct.GLAcctId, GLAcct.Descr, GLAcct.ExCurrencyId, "   \
    "GLAcct.AcctType, GLAcct.GIFIAcctId, WorldCurrency.CurrencyCode FROM GLAcct LEFT " \
    "JOIN WorldCurrency ON GLAcct.ExCurrencyId = WorldCurrency.InCurrencyId WHERE "    \
    "(Inactive = 0 OR Inactive IS NULL) AND GIFIAcctId <> '' "

#define LINES                                                                             \
    "SELECT SubQuery.*, AcctType, InGlAcctId, GLAcctId, GLAcct.ExCurrencyId, "            \
    "GLAcct.Descr, WorldCurrency.CurrencyCode FROM (GLAcct LEFT JOIN (Select InGLDetId, " \
    "DetDate, DetAmnt, ForeignAmnt, GLDet.ExCurrencyId as GLDetExCurrencyId, Source, "    \
    "ExSrcKeyVal, DetDesc, SeqNo, ExAcctId FROM GLDet WHERE GLDet.DetAmnt <> 0 AND "
#define OF_PERIOD "GLDet.DetDate BETWEEN ? AND ?"
#define JOINED                                                                            \
    ") as SubQuery ON GLAcct.InGLAcctId = SubQuery.ExAcctId) LEFT JOIN WorldCurrency ON " \
    "GLAcct.ExCurrencyId = WorldCurrency.InCurrencyId"
#define BY_ACCOUNT " ORDER BY GLAcct.GLAcctId, SubQuery.DetDate, SubQuery.SeqNo"

TEST(ChartStatementTest, IsExactlyThisAndLeavesSegmentsToTheBalances) {
    const struct {
        TrialRun (*make)();
        const char *filter, *statement;
    } cases[] = {{SummaryRun, " | ", CHART " ORDER BY GLAcct.GLAcctId"},
                 {SummaryRun, "GLAcct.AcctType = 1|GLAcct.Descr",
                  CHART " WHERE (GLAcct.AcctType = 1)  ORDER BY GLAcct.Descr"},
                 {GifiRun, "", GIFI_CHART " ORDER BY GIFIAcctId, GLAcctId"},
                 {GifiRun, "AcctType = 1|Descr",
                  GIFI_CHART " AND (AcctType = 1)  ORDER BY GIFIAcctId, Descr"}};
    for (const auto& [make, filter, statement] : cases) {
        TrialRun run = make();
        run.Filter(filter);
        run.FilterSegments("3", true);
        run();
        EXPECT_EQ(run.Command().text, statement);
        EXPECT_TRUE(run.Command().parameters.empty());
    }
}

// The tool of these tests finds account -1 by any criteria.
TEST(DetailStatementTest, IsExactlyThis) {
    const struct {
        reports::dsrTrialBalanceDetail::Selection selection;
        const char *segments, *filter, *statement;
    } cases[] = {
        {{}, "", " | ", LINES OF_PERIOD " " JOINED BY_ACCOUNT},
        {{},
         "",
         "1010, 1020|GLAcct.Descr",
         LINES OF_PERIOD " " JOINED " WHERE GLAcct.InGLAcctId IN (1010, 1020)" BY_ACCOUNT},
        {{},
         "",
         "GLAcct.AcctType = 1",
         LINES OF_PERIOD " " JOINED " WHERE GLAcct.InGLAcctId IN (-1)" BY_ACCOUNT},
        {{.account_ids = "1030"},  // Before the filter's.
         "",
         "1010",
         LINES OF_PERIOD " " JOINED " WHERE GLAcct.InGLAcctId IN (1030)" BY_ACCOUNT},
        {{.hide_inactive = true, .project_ids = "7", .single_account = 1'010},
         "3",
         "1010",
         LINES "GLDet.ExProjId IN (7) AND " OF_PERIOD " AND (GLDet.ExSegmentId IN (3))" JOINED
               " WHERE GLAcct.InGLAcctId=? AND GLAcct.InGLAcctId IN (1010) AND "
               "(GLAcct.Inactive IS NULL Or GLAcct.Inactive = 0)" BY_ACCOUNT}};
    for (const auto& [selection, segments, filter, statement] : cases) {
        TrialRun run = DetailRun();
        dynamic_cast<reports::dsrTrialBalanceDetail&>(*run.report).GetSelection() = selection;
        run.Filter(filter, std::make_shared<test::PickingTool>());
        run.FilterSegments(segments);
        run();
        EXPECT_EQ(run.Command().text, statement);
        const auto& parameters = run.Command().parameters;
        const auto account = selection.single_account;
        ASSERT_EQ(parameters.size(), account == 0 ? 2u : 3u);
        EXPECT_EQ(parameters[0].ToDate(), run.from);
        EXPECT_EQ(parameters[1].ToDate(), run.to);
        EXPECT_TRUE(account == 0 || parameters[2].ToInteger32() == account);
    }
}

TEST(DetailSelectionTest, IsReachedByNameAndTheFactoryHidesInactiveAccounts) {
    TrialRun run = DetailRun(true);
    const auto report = run.report->IReport_ReportDesigner();
    EXPECT_TRUE(report->Get("HideInactiveAccounts").ToBool());
    report->Put("HideInactiveAccounts", false);
    report->Put("ProjIds", "7");
    report->Put("AccountIds", "1010");
    report->Put("SingleAcctId", 1'010);
    run();
    EXPECT_EQ(run.Command().text, LINES "GLDet.ExProjId IN (7) AND " OF_PERIOD JOINED
                                        " WHERE GLAcct.InGLAcctId=? AND GLAcct.InGLAcctId IN "
                                        "(1010)" BY_ACCOUNT);
}

TEST(DetailSelectionTest, CriteriaWithoutAToolToResolveThemAreRefused) {
    TrialRun run = DetailRun();
    run.Filter("GLAcct.AcctType = 1");
    run();
    EXPECT_TRUE(run.host->database.Commands().empty());
    ASSERT_EQ(run.host->message_boxes.size(), 1u);
    EXPECT_THAT(run.host->message_boxes[0], testing::HasSubstr("GLAcct.AcctType = 1"));
}

TEST(TrialStatementTest, TheFilterToolLearnsWhichTablesCriteriaMayName) {
    constexpr std::pair<TrialRun (*)(), const char*> kTables[] = {
        {SummaryRun, "GLAcct"},
        {[] { return DetailRun(); }, "GLAcct"},
        {GifiRun, "GLAcct, WorldCurrency"}};
    for (const auto& [make, tables] : kTables) {
        TrialRun run = make();
        const auto tool = std::make_shared<test::PickingTool>();
        run.Filter("", tool);
        run();
        EXPECT_EQ(tool->tables, tables);
    }
}

TEST(TrialBalanceRequestTest, TakesTheSegmentClauseInParenthesesAndTheProjects) {
    TrialRun run = DetailRun();
    std::vector<std::string> clauses;
    run.host->company.in_segments = [&](const auto&, const std::string& clause) {
        clauses.push_back(clause);
        return true;
    };
    run.chart = {{1'010}};
    run.Post(1'010, "2025-01-15", "5");
    run.Post(1'010, "2025-01-15", "7");
    run.host->company.ledger.back().project_id = 9;
    run.FilterSegments("3,5", true);
    run.report->IReport_ReportDesigner()->Put("ProjIds", "8,9");
    EXPECT_THAT(run().Texts("ghAccount", "txtBalanceForward"), ElementsAre("7.00"));
    EXPECT_THAT(clauses, ElementsAre("(GLDet.ExSegmentId IN (3,5) OR GLDet.ExSegmentId IS NULL)"));
}

}  // namespace
}  // namespace varnel
