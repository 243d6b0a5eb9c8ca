#include <gmock/gmock.h>
#include <sqlite3.h>

#include <fstream>

#include "drivers/sqlite/sqlite_connection.h"
#include "tests/drivers/sqlite_fixture.h"

namespace varnel::drivers {

namespace {

using testing::HasSubstr;

Error OpenFailure(const std::string& path) {
    try {
        SqliteConnections(std::chrono::milliseconds(0)).At(path);
    } catch (const Error& error) {
        return error;
    }
    return {0, "", "no error"};
}

TEST(SqliteFiles, AMissingFileIsAnErrorAndIsNotMade) {
    const TemporaryFolder folder;
    const Error error = OpenFailure(folder.File("absent.db"));
    EXPECT_EQ(error.Number(), error_number::kDatabase);
    EXPECT_EQ(error.Source(), "SQLite");
    EXPECT_THAT(error.what(), HasSubstr("There is no file \"" + folder.File("absent.db")));
    EXPECT_FALSE(std::filesystem::exists(folder.File("absent.db")));
}

TEST(SqliteFiles, NamesThatSqliteTakesSpeciallyAreFileNames) {
    for (const char* name : {":memory:", "file:x.db?mode=rwc", ""})
        EXPECT_EQ(OpenFailure(name).Number(), error_number::kDatabase) << name;
    EXPECT_FALSE(std::filesystem::exists("x.db"));
}

TEST(SqliteFiles, WhatIsNoDatabaseIsToldAtOpening) {
    const TemporaryFolder folder;
    std::ofstream(folder.File("letter.txt")) << std::string(4'096, 'x');
    EXPECT_THAT(OpenFailure(folder.File("letter.txt")).what(), HasSubstr("not a database"));
    EXPECT_THAT(OpenFailure(folder.File("")).what(), HasSubstr("is a folder"));
}

TEST(SqliteFiles, AnUnreachableFileSaysWhy) {
    const TemporaryFolder folder;
    std::ofstream(folder.File("file")) << "";
    EXPECT_THAT(OpenFailure(folder.File("file/below.db")).what(), HasSubstr("file/below.db\""));
}

TEST(SqliteFiles, ADatabaseThatIsBeingWrittenSaysSo) {
    const TemporaryFolder folder;
    RunScript(folder.File("busy.db"), "CREATE TABLE T (Id INTEGER)");
    sqlite3* writer = nullptr;
    sqlite3_open(folder.File("busy.db").c_str(), &writer);
    sqlite3_exec(writer, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    EXPECT_THAT(OpenFailure(folder.File("busy.db")).what(), HasSubstr("Another program"));
    sqlite3_close(writer);
    EXPECT_EQ(OpenFailure(folder.File("busy.db")).Number(), 0);
}

TEST(SqliteFiles, AConnectionIsSharedAndOutlivesTheCache) {
    const TemporaryFolder folder;
    SqliteConnections connections;
    for (int i = 0; i < 6; ++i)
        RunScript(folder.File(std::to_string(i)), "CREATE TABLE T (Id INTEGER)");
    const auto first = connections.At(folder.File("0"));
    EXPECT_EQ(connections.At(folder.File("0")), first);
    const auto command = NewSqliteCommand(connections);
    command->SetActiveConnection(folder.File("0"));
    command->SetText("SELECT COUNT(*) FROM T");
    for (int i = 1; i < 6; ++i) connections.At(folder.File(std::to_string(i)));
    EXPECT_NE(connections.At(folder.File("0")), first);
    EXPECT_EQ(command->Execute(Command::kOptionsUnspecified)->Current().Integer({0}), 0);
}

TEST(SqliteConnections, CancelAQueryThatHasNoRowYet) {
    TemporaryFolder folder;
    RunScript(folder.File("a.db"), "");
    int asked = 0;
    SqliteConnections connections(std::chrono::seconds(5), [&] { return ++asked > 3; });
    const auto command = NewSqliteCommand(connections);
    command->SetActiveConnection(folder.File("a.db"));
    command->SetText(CountTo(2'000'000'000) + "SELECT COUNT(*) FROM n");
    try {
        command->Execute(Command::kOptionsUnspecified);
        FAIL() << "finished";
    } catch (const Error& error) {
        EXPECT_TRUE(std::string(error.what()).starts_with("The query was cancelled.\n"))
            << error.what();
    }
}

}  // namespace

}  // namespace varnel::drivers
