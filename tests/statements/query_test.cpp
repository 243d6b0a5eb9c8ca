#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/journal/picking_tool.h"
#include "tests/statements/statement_run.h"

namespace varnel {
namespace {

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
    ASSERT_EQ(run.host->database.Commands().size(), 1u);
    EXPECT_EQ(run.Command().text, tried.statement);
    EXPECT_THAT(run.Command().calls,
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
                            SHEET " AND (Inactive = 0 OR 1 = 1) " ORDER}));

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
    const char* clause;
};

TEST(StatementScopeTest, SegmentsAreAskedOfTheBalancesInParentheses) {
    constexpr Segments kCases[] = {
        {"3,5", false, "(GLDet.ExSegmentId IN (3,5))"},
        {"", true, "(GLDet.ExSegmentId IS NULL)"},
        {"3", true, "(GLDet.ExSegmentId IN (3) OR GLDet.ExSegmentId IS NULL)"}};
    for (auto* make : {IncomeRun, SheetRun}) {
        StatementRun run = make();
        run.chart = {{4'010, make == IncomeRun ? 4 : 1}};
        run.Post(4'010, "2025-02-10", "5");
        std::vector<std::string> clauses;
        run.host->company.in_segments = [&](const auto&, const std::string& clause) {
            clauses.push_back(clause);
            return true;
        };
        run();
        EXPECT_THAT(clauses, testing::IsEmpty());
        for (const auto& tried : kCases) {
            run.FilterSegments(tried.ids, tried.also_none);
            clauses.clear();
            run();
            EXPECT_THAT(clauses, testing::AllOf(testing::Not(testing::IsEmpty()),
                                                testing::Each(tried.clause)));
        }
    }
}

TEST(StatementScopeTest, ProjectsAreAskedOfTheBalances) {
    StatementRun run = IncomeRun();
    run.chart = {{5'010, 5}};
    run.Post(5'010, "2025-02-10", "5");
    run.Post(5'010, "2025-02-10", "7");
    run.Post(5'010, "2025-01-10", "9");
    for (std::size_t i = 1; i < 3; ++i) run.host->company.ledger[i].project_id = 8;
    run.host->database.Answer("ProjInfo", {{"ProjId", "Descr"}, {}});
    run.Properties().Put("ProjIds", "8,9");
    EXPECT_THAT(run.Rows(), ElementsAre("5010|7.00|16.00"));
}

}  // namespace
}  // namespace varnel
