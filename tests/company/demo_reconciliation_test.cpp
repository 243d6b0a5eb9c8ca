#include "tests/company/demo_database.h"

namespace varnel::company {
namespace {

// Statement figures against sums over the ledger, for every reconciliation `s`. The amount is in
// the account's currency.
std::string LedgerSum(const std::string& condition) {
    return "(SELECT coalesce(sum(" +
           Exact(
               "CASE WHEN a.ExCurrencyId > 1 THEN g.ForeignAmnt "
               "ELSE g.DetAmnt END") +
           "), 0) FROM GLDet g JOIN GLAcct a ON a.InGLAcctId = g.ExAcctId "
           "WHERE g.ExAcctId = s.ExAcctId AND " +
           condition + ")";
}

std::int64_t Disagreements(const std::string& figure, const std::string& ledger) {
    return Demo().Ask("SELECT count(*) FROM BankStatement s WHERE " + Exact(figure) + " <> " +
                      ledger);
}

const std::string kToDate = "g.DetDate <= s.StatementDate";
const std::string kOpen =
    " AND (coalesce(g.Conciliated, 0) = 0 OR "
    "(s.ExBankConcilHistoryId > 0 AND g.ExBankConcilHistoryId > s.ExBankConcilHistoryId))";

TEST(DemoReconciliation, LedgerBalanceIsTheSumToTheStatementDate) {
    EXPECT_EQ(Disagreements("s.GLBalAmnt", LedgerSum(kToDate)), 0);
}

TEST(DemoReconciliation, OutstandingLinesAreThoseNotReconciledYet) {
    EXPECT_EQ(Disagreements("s.DepAmntCirc", LedgerSum(kToDate + " AND g.DetAmnt > 0" + kOpen)), 0);
    EXPECT_EQ(
        Disagreements("s.ChqAmntCirc", "-" + LedgerSum(kToDate + " AND g.DetAmnt < 0" + kOpen)), 0);
    EXPECT_GT(Demo().Ask("SELECT count(*) FROM BankStatement WHERE ChqAmntCirc > 0"), 3);
}

TEST(DemoReconciliation, SavedStatementEndsWithWhatClearedUpToIt) {
    EXPECT_EQ(Demo().Ask("SELECT count(*) FROM BankConcilHistory h JOIN BankStatement s ON "
                         "s.ExBankConcilHistoryId = h.ID WHERE " +
                         Exact("h.EndBalAmnt") + " = " +
                         LedgerSum("g.ExBankConcilHistoryId BETWEEN 1 AND h.ID")),
              5);
}

TEST(DemoReconciliation, SavedStatementAndLedgerDifferByTheOutstandingLines) {
    EXPECT_EQ(Demo().Ask("SELECT count(*) FROM BankStatement WHERE ExBankConcilHistoryId > 0 AND " +
                         Exact("EndBalAmnt") + " + " + Exact("DepAmntCirc") + " - " +
                         Exact("ChqAmntCirc") + " = " + Exact("GLBalAmnt")),
              5);
}

TEST(DemoReconciliation, NothingIsReconciledBeforeItIsEntered) {
    EXPECT_EQ(Demo().Ask("SELECT count(*) FROM GLDet g JOIN BankConcilHistory h ON h.ID = "
                         "g.ExBankConcilHistoryId WHERE g.DetDate > h.BankConcilDate OR "
                         "g.ExAcctId <> h.ExAcctId OR g.Conciliated IS NOT 1"),
              0);
}

// An older tick would be neither outstanding nor reconciled for the saved reconciliations.
TEST(DemoReconciliation, OnlyLinesAfterTheLastSavedOneAreTickedInProgress) {
    EXPECT_EQ(Demo().Ask("SELECT count(*) FROM GLDet WHERE Conciliated = 1 AND "
                         "coalesce(ExBankConcilHistoryId, 0) = 0 AND DetDate <= '2026-08-31'"),
              0);
}

}  // namespace
}  // namespace varnel::company
