#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/journal/picking_tool.h"
#include "tests/trial/trial_run.h"

namespace varnel {
namespace {

using test::LedgerRun;
using test::TrialRun;

#define LINES                                                                               \
    "SELECT GLDet.InGLDetId, GLDet.DetDate, GLDet.SeqNo, GLDet.Source, GLDet.ExSrcKeyVal, " \
    "GLDet.DetRef, GLDet.DetDesc, GLDet.Remarks, GLDet.DetAmnt, GLDet.ForeignAmnt, "        \
    "GLDet.ExCurrencyId AS GLDetExCurrencyId, GLAcct.AcctType, GLAcct.InGLAcctId, "         \
    "GLAcct.GLAcctId, GLAcct.ExCurrencyId, GLAcct.Descr, GLAcct.GroupType "                 \
    "FROM GLAcct LEFT JOIN GLDet ON GLAcct.InGLAcctId = GLDet.ExAcctId "                    \
    "AND GLDet.DetDate BETWEEN ? AND ?"
#define BY_ACCOUNT " ORDER BY GLAcct.GLAcctId, GLDet.DetDate, GLDet.SeqNo, GLDet.InGLDetId"

struct Filtered {
    const char* name;
    const char* filter;
    const char* segments;
    bool also_none;
    const char* statement;
};

// The tool of these tests finds account -1 by any criteria.
constexpr Filtered kCases[] = {
    {"plain", "", "", false, LINES BY_ACCOUNT},
    {"blanks", " | ", "", false, LINES BY_ACCOUNT},
    {"segments", "", "3,7", false, LINES " AND (GLDet.ExSegmentId IN (3,7))" BY_ACCOUNT},
    {"no segment", "", "", true, LINES " AND (GLDet.ExSegmentId IS NULL)" BY_ACCOUNT},
    {"list of accounts", "1010, 1020", "", false,
     LINES " WHERE GLAcct.InGLAcctId IN (1010, 1020)" BY_ACCOUNT},
    {"criteria", "GLDet.DetAmnt > 5", "", false,
     LINES " WHERE GLAcct.InGLAcctId IN (-1)" BY_ACCOUNT},
    {"ordering", "|GLDet.DetRef DESC", "", false,
     LINES " ORDER BY GLAcct.GLAcctId, GLDet.DetRef DESC"},
    {"all", "1010|GLDet.Source", "3", true,
     LINES " AND (GLDet.ExSegmentId IN (3) OR GLDet.ExSegmentId IS NULL)"
           " WHERE GLAcct.InGLAcctId IN (1010) ORDER BY GLAcct.GLAcctId, GLDet.Source"},
};

TEST(LedgerByAccountStatementTest, IsExactlyThis) {
    for (const auto& tried : kCases) {
        TrialRun run = LedgerRun();
        const auto tool = std::make_shared<test::PickingTool>();
        run.Filter(tried.filter, tool);
        run.FilterSegments(tried.segments, tried.also_none);
        run();
        EXPECT_EQ(run.Command().text, tried.statement) << tried.name;
        ASSERT_EQ(run.Command().parameters.size(), 2u);
        EXPECT_EQ(run.Command().parameters[0].ToDate(), run.from);
        EXPECT_EQ(run.Command().parameters[1].ToDate(), run.to);
        EXPECT_EQ(tool->tables, "GLAcct, GLDet");
    }
}

TEST(LedgerByAccountStatementTest, CriteriaWithoutAToolToResolveThemAreRefused) {
    TrialRun run = LedgerRun();
    run.Filter("GLAcct.AcctType = 1");
    const auto bands = run();
    EXPECT_TRUE(run.host->database.Commands().empty());
    ASSERT_EQ(run.host->message_boxes.size(), 1u);
    EXPECT_THAT(run.host->message_boxes[0], testing::HasSubstr("GLAcct.AcctType = 1"));
    EXPECT_EQ(bands.Of("ReportFooter").at(0).Text("txtDebitGrandTotal"), "");
}

TEST(LedgerByAccountStatementTest, BalancesTakeTheSegmentsOfTheLines) {
    TrialRun run = LedgerRun();
    run.chart = {{1'010}};
    run.Post(1'010, "2025-01-15", "5");
    std::vector<std::string> clauses;
    run.host->company.in_segments = [&](const auto&, const std::string& clause) {
        clauses.push_back(clause);
        return true;
    };
    run.FilterSegments("3", true);
    run();
    EXPECT_THAT(clauses,
                testing::ElementsAre("(GLDet.ExSegmentId IN (3) OR GLDet.ExSegmentId IS NULL)"));
}

}  // namespace
}  // namespace varnel
