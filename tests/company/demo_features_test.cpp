#include "tests/company/demo_database.h"

namespace varnel::company {
namespace {

struct Feature {
    const char* name;
    const char* sql;
    std::int64_t least;
};

#define WITH_ACCOUNT "FROM GLDet JOIN GLAcct ON InGLAcctId = ExAcctId WHERE "

constexpr Feature kFeatures[] = {
    {"other income and expenses posted",
     "SELECT count(DISTINCT AcctType) " WITH_ACCOUNT "AcctType IN (6, 7)", 2},
    {"inactive with a balance",
     "SELECT count(*) FROM (SELECT 1 " WITH_ACCOUNT
     "Inactive = 1 GROUP BY ExAcctId HAVING sum(DetAmnt) <> 0)",
     2},
    {"inactive and never posted to",
     "SELECT count(*) FROM GLAcct WHERE Inactive = 1 AND InGLAcctId NOT IN "
     "(SELECT ExAcctId FROM GLDet)",
     2},
    {"active and never posted to",
     "SELECT count(*) FROM GLAcct WHERE GroupType IN (2, 4, 6) AND coalesce(Inactive, 0) = 0 AND "
     "InGLAcctId NOT IN (SELECT ExAcctId FROM GLDet)",
     3},
    {"GIFI codes with several accounts",
     "SELECT count(*) FROM (SELECT 1 FROM GLAcct WHERE GIFIAcctId <> '' GROUP BY GIFIAcctId "
     "HAVING count(*) > 1)",
     5},
    {"bank accounts", "SELECT count(DISTINCT ExCurrencyId) FROM GLAcct WHERE ChqAcct = 1", 3},
    {"control accounts of currencies",
     "SELECT count(*) FROM WorldCurrency JOIN GLAcct r ON r.InGLAcctId = ARGLAccountId JOIN "
     "GLAcct p ON p.InGLAcctId = APGLAccountId WHERE r.ExCurrencyId = InCurrencyId AND "
     "p.ExCurrencyId = InCurrencyId",
     2},
    {"rates on business days",
     "SELECT min(n) FROM (SELECT count(*) AS n FROM ExchangeRate "
     "WHERE strftime('%w', RateDate) BETWEEN '1' AND '5' GROUP BY ExCurrencyId)",
     780},
    {"rates of more than four decimals",
     "SELECT count(*) FROM ExchangeRate WHERE round(Rate, 4) <> Rate", 50},
    {"periods",
     "SELECT count(*) FROM FiscalYearDet JOIN FiscalYear ON InFiscalYearId = "
     "ExFiscalYearId WHERE FiscalYearDet.BegDate >= FiscalYear.BegDate AND "
     "FiscalYearDet.EndDate <= FiscalYear.EndDate",
     36},
    {"segments used", "SELECT count(DISTINCT ExSegmentId) FROM GLDet", 5},
    {"lines without a segment", "SELECT count(*) FROM GLDet WHERE ExSegmentId IS NULL", 600},
    {"entries in two segments",
     "SELECT count(*) FROM (SELECT 1 FROM GLDet GROUP BY SeqNo "
     "HAVING count(DISTINCT ExSegmentId) > 1)",
     50},
    {"projects used", "SELECT count(DISTINCT ExProjId) FROM GLDet", 6},
    {"budgets of revenue below zero",
     "SELECT count(*) FROM AcctBudget JOIN GLAcct ON "
     "InGLAcctId = ExAcctId WHERE AcctType = 4 AND BudgetAmnt < 0",
     250},
    {"budgeted accounts",
     "SELECT count(*) FROM (SELECT 1 FROM AcctBudget GROUP BY ExAcctId "
     "HAVING count(*) = 36)",
     50},
    {"sources", "SELECT count(DISTINCT Source) FROM GLDet", 8},
    {"entries with remarks", "SELECT count(DISTINCT SeqNo) FROM GLDet WHERE Remarks <> ''", 30},
    {"empty remarks", "SELECT count(*) FROM GLDet WHERE Remarks = ''", 20},
    {"empty references", "SELECT count(*) FROM GLDet WHERE DetRef = ''", 500},
    {"lines of zero", "SELECT count(*) FROM GLDet WHERE DetAmnt = 0", 3},
    {"home lines without a foreign amount", "SELECT count(*) FROM GLDet WHERE ForeignAmnt IS NULL",
     50},
    {"entries dated before an earlier number",
     "SELECT count(*) FROM GLDet a JOIN GLDet b ON b.InGLDetId = a.InGLDetId + 1 "
     "WHERE b.DetDate < a.DetDate",
     20},
    {"kinds of payments in foreign currency",
     "SELECT count(DISTINCT CurrPmtType) FROM CurrPmtDet_View WHERE ExCurrencyId > 1", 3},
    {"customer payments with a discount",
     "SELECT count(*) FROM CurrPmtDet_View WHERE CurrPmtType = 1 AND PmtDisc > 0", 10},
    {"cheques with a discount in foreign currency",
     "SELECT count(*) FROM CurrPmtDet_View WHERE CurrPmtType = 2 AND PmtDisc > 0 AND "
     "ExCurrencyId > 1",
     5},
    {"discounts of null", "SELECT count(*) FROM PmtDet WHERE PmtDisc IS NULL", 10},
    {"partial payments",
     "SELECT count(*) FROM (SELECT 1 FROM PmtDet GROUP BY ExInvoiId "
     "HAVING count(*) > 1)",
     5},
    {"saved reconciliations of the Canadian account",
     "SELECT max(n) FROM (SELECT count(*) AS n FROM BankConcilHistory GROUP BY ExAcctId)", 4},
    {"reconciled accounts", "SELECT count(DISTINCT ExAcctId) FROM BankConcilHistory", 2},
    {"ticks in progress",
     "SELECT count(*) FROM GLDet WHERE Conciliated = 1 AND "
     "coalesce(ExBankConcilHistoryId, 0) = 0",
     10},
    {"lines cleared in a later reconciliation",
     "SELECT count(*) FROM GLDet JOIN BankConcilHistory h ON h.ID = ExBankConcilHistoryId "
     "WHERE h.ExAcctId = GLDet.ExAcctId AND EXISTS (SELECT 1 FROM BankConcilHistory e "
     "WHERE e.ExAcctId = h.ExAcctId AND e.ID < h.ID AND DetDate <= e.BankConcilDate)",
     5},
};

#undef WITH_ACCOUNT

TEST(DemoFeatures, AreAllThere) {
    for (const Feature& feature : kFeatures) {
        EXPECT_GE(Demo().Ask(feature.sql), feature.least) << feature.name;
    }
}

TEST(DemoFeatures, AboutTwoLinesInFiveAreJournalAndBankEntries) {
    const std::int64_t all = Demo().Ask("SELECT count(*) FROM GLDet");
    const std::int64_t some =
        Demo().Ask("SELECT count(*) FROM GLDet WHERE Source IN ('GJ', 'BKT', 'BRC')");
    EXPECT_GT(some * 100, all * 36);
    EXPECT_LT(some * 100, all * 46);
}

TEST(DemoFeatures, LinesOfAnEntryShareDescriptionAndRemarks) {
    EXPECT_EQ(Demo().Ask("SELECT count(*) FROM (SELECT 1 FROM GLDet GROUP BY SeqNo HAVING "
                         "count(DISTINCT DetDesc) > 1 OR count(DISTINCT DetDate) > 1 OR "
                         "count(DISTINCT coalesce(Remarks, '-')) > 1)"),
              0);
}

TEST(DemoFeatures, PostingsStayWithinTheBooks) {
    EXPECT_EQ(Demo().Ask("SELECT min(DetDate) = '2024-01-01' AND max(DetDate) = '2026-10-31' "
                         "FROM GLDet"),
              1);
}

}  // namespace
}  // namespace varnel::company
