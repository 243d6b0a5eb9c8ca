#include <gmock/gmock.h>

#include "tests/drivers/sqlite_fixture.h"

namespace varnel::drivers {

namespace {

using testing::HasSubstr;

std::string SumOf(const std::string& values) {
    SqliteFixture database;
    return database.Value("SELECT typeof(SUM(column1)) || ' ' || SUM(column1) FROM (VALUES " +
                          values + ")");
}

TEST(ExactSum, KeepsTheTypeOfWhatItAdds) {
    EXPECT_EQ(SumOf("(1), (NULL), (2)"), "integer 3");
    EXPECT_EQ(SumOf("(1), (0.25), (2)"), "real 3.25");
    EXPECT_EQ(SumOf("(9000000000000000000), (-9000000000000000000), (5)"), "integer 5");
    EXPECT_EQ(SumOf("('12.50'), ('-2.25')"), "real 10.25");
}

TEST(ExactSum, GivesTextWhereARealNumberLosesDecimals) {
    EXPECT_EQ(SumOf("(4000000000000.25), (4000000000000.25), (0.0001)"), "text 8000000000000.5001");
    EXPECT_EQ(SumOf("(-4000000000000.25), (-4000000000000.25), (-0.0001)"),
              "text -8000000000000.5001");
    EXPECT_EQ(SumOf("('900000000000000.0001'), ('900000000000000.0000')"),
              "text 1800000000000000.0001");
}

TEST(ExactSum, AddsAMillionAmountsBeyondTheLargestCurrency) {
    SqliteFixture database;
    EXPECT_EQ(database.Value(CountTo(1'000'000) + "SELECT SUM(1000000000.01 + 0 * i) FROM n"),
              "1000000000010000.0000");
}

TEST(ExactSum, RoundsHalfATenThousandthAwayFromZero) {
    EXPECT_EQ(SumOf("(0.03125)"), "real 0.0313");  // Binary numbers that are exactly half way.
    EXPECT_EQ(SumOf("(-0.03125)"), "real -0.0313");
    EXPECT_EQ(SumOf("(0.00004999)"), "real 0.0");
}

TEST(ExactSum, RefusesWhatIsNoAmount) {
    SqliteFixture database;
    for (const char* value : {"'abc'", "x'00'", "1e300", "9e999", "''"})
        EXPECT_THAT(database.Failure(std::string("SELECT SUM(") + value + ")").what(),
                    HasSubstr("no amount"))
            << value;
    EXPECT_THAT(
        database.Failure("SELECT SUM(column1) FROM (VALUES (9223372036854775807), (1))").what(),
        HasSubstr("too large"));
}

TEST(ExactSum, ServesViewsToo) {
    SqliteFixture database;
    database.Prepare(
        "CREATE TABLE T (a REAL); INSERT INTO T VALUES (0.1), (0.2), (-0.3);"
        "CREATE VIEW V AS SELECT SUM(a) AS s FROM T;");
    EXPECT_EQ(database.Value("SELECT s = 0 FROM V"), "1");
}

}  // namespace

}  // namespace varnel::drivers
