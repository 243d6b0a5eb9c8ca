#include <gmock/gmock.h>

#include "tests/drivers/sqlite_fixture.h"

namespace varnel::drivers {

namespace {

using testing::HasSubstr;

TEST(SqliteReadOnly, SaysWhatAQueryMayNotDo) {
    const struct {
        const char* text;
        const char* refusal;
    } cases[] = {
        {"INSERT INTO T VALUES (2)", "may not change the rows of T."},
        {"CREATE VIEW V AS SELECT 1", "may not change the tables of the database."},
        {"ATTACH 'other.db' AS o", "may not attach or detach a database."},
        {"PRAGMA user_version = 5", "may not use PRAGMA user_version."},
        {"SELECT * FROM pragma_table_info('T')", "A query may only read"},
        {"BEGIN", "may not begin or end a transaction."},
        {"SAVEPOINT s", "may not begin or end a transaction."},
        {"SELECT load_extension('x')", "may not call load_extension."},
        {"ANALYZE", "may not change"},
        {"REINDEX T", "may not change"},
        {"VACUUM INTO 'copy.db'", "may not attach"},
    };
    SqliteFixture database;
    database.Prepare("CREATE TABLE T (Id INTEGER PRIMARY KEY, Name TEXT UNIQUE)");
    for (const auto& each : cases)
        EXPECT_THAT(database.Failure(each.text).what(), HasSubstr(each.refusal)) << each.text;
}

TEST(SqliteReadOnly, AllowsEveryKindOfReading) {
    SqliteFixture database;
    database.Prepare(
        "CREATE TABLE T (Id INTEGER); INSERT INTO T VALUES (1), (2), (2);"
        "CREATE VIEW V AS SELECT DISTINCT Id FROM T;");
    EXPECT_EQ(database.Value("SELECT COUNT(*) FROM V WHERE Id IN (SELECT Id FROM T UNION SELECT 7) "
                             "OR upper('a') = iif(Id, 'A', 'B')"),
              "2");
    EXPECT_EQ(database.Value(CountTo(5) + "SELECT MAX(i) OVER () FROM n ORDER BY i"), "5");
}

TEST(SqliteReadOnly, BinaryDataIsAnErrorThatNamesTheColumn) {
    SqliteFixture database;
    const Error error = database.Failure("SELECT 1 AS One, x'00ff' AS Picture");
    EXPECT_EQ(error.Number(), error_number::kDatabase);
    EXPECT_THAT(error.what(), HasSubstr("\"Picture\" holds binary data"));
}

TEST(SqliteReadOnly, AnObjectIsNoParameter) {
    SqliteFixture database;
    EXPECT_THAT(database.Failure("SELECT ?, ?", {1, ObjectRef()}).what(),
                HasSubstr("Parameter 2 is an object"));
}

}  // namespace

}  // namespace varnel::drivers
