#include "tests/company/demo_database.h"

namespace varnel::company {
namespace {

struct Company {
    std::int64_t lines;
    std::uint64_t seed;
};

class DemoBelievable : public testing::TestWithParam<Company> {
  protected:
    DemoBelievable() : demo_(GetParam().lines, GetParam().seed) {}

    std::int64_t Dollars(const std::string& accounts, const std::string& dates = "1") const {
        return demo_.Ask(
            "SELECT CAST(coalesce(sum(DetAmnt), 0) AS INTEGER) FROM GLDet JOIN "
            "GLAcct ON InGLAcctId = ExAcctId WHERE (" +
            accounts + ") AND (" + dates + ")");
    }

    DemoDatabase demo_;
};

TEST_P(DemoBelievable, HasAboutTheLinesThatWereAskedFor) {
    const std::int64_t lines = demo_.Ask("SELECT count(*) FROM GLDet");
    EXPECT_GT(lines, GetParam().lines - 20);
    EXPECT_LT(lines, GetParam().lines + 20);
}

TEST_P(DemoBelievable, EarnsAModestProfitEveryYear) {
    for (const std::string year : {"2024", "2025", "2026"}) {
        const std::string dates = "DetDate LIKE '" + year + "%'";
        const std::int64_t revenue = -Dollars("AcctType = 4", dates);
        const std::int64_t goods = Dollars("AcctType = 5 AND GLAcctId < '5100'", dates);
        const std::int64_t profit = -Dollars("AcctType >= 4", dates);
        EXPECT_GT((revenue - goods) * 100, revenue * 35) << year;
        EXPECT_LT((revenue - goods) * 100, revenue * 50) << year;
        EXPECT_GT(profit, 0) << year;
        EXPECT_LT(profit * 100, revenue * 25) << year;
    }
}

TEST_P(DemoBelievable, NeverOverdrawsItsBankAccounts) {
    EXPECT_GE(demo_.Ask("SELECT min(CAST(balance AS INTEGER)) FROM (SELECT sum(CASE WHEN "
                        "GLAcct.ExCurrencyId > 1 THEN ForeignAmnt ELSE DetAmnt END) OVER "
                        "(PARTITION BY ExAcctId ORDER BY SeqNo, InGLDetId) AS balance FROM GLDet "
                        "JOIN GLAcct ON InGLAcctId = ExAcctId WHERE ChqAcct = 1)"),
              0);
}

TEST_P(DemoBelievable, IsOwedAndOwesSomeMonthsOfSalesAtMost) {
    for (const std::string end : {"2024-12-31", "2025-12-31", "2026-10-31"}) {
        const std::string dates = "DetDate <= '" + end + "'";
        const std::int64_t year_sales =
            -Dollars("AcctType = 4", dates + " AND DetDate > date('" + end + "', '-1 year')");
        const std::int64_t owed = Dollars("GLAcctId IN ('1060', '1062', '1064')", dates);
        const std::int64_t owing = -Dollars("GLAcctId IN ('2010', '2012', '2014')", dates);
        EXPECT_GT(owed * 100, year_sales * 4) << end;
        EXPECT_LT(owed * 100, year_sales * 35) << end;
        EXPECT_GT(owing * 100, year_sales * 2) << end;
        EXPECT_LT(owing * 100, year_sales * 35) << end;
    }
}

TEST_P(DemoBelievable, KeepsStockOnHand) {
    EXPECT_GT(Dollars("GLAcctId = '1110'", "DetDate <= '2025-12-31'"), 0);
    EXPECT_GT(Dollars("GLAcctId = '1110'"), 0);
}

INSTANTIATE_TEST_SUITE_P(Sizes, DemoBelievable,
                         testing::Values(Company{2'000, 1}, Company{2'000, 7}, Company{12'000, 1},
                                         Company{12'000, 2}, Company{50'000, 3}));

}  // namespace
}  // namespace varnel::company
