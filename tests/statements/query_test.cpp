#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/journal/picking_tool.h"
#include "tests/statements/statement_run.h"

namespace varnel {
namespace {

using test::BudgetRun;
using test::ComparativeIncomeRun;
using test::ComparativeSheetRun;
using test::IncomeRun;
using test::SheetRun;
using test::StatementRun;
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

struct Queried {
    const char* name;
    StatementRun (*make)();
    const char* types;
    const char* filter;
    const char* statement;
};

void PrintTo(const Queried& tried, std::ostream* out) { *out << tried.name; }

class StatementQueryTest : public testing::TestWithParam<Queried> {};

TEST_P(StatementQueryTest, IsOneOfExactlyTheseWords) {
    const auto& tried = GetParam();
    StatementRun run = tried.make();
    run.chart = {{4'010, 4}, {5'010, 5}};
    run.host->company.additional_income_types = tried.types;
    run.Filter(tried.filter);
    run.FilterSegments("3", true);
    run();
    EXPECT_EQ(run.ChartCommand().text, tried.statement);
    EXPECT_THAT(run.ChartCommand().calls,
                ElementsAre("timeout 0", "connection memory", "text", "execute -1"));
}

INSTANTIATE_TEST_SUITE_P(
    Variants, StatementQueryTest,
    testing::Values(Queried{"income", IncomeRun, "-1", "", INCOME("-1") ORDER},
                    Queried{"additional types", IncomeRun, "6, 7", "", INCOME("6, 7") ORDER},
                    Queried{"no additional type", IncomeRun, "", "", INCOME("") ORDER},
                    Queried{"income, blanks", IncomeRun, "6", " | ", INCOME("6") ORDER},
                    Queried{"income, both", IncomeRun, "6", "Inactive = 0 OR 1 = 1|Descr",
                            INCOME("6") " WHERE (Inactive = 0 OR 1 = 1) " ORDER},
                    Queried{"sheet", SheetRun, "6", "", SHEET " " ORDER},
                    Queried{"sheet, ordering", SheetRun, "6", "|Descr", SHEET " " ORDER},
                    Queried{"sheet, criteria", SheetRun, "6", "Inactive = 0 OR 1 = 1",
                            SHEET " AND (Inactive = 0 OR 1 = 1) " ORDER},
                    Queried{"comparative income", ComparativeIncomeRun, "6,7", "",
                            COMPARATIVE_INCOME ORDER},
                    Queried{"budget", BudgetRun, "6,7", "|Descr", COMPARATIVE_INCOME ORDER},
                    Queried{"comparative sheet", ComparativeSheetRun, "6", "Inactive = 0",
                            COMPARATIVE_SHEET " AND (Inactive = 0) " ORDER}));

TEST(StatementCriteriaTest, MayNameTheAccounts) {
    for (auto* make : {IncomeRun, SheetRun}) {
        StatementRun run = make();
        const auto tool = std::make_shared<test::PickingTool>();
        run.Filter("", tool);
        run();
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
                               {"", true, none, {"NOT " + none}},
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
}  // namespace varnel
