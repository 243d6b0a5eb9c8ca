#include "tests/company/demo_database.h"

namespace varnel::company {
namespace {

TEST(DemoLedger, EveryEntryBalancesExactly) {
    EXPECT_GT(Demo().Ask("SELECT count(DISTINCT SeqNo) FROM GLDet"), 2'000);
    EXPECT_EQ(Demo().Ask("SELECT count(*) FROM (SELECT 1 FROM GLDet GROUP BY SeqNo HAVING sum(" +
                         Exact("DetAmnt") + ") <> 0)"),
              0);
}

TEST(DemoLedger, AmountsAreWholeCents) {
    EXPECT_EQ(Demo().Ask("SELECT count(*) FROM GLDet WHERE DetAmnt <> round(DetAmnt, 2) OR "
                         "ForeignAmnt <> round(ForeignAmnt, 2)"),
              0);
}

// A foreign line is its amount times its rate; one line of an entry may carry the rounding.
TEST(DemoLedger, ForeignLinesFollowTheirRateSaveOneOfAnEntry) {
    // Cents × rate (at most six decimals), in whole numbers: exact, and half away from zero.
    const std::string product =
        "(CAST(round(ForeignAmnt * 100) AS INTEGER) * "
        "CAST(round(ExChangeRate * 1000000) AS INTEGER))";
    const std::string converted = "((" + product + " + CASE WHEN " + product +
                                  " < 0 THEN -500000 ELSE 500000 END) / 1000000)";
    const std::string off =
        "(ExCurrencyId <> 1 AND CAST(round(DetAmnt * 100) AS INTEGER) <> " + converted + ")";
    EXPECT_GT(Demo().Ask("SELECT count(*) FROM GLDet WHERE ExCurrencyId <> 1"), 1'000);
    EXPECT_EQ(Demo().Ask("SELECT count(*) FROM (SELECT 1 FROM GLDet GROUP BY SeqNo HAVING sum(" +
                         off + ") > 1)"),
              0);
    EXPECT_EQ(Demo().Ask("SELECT count(*) FROM GLDet WHERE " + off +
                         " AND abs(CAST(round(DetAmnt * 100) AS INTEGER) - " + converted + ") > 3"),
              0);
}

TEST(DemoLedger, LinesOnForeignAccountsAreInTheAccountsCurrency) {
    EXPECT_EQ(Demo().Ask("SELECT count(*) FROM GLDet JOIN GLAcct ON InGLAcctId = ExAcctId "
                         "WHERE GLAcct.ExCurrencyId > 1 AND (GLDet.ExCurrencyId IS NULL OR "
                         "GLDet.ExCurrencyId <> GLAcct.ExCurrencyId OR ForeignAmnt IS NULL)"),
              0);
}

TEST(DemoLedger, OnlyPostingAccountsArePostedTo) {
    EXPECT_EQ(Demo().Ask("SELECT count(*) FROM GLDet LEFT JOIN GLAcct ON InGLAcctId = ExAcctId "
                         "WHERE GroupType IS NULL OR GroupType NOT IN (2, 4, 6)"),
              0);
}

TEST(DemoLedger, EarningsAndUnrealizedGainsAreLeftToTheReports) {
    EXPECT_EQ(Demo().Ask("SELECT count(*) FROM GLDet WHERE " + AccountIs("3300") + " OR " +
                         AccountIs("5930")),
              0);
    EXPECT_EQ(Demo().Ask("SELECT count(*) FROM GLDet WHERE " + AccountIs("3100")), 1);
}

TEST(DemoLedger, DocumentsOfAnEntryExist) {
    struct Case {
        const char* sources;
        const char* table;
        const char* key;
    };
    constexpr Case kCases[] = {{"'GJ'", "GJTrxHdr", "InTrxId"},
                               {"'INV', 'PUR'", "Invoice", "InInvoiId"},
                               {"'PMT', 'CDI', 'DEP'", "Pmt", "InPmtId"}};
    for (const Case& one : kCases) {
        EXPECT_EQ(Demo().Ask("SELECT count(*) FROM GLDet LEFT JOIN " + std::string(one.table) +
                             " ON " + one.key + " = ExSrcKeyVal WHERE GLDet.Source IN (" +
                             one.sources + ") AND " + one.key + " IS NULL"),
                  0)
            << one.table;
    }
}

// What is open on the invoices is what the control accounts hold, in every currency.
TEST(DemoLedger, ControlAccountsAgreeWithUnpaidInvoices) {
    for (const std::string account : {"1062", "1064", "2012", "2014"}) {
        const bool receivable = account[0] == '1';
        const std::string currency = account[3] == '2' ? "2" : "3";
        const std::string source = receivable ? "'INV'" : "'PUR'";
        const std::int64_t ledger =
            Demo().Ask("SELECT sum(" + Exact("ForeignAmnt") + ") FROM GLDet WHERE " +
                       AccountIs(account) + " AND Source <> " + source);
        const std::int64_t opening =
            Demo().Ask("SELECT sum(" + Exact("ForeignAmnt") + ") FROM GLDet WHERE " +
                       AccountIs(account) + " AND Source = 'GJ'");
        const std::int64_t paid =
            Demo().Ask("SELECT sum(" + Exact("PmtAmnt") + " + coalesce(" + Exact("PmtDisc") +
                       ", 0)) FROM CurrPmtDet_View WHERE ExCurrencyId = " + currency +
                       " AND Source = " + source);
        EXPECT_EQ(ledger - opening, receivable ? -paid : paid) << account;
    }
}

// The ledger's realized differences are those that the payments show, to a cent for each.
TEST(DemoLedger, RealizedDifferencesAgreeWithPayments) {
    const std::int64_t payments = Demo().Ask(
        "SELECT CAST(round(sum(round((PmtAmnt + coalesce(PmtDisc, 0)) * (PmtRate - ExchangeRate) "
        "* CASE CurrPmtType WHEN 2 THEN -1 ELSE 1 END, 2)) * 100) AS INTEGER) "
        "FROM CurrPmtDet_View WHERE ExCurrencyId <> 1");
    const std::int64_t ledger = Demo().Ask(
        "SELECT -sum(CAST(round(DetAmnt * 100) AS INTEGER)) FROM GLDet WHERE " + AccountIs("5920"));
    const std::int64_t count =
        Demo().Ask("SELECT count(*) FROM CurrPmtDet_View WHERE ExCurrencyId <> 1");
    EXPECT_GT(count, 100);
    EXPECT_NE(ledger, 0);
    EXPECT_NEAR(static_cast<double>(ledger), static_cast<double>(payments),
                static_cast<double>(count));
}

}  // namespace
}  // namespace varnel::company
