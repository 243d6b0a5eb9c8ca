// Balances over a database: how many queries they take, and that they are exact.

#include <random>

#include "company/sqlite_company_database.h"
#include "tests/company/host_small_company.h"

namespace varnel::company {
namespace {

/// Counts the queries that go to a database.
class CountingDatabase final : public CompanyDatabase {
  public:
    CountingDatabase(const std::string& path, int& queries) : database_(path), queries_(queries) {}
    std::string ConnectionString() override { return database_.ConnectionString(); }
    int DatabaseType() override { return database_.DatabaseType(); }
    std::shared_ptr<Command> NewCommand() override {
        ++queries_;
        return database_.NewCommand();
    }
    void BindParameters(Command& command, std::span<const Variant> parameters) override {
        database_.BindParameters(command, parameters);
    }

  private:
    SqliteCompanyDatabase database_;
    int& queries_;
};

class CountedQueries : public testing::Test {
  protected:
    CompanyFile file_{kSmallCompany};
    int queries_ = 0;
    std::shared_ptr<CompanyHost> host_ =
        OpenCompany(std::make_unique<CountingDatabase>(file_.Path(), queries_), "test");
    BalanceService& balances_ = host_->CurrentCompany().Balances();

    template <class Action>
    int QueriesOf(Action action) {
        const int before = queries_;
        action();
        return queries_ - before;
    }
};

TEST_F(CountedQueries, AllAccountsOfAScopeTakeOneQuery) {
    const BalanceScope year{Day("2025-01-01"), Day("2025-12-31"), "", ""};
    EXPECT_EQ(QueriesOf([&] {
                  for (int account_id = -1; account_id < 60; ++account_id)
                      for (const bool foreign : {false, true})
                          balances_.AccountBalance(account_id, year, foreign);
              }),
              1);
    BalanceScope other = year;
    other.project_ids = "7";
    EXPECT_EQ(QueriesOf([&] { balances_.AccountBalance(10, other, false); }), 1);
    EXPECT_EQ(QueriesOf([&] { balances_.AccountBalance(10, year, false); }), 0);
}

TEST_F(CountedQueries, EarningsShareTheQueryOfTheSameScope) {
    balances_.EarningsBefore(Day("2025-01-01"), {});  // Reads the chart too.
    const BalanceScope before{kOpenStart, Day("2024-12-31"), "", ""};
    EXPECT_EQ(QueriesOf([&] {
                  balances_.EarningsBefore(Day("2025-01-01"), {});
                  balances_.AccountBalance(40, before, false);
              }),
              0);
}

TEST_F(CountedQueries, ABalanceSheetTakesTwo) {
    Rates rates;
    host_->CurrentCompany().GetCurrencyInfo().ConfigureExchangeRates(rates, kOpenEnd, true, {});
    const auto ask = [&](std::string_view date) {
        const BalanceScope scope{kOpenStart, Day(date), "", ""};
        for (int account_id = 10; account_id < 40; ++account_id)
            balances_.StatementBalance(account_id, scope, rates);
    };
    ask("2024-06-30");  // Reads the chart and the like too.
    EXPECT_EQ(QueriesOf([&] { ask("2025-04-30"); }), 2);
    EXPECT_EQ(QueriesOf([&] { ask("2025-04-30"); }), 0);
}

TEST_F(CountedQueries, ANewRunSeesTheLedgerAsItIsThen) {
    EXPECT_EQ(Text(balances_.AccountBalance(10, {}, false)), "499.65");
    file_.Run("UPDATE GLDet SET DetAmnt = 1000.35 WHERE InGLDetId = 1");
    EXPECT_EQ(Text(balances_.AccountBalance(10, {}, false)), "499.65");
    host_->CurrentCompany().BeginRun();
    EXPECT_EQ(Text(balances_.AccountBalance(10, {}, false)), "500.00");
}

TEST_F(CountedQueries, RowsThatSeldomChangeAreReadOnceARun) {
    auto& company = host_->CurrentCompany();
    const auto ask = [&] {
        company.GetSetting("A", "", nullptr, -1);
        company.GetGLAccountParam("GLRtainEarn", "Cie");
        company.FiscalYearStart(Day("2025-01-01"));
        company.UsesProjects();
        company.Accounts().CurrencyOf(10);
        company.GetAccountTypes().Class(1);
        company.Budgets().GetAcctBudgetRange(50, kOpenStart, kOpenEnd);
        company.GetCurrencyInfo().GetCurrencies().Item(1);
    };
    ask();
    EXPECT_EQ(QueriesOf(ask), 0);
    company.BeginRun();
    EXPECT_EQ(QueriesOf(ask), 7);  // All but the list of currencies.
}

/// Lines of random cents on the accounts 10, 11, 40 and 50, with and without segment and project.
std::string RandomLines() {
    std::mt19937 random(7);
    const auto below = [&random](unsigned limit) { return static_cast<int>(random() % limit); };
    const auto cents = [&] {
        const std::string digits = std::to_string(below(2'000'000'000) + 100);
        return (below(2) != 0 ? "-" : "") + digits.substr(0, digits.size() - 2) + "." +
               digits.substr(digits.size() - 2);
    };
    const auto key = [&](int limit) {
        const int value = below(static_cast<unsigned>(limit));
        return value == 0 ? std::string("NULL") : std::to_string(value);
    };
    std::string lines;
    for (int i = 100; i < 700; ++i) {
        const char* accounts[] = {"10", "11", "40", "50"};
        const Date date = Day("2024-01-01") + below(700);
        lines += (lines.empty() ? "(" : ", (") + std::to_string(i) + ", 9, '" + date.ToIso() +
                 "', " + accounts[below(4)] + ", " + cents() + ", " + cents() + ", " + key(9) +
                 ", " + key(4) + ")";
    }
    return "INSERT INTO GLDet (InGLDetId, SeqNo, DetDate, ExAcctId, DetAmnt, ForeignAmnt, "
           "ExProjId, ExSegmentId) VALUES " +
           lines + ";";
}

TEST(LedgerBalances, AgreeWithSumsOfWholeCents) {
    const CompanyFile file(kSmallCompany + RandomLines());
    const auto host = OpenCompany(file.Path());
    const BalanceScope scopes[] = {
        {},
        {Day("2024-06-01"), Day("2025-05-31"), "", ""},
        {kOpenStart, Day("2025-02-28"), "(GLDet.ExSegmentId IN (1,3))", ""},
        {Day("2024-06-01"), kOpenEnd, "(GLDet.ExSegmentId IS NULL)", "1,2,8"},
    };
    for (const auto& scope : scopes)
        for (const int account_id : {10, 11, 40, 50})
            for (const bool foreign : {false, true}) {
                std::string query = "SELECT SUM(CAST(ROUND(100 * ";
                query += foreign ? "ForeignAmnt" : "DetAmnt";
                query += ") AS INTEGER)) FROM GLDet WHERE DetDate >= '" + scope.from.ToIso() +
                         "' AND DetDate <= '" + scope.to.ToIso() +
                         "' AND ExAcctId = " + std::to_string(account_id);
                if (!scope.segment_clause.empty()) query += " AND " + scope.segment_clause;
                if (!scope.project_ids.empty())
                    query += " AND ExProjId IN (" + scope.project_ids + ")";
                const auto balance =
                    host->CurrentCompany().Balances().AccountBalance(account_id, scope, foreign);
                EXPECT_EQ(balance.Scaled(), 100 * file.Ask(query)) << query;
            }
}

}  // namespace
}  // namespace varnel::company
