#include <gtest/gtest.h>

#include "tests/drivers/driver_cases.h"

namespace varnel::drivers {

namespace {

/// A table of `count` equal amounts.
void PrepareAmounts(DriverFixture& database, int count, const std::string& amount) {
    database.Prepare(
        "CREATE TABLE Det (Acct INTEGER NOT NULL, Amnt RealAmount);"
        "INSERT INTO Det " +
        CountTo(count) + "SELECT i % 10, " + amount + " FROM n;");
}

void AMillionAmountsAddExactly(DriverFixture& database) {
    PrepareAmounts(database, 1'000'000, "499999.37");
    EXPECT_EQ(database.Amount("SELECT SUM(Amnt) FROM Det").ToText(2), "499999370000.00");
}

/// Nearly the largest amount there is, far beyond what a binary number carries to the cent.
void ALargeSumIsExact(DriverFixture& database) {
    PrepareAmounts(database, 900'001, "1000000000.01");
    EXPECT_EQ(database.Amount("SELECT SUM(Amnt) FROM Det").ToText(2), "900001000009000.01");
    EXPECT_EQ(database.Amount("SELECT SUM(-Amnt) FROM Det").ToText(2), "-900001000009000.01");
    EXPECT_EQ(database.Amount("SELECT SUM(s) FROM (SELECT SUM(Amnt) AS s FROM Det GROUP BY Acct) q")
                  .ToText(2),
              "900001000009000.01");
}

void AmountsThatCancelLeaveNothing(DriverFixture& database) {
    PrepareAmounts(database, 1'000, "CASE WHEN i % 20 < 10 THEN 0.1 ELSE -0.1 END");
    EXPECT_TRUE(database.Amount("SELECT SUM(Amnt) FROM Det").IsZero());
    EXPECT_EQ(database.Value(
                  "SELECT COUNT(*) FROM (SELECT 1 FROM Det GROUP BY Acct HAVING SUM(Amnt) <> 0) q"),
              "0");
}

void ASumIsANumberInQueries(DriverFixture& database) {
    PrepareAmounts(database, 100, "0.07");
    EXPECT_EQ(database.Amount("SELECT SUM(Amnt) * 2 FROM Det").ToText(2), "14.00");
    EXPECT_EQ(database
                  .Query("SELECT Acct FROM Det GROUP BY Acct HAVING SUM(Amnt) = 0.7 "
                         "ORDER BY SUM(Amnt), Acct DESC")
                  ->Current()
                  .Integer({0}),
              9);
}

void ASumOfNothingIsNull(DriverFixture& database) {
    PrepareAmounts(database, 3, "NULL");
    const auto rows = database.Query(
        "SELECT SUM(Amnt), (SELECT SUM(Acct) FROM Det WHERE Acct > 50), SUM(Acct) FROM Det");
    EXPECT_TRUE(rows->Current().IsNull({0}));
    EXPECT_TRUE(rows->Current().IsNull({1}));
    EXPECT_EQ(rows->Current().Integer({2}), 6);
}

}  // namespace

std::vector<DriverCase> SumCases() {
    return {
        {"a_million_amounts_add_exactly", AMillionAmountsAddExactly},
        {"a_large_sum_is_exact", ALargeSumIsExact},
        {"amounts_that_cancel_leave_nothing", AmountsThatCancelLeaveNothing},
        {"a_sum_is_a_number_in_queries", ASumIsANumberInQueries},
        {"a_sum_of_nothing_is_null", ASumOfNothingIsNull},
    };
}

}  // namespace varnel::drivers
