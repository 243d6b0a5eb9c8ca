#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/statements/statement_run.h"
#include "tests/support/picking_tool.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

#define INCOME(types)                                                           \
    "SELECT * FROM ("                                                           \
    "  SELECT InGLAcctId, GLAcctId, Descr, Inactive, AcctType, GroupType "      \
    "  FROM GLAcct   WHERE AcctType IN (4,5)   UNION ALL "                      \
    "  SELECT InGLAcctId, GLAcctId, Descr, Inactive, 9 AS AcctType, GroupType " \
    "  FROM GLAcct   WHERE AcctType IN (" types ") ) AS GLAcct "
#define SHEET                                                                    \
    "SELECT InGLAcctId, GLAcctId, AcctType, GroupType, ExCurrencyId, Inactive, " \
    "Descr FROM GLAcct WHERE AcctType IN (1,2,3)"
#define COMPARATIVE_INCOME                                                       \
    "SELECT * FROM ("                                                            \
    "  SELECT InGLAcctId, GLAcctId, Descr, Inactive, AcctType, GroupType, "      \
    "ExCurrencyId   FROM GLAcct   WHERE AcctType IN (4,5)   UNION ALL "          \
    "  SELECT InGLAcctId, GLAcctId, Descr, Inactive, 9 AS AcctType, GroupType, " \
    "ExCurrencyId   FROM GLAcct   WHERE AcctType IN (6,7) ) AS GLAcct "
#define COMPARATIVE_SHEET                                                          \
    "SELECT InGLAcctId, GroupType, ExCurrencyId, Inactive, AcctType, GIFIAcctId, " \
    "Descr FROM GLAcct WHERE AcctType IN (1,2,3)"
#define ORDER "ORDER BY AcctType, GLAcctId"

const struct {
    StatementRun (*make)();
    const char *types, *filter, *statement;
} kQueries[] = {
    {IncomeRun, "6, 7", "", INCOME("6, 7") ORDER},
    {IncomeRun, "", "", INCOME("") ORDER},
    {IncomeRun, "6", "Inactive = 0 OR 1 = 1|Descr",
     INCOME("6") " WHERE (Inactive = 0 OR 1 = 1) " ORDER},
    {SheetRun, "6", " |Descr", SHEET " " ORDER},
    {SheetRun, "6", "Inactive = 0 OR 1 = 1", SHEET " AND (Inactive = 0 OR 1 = 1) " ORDER},
    {ComparativeIncomeRun, "6,7", "", COMPARATIVE_INCOME ORDER},
    {BudgetRun, "6,7", "|Descr", COMPARATIVE_INCOME ORDER},
    {ComparativeSheetRun, "6", "Inactive = 0", COMPARATIVE_SHEET " AND (Inactive = 0) " ORDER}};

TEST(StatementQueryTest, IsOneOfExactlyTheseWordsOverTheAccounts) {
    for (const auto& [make, types, filter, statement] : kQueries) {
        StatementRun run = make();
        const auto tool = std::make_shared<PickingTool>();
        run.host->company.additional_income_types = types;
        run.Filter(filter, tool);
        run.FilterSegments("3", true);
        run();
        EXPECT_EQ(run.ChartCommand().text, statement);
        EXPECT_TRUE(run.ChartCommand().parameters.empty());
        EXPECT_EQ(tool->tables, "GLAcct");
    }
}

struct Segments {
    const char* ids;
    bool also_none;
    std::string clause;
    /// What is left out: asked of all accounts together.
    std::vector<std::string> others;
};

/// The clauses in the order in which they came up.
std::vector<std::string> Clauses(StatementRun& run) {
    std::vector<std::string> clauses;
    run.host->company.in_segments = [&](const auto&, const std::string& clause) {
        if (!std::ranges::count(clauses, clause)) clauses.push_back(clause);
        return true;
    };
    run();
    return clauses;
}

TEST(StatementScopeTest, SegmentsAreAskedOfTheBalancesInParentheses) {
    const std::string none = "(GLDet.ExSegmentId IS NULL)";
    const std::string listed = "(GLDet.ExSegmentId IN (3,5))";
    const std::string both = "(GLDet.ExSegmentId IN (3,5) OR GLDet.ExSegmentId IS NULL)";
    const Segments kCases[] = {{"", false, "", {}},
                               {"3,5", false, listed, {"NOT " + listed, none}},
                               {"3,5", true, both, {"NOT " + both}}};
    for (auto* make : {IncomeRun, SheetRun, ComparativeIncomeRun, ComparativeSheetRun}) {
        StatementRun run = make();
        const bool is_sheet = make == SheetRun || make == ComparativeSheetRun;
        run.chart = {{4'010, is_sheet ? 1 : 4}};
        run.Post(4'010, "2025-02-10", "5");
        for (const auto& tried : kCases) {
            run.FilterSegments(tried.ids, tried.also_none);
            std::vector<std::string> expected;
            if (!tried.clause.empty()) expected.push_back(tried.clause);
            if (is_sheet) expected.insert(expected.end(), tried.others.begin(), tried.others.end());
            EXPECT_EQ(Clauses(run), expected) << run.report->IReport_ReportTitle();
        }
    }
}

}  // namespace
}  // namespace varnel::test
