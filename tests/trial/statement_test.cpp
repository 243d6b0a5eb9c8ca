#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "reports/trial/trial_balance_detail.h"
#include "tests/support/picking_tool.h"
#include "tests/trial/trial_run.h"

namespace varnel::test {
namespace {

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
        run.Filter(filter, std::make_shared<PickingTool>());
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

#define LEDGER                                                                              \
    "SELECT GLDet.InGLDetId, GLDet.DetDate, GLDet.SeqNo, GLDet.Source, GLDet.ExSrcKeyVal, " \
    "GLDet.DetRef, GLDet.DetDesc, GLDet.Remarks, GLDet.DetAmnt, GLDet.ForeignAmnt, "        \
    "GLDet.ExCurrencyId AS GLDetExCurrencyId, GLAcct.AcctType, GLAcct.InGLAcctId, "         \
    "GLAcct.GLAcctId, GLAcct.ExCurrencyId, GLAcct.Descr, GLAcct.GroupType "                 \
    "FROM GLAcct LEFT JOIN GLDet ON GLAcct.InGLAcctId = GLDet.ExAcctId "                    \
    "AND GLDet.DetDate BETWEEN ? AND ?"
#define IN_ORDER " ORDER BY GLAcct.GLAcctId, GLDet.DetDate, GLDet.SeqNo, GLDet.InGLDetId"

TEST(LedgerByAccountStatementTest, IsExactlyThis) {
    const struct {
        const char *filter, *segments;
        bool also_none;
        const char* statement;
    } cases[] = {
        {" | ", "", false, LEDGER IN_ORDER},
        {"GLDet.DetAmnt > 5", "", true,
         LEDGER " AND (GLDet.ExSegmentId IS NULL) WHERE GLAcct.InGLAcctId IN (-1)" IN_ORDER},
        {"1010, 1020|GLDet.Source DESC", "3,7", false,
         LEDGER " AND (GLDet.ExSegmentId IN (3,7)) WHERE GLAcct.InGLAcctId IN (1010, 1020)"
                " ORDER BY GLAcct.GLAcctId, GLDet.Source DESC"}};
    for (const auto& [filter, segments, also_none, statement] : cases) {
        TrialRun run = LedgerRun();
        run.Filter(filter, std::make_shared<PickingTool>());
        run.FilterSegments(segments, also_none);
        run();
        EXPECT_EQ(run.Command().text, statement);
        ASSERT_EQ(run.Command().parameters.size(), 2u);
        EXPECT_EQ(run.Command().parameters[0].ToDate(), run.from);
        EXPECT_EQ(run.Command().parameters[1].ToDate(), run.to);
    }
}

struct Tables {
    TrialRun (*make)();
    const char* tables;
    bool resolves_criteria;  // Into accounts, by the tool.
};

constexpr Tables kTables[] = {{SummaryRun, "GLAcct", false},
                              {[] { return DetailRun(); }, "GLAcct", true},
                              {GifiRun, "GLAcct, WorldCurrency", false},
                              {LedgerRun, "GLAcct, GLDet", true}};

TEST(TrialFilterTest, TellsTheToolItsTablesAndRefusesCriteriaThatWantOneWithout) {
    for (const auto& [make, tables, resolves_criteria] : kTables) {
        TrialRun run = make();
        const auto tool = std::make_shared<PickingTool>();
        run.Filter("", tool);
        run();
        EXPECT_EQ(tool->tables, tables);
        if (!resolves_criteria) continue;
        const auto asked = run.host->database.Commands().size();
        run.Filter("GLAcct.AcctType = 1");
        EXPECT_THAT(run().Texts("ReportFooter", "txtDebitGrandTotal"), ElementsAre(""));
        EXPECT_EQ(run.host->database.Commands().size(), asked);
        EXPECT_THAT(run.host->message_boxes,
                    ElementsAre(testing::HasSubstr("GLAcct.AcctType = 1")));
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

}  // namespace
}  // namespace varnel::test
