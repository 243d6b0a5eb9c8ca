// Balances as statements print them, in companies that have more to them than the small one.

#include "tests/company/host_small_company.h"

namespace varnel::company {
namespace {

/// What the accounts of the small company show on 2025-04-30, revalued, after `script`.
class Statement {
  public:
    explicit Statement(const std::string& script)
        : file_(kSmallCompany + script), host_(OpenCompany(file_.Path())) {
        company_.GetCurrencyInfo().ConfigureExchangeRates(rates_, scope_.to, true, {});
        rates_.reevaluate = true;
    }
    std::string Of(std::int32_t account_id) {
        return Text(company_.Balances().StatementBalance(account_id, scope_, rates_));
    }

  private:
    CompanyFile file_;
    std::shared_ptr<CompanyHost> host_;
    Company& company_ = host_->CurrentCompany();
    BalanceScope scope_{kOpenStart, Day("2025-04-30"), "", ""};
    Rates rates_;
};

TEST(StatementBalance, KeepsWhatIsPostedToEarningsThemselves) {
    Statement statement(
        "INSERT INTO GLDet (InGLDetId, SeqNo, DetDate, ExAcctId, DetAmnt) VALUES"
        " (20, 7, '2025-02-01', 30, 50), (21, 7, '2025-02-01', 33, -50);");
    EXPECT_EQ(statement.Of(30), "-649.90");
    EXPECT_EQ(statement.Of(33), "-134.15");
}

TEST(StatementBalance, GivesOneAccountBothEarningsWhenItHasBothRoles) {
    Statement statement("UPDATE GLAccountParam SET ExAcctId = 30 WHERE ParamName = 'GLCurntEarn';");
    EXPECT_EQ(statement.Of(30), "-784.05") << "699.90, 74.75 and 9.40";
    EXPECT_EQ(statement.Of(33), "0.00");
}

// Sales of 200 dollars. The earlier 1000 were in home currency: only the dollars are worth
// anything.
TEST(StatementBalance, RevaluesAnIncomeAccountThatCurrentEarningsDoNotCount) {
    Statement statement("UPDATE GLAcct SET ExCurrencyId = 2 WHERE InGLAcctId = 40;");
    EXPECT_EQ(statement.Of(40), "-290.51");
    EXPECT_EQ(statement.Of(33), "-84.15");
}

TEST(StatementBalance, RevaluesNothingInACompanyOfOneCurrency) {
    Statement statement("INSERT INTO CompanySetting VALUES ('UseForeignCurrency', 'False');");
    EXPECT_EQ(statement.Of(11), "106.80");
    EXPECT_EQ(statement.Of(33), "-74.75");
}

TEST(StatementBalance, TakesTheHomeCurrencyAsAnAccountsOwnForNoForeignOne) {
    Statement statement("UPDATE GLAcct SET ExCurrencyId = 1 WHERE InGLAcctId = 11;");
    EXPECT_EQ(statement.Of(11), "106.80");
    EXPECT_EQ(statement.Of(33), "-74.75");
}

// Account 20 is the company's own payable account: a control account in whatever currency.
TEST(StatementBalance, LeavesTheCompanysOwnControlAccountsAsBookedWhereTheyServe) {
    Statement statement(
        "UPDATE GLAcct SET ExCurrencyId = 2 WHERE InGLAcctId = 20;"
        "UPDATE WorldCurrency SET APGLAccountId = 0 WHERE InCurrencyId = 2;");
    EXPECT_EQ(statement.Of(20), "28.20");
    EXPECT_EQ(statement.Of(33), "-84.15");
}

// 100 dollars that are booked at 140.00 are worth 145.26 on an account that is no longer one.
TEST(StatementBalance, RevaluesTheControlAccountOfAnotherCurrency) {
    Statement statement(
        "UPDATE WorldCurrency SET ARGLAccountId = 0 WHERE InCurrencyId = 2;"
        "UPDATE WorldCurrency SET ARGLAccountId = 12 WHERE InCurrencyId = 4;");
    EXPECT_EQ(statement.Of(12), "145.26");
    EXPECT_EQ(statement.Of(33), "-89.41") << "74.75, 9.40 and 5.26";
}

TEST(StatementBalance, NeedsNoRateForACurrencyWithoutBalances) {
    const std::string old_currency =
        "INSERT INTO WorldCurrency VALUES (9, 'DEM', 'Mark', NULL, 2, 0, 0);"
        "INSERT INTO GLAcct (InGLAcctId, GLAcctId, Descr, AcctType, GroupType, ExCurrencyId) VALUES"
        " (13, '1020', 'Bank DEM', 1, 2, 9);";
    EXPECT_EQ(Statement(old_currency).Of(33), "-84.15");
    Statement owed(old_currency +
                   "INSERT INTO GLDet (InGLDetId, SeqNo, DetDate, ExAcctId, DetAmnt, ForeignAmnt)"
                   " VALUES (20, 7, '2025-02-01', 13, 0, 10);");
    for (const std::int32_t account_id : {13, 33})
        EXPECT_THAT(ErrorOf([&] { owed.Of(account_id); }), testing::HasSubstr("DEM"));
}

}  // namespace
}  // namespace varnel::company
