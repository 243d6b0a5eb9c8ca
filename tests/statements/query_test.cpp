#include <gtest/gtest.h>

#include "tests/statements/statement_run.h"
#include "tests/support/picking_tool.h"

namespace varnel::test {
namespace {

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

}  // namespace
}  // namespace varnel::test
