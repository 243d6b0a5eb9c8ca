#include <gmock/gmock.h>

#include <chrono>
#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <thread>

#include "tests/drivers/odbc_fixture.h"

namespace varnel::drivers {

namespace {

using testing::HasSubstr;

class OdbcReading : public testing::Test {
  protected:
    void SetUp() override {
        if (ServerFolder().empty()) GTEST_SKIP() << "there is no PostgreSQL server for the tests";
        database_ = std::make_unique<OdbcFixture>();
    }

    std::unique_ptr<OdbcFixture> database_;
};

/// Longer than any place for a text, in blocks that are full and in the last one.
TEST_F(OdbcReading, LongTextsComeWhole) {
    const auto rows = database_->Query(
        "SELECT i, repeat('é€😀', i * 50) AS Long, 'short' AS Short, repeat('x', 40000) AS Other "
        "FROM generate_series(1, 600) i ORDER BY i");
    std::string expected;
    for (int i = 1; i <= 600; ++i, rows->MoveNext()) {
        for (int repeats = 0; repeats < 50; ++repeats) expected += "é€😀";
        const Row& row = rows->Current();
        ASSERT_EQ(row.Integer({0}), i);
        ASSERT_EQ(row.Text({1}), expected) << i;
        ASSERT_EQ(row.Text({2}), "short");
        ASSERT_EQ(row.Text({3}), std::string(40'000, 'x'));
    }
    EXPECT_TRUE(rows->AtEnd());
}

TEST_F(OdbcReading, DecimalsAreExactWhateverTheirScale) {
    const auto rows = database_->Query(
        "SELECT CAST(0.12345678 AS numeric(18,8)), CAST(1.5 AS numeric(18,8)), "
        "CAST(-922337203685477.5807 AS numeric(19,4)), 1e20, CAST(7 AS numeric), 0.00005");
    const Row& row = rows->Current();
    EXPECT_EQ(row.ExchangeRate({0}), Rate::FromScaled(12'345'678));
    EXPECT_EQ(row.ExchangeRate({1}), Rate::FromScaled(150'000'000));
    EXPECT_EQ(row.Amount({2}), Currency::FromScaled(-9'223'372'036'854'775'807));
    EXPECT_THROW(row.Amount({3}), Error);
    EXPECT_EQ(row.Integer({4}), 7);
    EXPECT_EQ(row.Amount({5}), Currency::FromScaled(1));
}

TEST_F(OdbcReading, OtherTypesReadAsTheirNearestKind) {
    const auto rows = database_->Query(
        "SELECT true, CAST(2.5 AS double precision), TIMESTAMP '2025-03-31 12:30:00', "
        "CAST(9000000000 AS bigint), CAST('abc' AS char(5)), NULL");
    const Row& row = rows->Current();
    EXPECT_TRUE(row.Truth({0}));
    EXPECT_EQ(row.Amount({1}), Currency::FromScaled(25'000));
    EXPECT_EQ(row.Day({2}), Date::FromYearMonthDay(2025, 3, 31));
    EXPECT_EQ(row.Integer64({3}), 9'000'000'000);
    EXPECT_EQ(row.Text({4}), "abc  ");
    EXPECT_TRUE(row.IsNull({5}));
    EXPECT_THAT(database_->Failure("SELECT 1, CAST('x' AS bytea) AS Picture").what(),
                HasSubstr("\"picture\" holds binary data"));
}

TEST_F(OdbcReading, TextsOfQueryAndParametersAreUtf8) {
    EXPECT_EQ(database_->Value("SELECT 'Zoë 😀 ' & ?", {"naïve €"}), "Zoë 😀 naïve €");
    EXPECT_EQ(database_->Value("SELECT ? & 'x'", {""}), "x");
    EXPECT_TRUE(database_->Query("SELECT ? AS Nothing", {Variant::Null{}})->Current().IsNull({0}));
}

/// The process is French and of Latin 1 while it lives.
class LatinProcess {
  public:
    LatinProcess() {
        folder_ = std::filesystem::path(testing::TempDir()) / "latin_locale";
        std::filesystem::create_directory(folder_);
        const auto made = (folder_ / "fr_CA").string();
        EXPECT_EQ(std::system(("localedef -i fr_CA -f ISO-8859-1 " + made).c_str()), 0);
        ::setenv("LOCPATH", folder_.c_str(), 1);
        EXPECT_NE(std::setlocale(LC_ALL, "fr_CA"), nullptr);
    }
    ~LatinProcess() {
        std::setlocale(LC_ALL, "C");
        ::unsetenv("LOCPATH");
        std::filesystem::remove_all(folder_);
    }
    LatinProcess(const LatinProcess&) = delete;
    LatinProcess& operator=(const LatinProcess&) = delete;

  private:
    std::filesystem::path folder_;
};

TEST_F(OdbcReading, NothingDependsOnTheLocaleOfTheProgram) {
    const LatinProcess latin;
    const auto rows = database_->Query(
        "SELECT 'Zoë €' & ?, repeat('é€', 200), CAST(-1234.56 AS numeric(19,4)), 2.5e0", {" ç"});
    const Row& row = rows->Current();
    EXPECT_EQ(row.Text({0}), "Zoë € ç");
    EXPECT_EQ(row.Text({1}).size(), 1'000U);
    EXPECT_EQ(row.Amount({2}), Currency::FromScaled(-12'345'600));
    EXPECT_EQ(row.Amount({3}), Currency::FromScaled(25'000));
}

TEST_F(OdbcReading, AFailingQueryDoesNotEndTheRowsBesideIt) {
    const auto rows = database_->Query("SELECT i FROM generate_series(1, 20000) i ORDER BY i");
    std::int64_t count = 0;
    for (; !rows->AtEnd(); rows->MoveNext()) {
        if (++count % 4'000 != 0) continue;
        EXPECT_NE(database_->Failure("SELECT 1 / 0").Number(), 0);
    }
    EXPECT_EQ(count, 20'000);
}

TEST_F(OdbcReading, ErrorsCarrySqlStateMessageAndStatement) {
    EXPECT_STREQ(database_->Failure("SELECT 1 / (? - 1)", {1}).what(),
                 "division by zero (SQLSTATE 22012).\nStatement: SELECT 1 / (? - 1)");
    EXPECT_THAT(database_->Failure("SELECT Missing").what(), HasSubstr("(SQLSTATE 42703). No tab"));
}

/// What begins by reading is for the server to refuse.
TEST_F(OdbcReading, ASessionStaysReadOnly) {
    database_->Prepare("CREATE TABLE T (Id INTEGER NOT NULL); INSERT INTO T VALUES (1);");
    database_->Query("SELECT set_config('default_transaction_read_only', 'off', false)");
    for (const char* text : {"WITH w AS (INSERT INTO T VALUES (2) RETURNING Id) SELECT * FROM w",
                             "SELECT set_config('transaction_read_only', 'off', false) FROM T",
                             "SELECT nextval('Numbers')", "SELECT * INTO U FROM T"}) {
        EXPECT_NE(database_->Failure(text).Number(), 0) << text;
    }
    EXPECT_EQ(database_->Value("SELECT COUNT(*) FROM T"), "1");
    EXPECT_EQ(database_->Value("SELECT current_setting('transaction_read_only')"), "on");
}

/// As one database reads these they are a query with a text, as PostgreSQL does they are more.
TEST_F(OdbcReading, NoSecondStatementHidesInAQuery) {
    database_->Prepare("CREATE TABLE T (Id INTEGER NOT NULL); INSERT INTO T VALUES (1);");
    const std::string attack = "; COMMIT; BEGIN READ WRITE; DELETE FROM T; COMMIT; --'";
    for (const char* start : {"E'\\''", "e'\\''", "1E'\\''", "$$'$$", "1$$'$$", "$a$'$a$",
                              "1 /* /* */ ' */", "1 --\r '\n", "ARRAY[']']", "`'`", "\"x", "1 /* x",
                              "1 /*/*/ ' */", "1 -{d -'}\n", "1 /{d *'}*/"}) {
        const std::string text = "SELECT " + std::string(start) + attack;
        EXPECT_NE(database_->Failure(text).Number(), 0) << text;
        EXPECT_EQ(database_->Value("SELECT COUNT(*) FROM T"), "1") << text;
    }
    database_->Prepare("ALTER DATABASE postgres SET standard_conforming_strings = off");
    OdbcConnections connections;
    const auto query = NewOdbcCommand(connections);
    query->SetActiveConnection(database_->ConnectionString());
    query->SetText(
        "SELECT '\\' AS Backslash, 'it''s \"so', 1 AS \"it's\" /* ' */ -- '\n FROM T WHERE 'e' "
        "LIKE'%e%'");
    const auto rows = query->Execute(Command::kOptionsUnspecified);
    database_->Prepare("ALTER DATABASE postgres RESET standard_conforming_strings");
    EXPECT_EQ(rows->Current().Text({0}), "\\");
    EXPECT_EQ(rows->Current().Text({1}), "it's \"so");
}

TEST_F(OdbcReading, DatesThatReportsDoNotKnowAreErrors) {
    EXPECT_EQ(database_->Query("SELECT DATE '0099-12-31'")->Current().Day({0}).ToIso(),
              "0099-12-31");
    for (const std::string date : {"infinity", "-infinity", "12025-03-15"})
        EXPECT_THAT(database_->Failure("SELECT DATE '" + date + "' AS Day").what(),
                    HasSubstr("Column \"day\" holds"));
}

TEST_F(OdbcReading, ASnapshotThatWasLostIsTold) {
    auto held = database_->HoldSnapshot();
    database_->Query("SELECT 1");
    database_->Prepare(
        "SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE pid <> pg_backend_pid() "
        "AND application_name = current_setting('application_name') "
        "AND query LIKE '%SET LOCAL idle_in_transaction%'");
    EXPECT_FALSE(database_->IsLost());
    EXPECT_THAT(database_->Failure("SELECT 1").what(), HasSubstr("was lost: run it again"));
    EXPECT_TRUE(database_->IsLost());
    EXPECT_STREQ(database_->Failure("SELECT 2").what(), database_->Failure("SELECT 1").what());
    held.reset();
    EXPECT_EQ(database_->Value("SELECT 1"), "1");
    held = database_->HoldSnapshot();
    EXPECT_EQ(database_->Value("SELECT 1"), "1");
    EXPECT_FALSE(database_->IsLost());
}

TEST_F(OdbcReading, ASnapshotOutlivesALimitOnRest) {
    const std::string string = database_->ConnectionString() + "ConnSettings={";
    OdbcConnections connections;
    const auto held = connections.HoldSnapshot();
    const auto count = [&] {
        const auto query = NewOdbcCommand(connections);
        query->SetActiveConnection(string + "SET idle_in_transaction_session_timeout = 100}");
        query->SetText("SELECT 1");
        return query->Execute(Command::kOptionsUnspecified)->Current().Integer({0});
    };
    EXPECT_EQ(count(), 1);
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    EXPECT_EQ(count(), 1);
}

TEST_F(OdbcReading, ACancelledQueryEnds) {
    const auto start = std::chrono::steady_clock::now();
    OdbcConnections connections(
        [&] { return std::chrono::steady_clock::now() - start > std::chrono::milliseconds(300); });
    const auto query = NewOdbcCommand(connections);
    query->SetActiveConnection(database_->ConnectionString());
    query->SetText("SELECT 1 FROM pg_sleep(30)");
    try {
        query->Execute(Command::kOptionsUnspecified);
        FAIL() << "finished";
    } catch (const Error& error) {
        EXPECT_THAT(error.what(), testing::StartsWith("The query was cancelled."));
    }
}

TEST_F(OdbcReading, ConnectionsServeOneQueryAfterTheOther) {
    const auto process = [&] { return database_->Value("SELECT pg_backend_pid()"); };
    const auto first = process();
    EXPECT_EQ(process(), first);
    const auto streaming = database_->Query("SELECT i FROM generate_series(1, 9000) i");
    EXPECT_NE(process(), first);
}

TEST_F(OdbcReading, AConnectionThatWasLostWhileItRestedIsReplaced) {
    const auto lost = database_->Value("SELECT pg_backend_pid()");
    database_->Prepare("SELECT pg_terminate_backend(" + lost + ")");
    std::this_thread::sleep_for(std::chrono::milliseconds(1'100));
    EXPECT_NE(database_->Value("SELECT pg_backend_pid()"), lost);
}

TEST_F(OdbcReading, AllQueriesOfASnapshotSeeOneMoment) {
    database_->Prepare("CREATE TABLE T (Id INTEGER NOT NULL)");
    const auto post = [&] { database_->Prepare("INSERT INTO T SELECT generate_series(1, 6000)"); };
    const auto count = [&] { return database_->Value("SELECT COUNT(*) FROM T"); };
    post();
    auto held = database_->HoldSnapshot();
    EXPECT_EQ(count(), "6000");
    const auto streaming = database_->Query("SELECT Id FROM T");
    post();
    EXPECT_EQ(count(), "6000");
    EXPECT_EQ(database_->HoldSnapshot(), held);
    EXPECT_NE(database_->Failure("SELECT 1 / 0").Number(), 0);
    EXPECT_EQ(count(), "6000");
    held.reset();
    EXPECT_EQ(count(), "12000");
    held = database_->HoldSnapshot();
    EXPECT_EQ(count(), "12000");
}

}  // namespace

}  // namespace varnel::drivers
