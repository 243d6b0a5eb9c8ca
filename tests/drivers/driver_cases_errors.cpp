#include <gmock/gmock.h>

#include <functional>

#include "tests/drivers/driver_cases.h"

namespace varnel::drivers {

namespace {

using testing::HasSubstr;

void AFailureCarriesTheStatement(DriverFixture& database) {
    const std::string text = "SELECT 'a' & Missing FROM Absent WHERE x = ?";
    const Error error = database.Failure(text, {1});
    EXPECT_EQ(error.Number(), error_number::kDatabase);
    EXPECT_THAT(error.what(), HasSubstr("Absent"));
    EXPECT_THAT(error.what(), HasSubstr("company database?"));
    EXPECT_TRUE(std::string(error.what()).ends_with("company database?\nStatement: " + text))
        << error.what();
}

void AFailureAmongTheRowsCarriesTheStatement(DriverFixture& database) {
    database.Prepare(
        "CREATE TABLE Docs (Id INTEGER NOT NULL, Body TEXT);"
        "INSERT INTO Docs VALUES (1, '{}'); INSERT INTO Docs VALUES (2, '{');");
    const Error error = database.Failure("SELECT json(Body) FROM Docs ORDER BY Id");
    EXPECT_EQ(error.Number(), error_number::kDatabase);
    EXPECT_THAT(error.what(), HasSubstr("SELECT json(Body) FROM Docs ORDER BY Id"));
}

void TheNumberOfParametersMustFit(DriverFixture& database) {
    const std::string text = "SELECT 1 WHERE 1 = ? AND 2 = ?";
    EXPECT_THAT(database.Failure(text, {1}).what(), HasSubstr("has 2 parameters; 1 value came"));
    EXPECT_THAT(database.Failure(text, {1, 2, 3}).what(), HasSubstr("2 parameters; 3 values"));
    EXPECT_EQ(database.Failure(text, {1, 2}).Number(), 0);
}

void ACommandIsOneStatement(DriverFixture& database) {
    database.Prepare("CREATE TABLE T (Id INTEGER NOT NULL); INSERT INTO T VALUES (1);");
    EXPECT_THAT(database.Failure("SELECT 1; DELETE FROM T").what(), HasSubstr("\"DELETE\""));
    for (const char* empty : {"", "  -- only a comment", ";"})
        EXPECT_THAT(database.Failure(empty).what(), HasSubstr("no statement")) << empty;
    EXPECT_EQ(database.Value("SELECT COUNT(*) FROM T; -- the end"), "1");
}

void AQueryMayNotWrite(DriverFixture& database) {
    database.Prepare("CREATE TABLE T (Id INTEGER NOT NULL); INSERT INTO T VALUES (1);");
    for (const char* text : {"INSERT INTO T VALUES (2)", "UPDATE T SET Id = 3", "DELETE FROM T",
                             "CREATE TABLE U (Id INTEGER)", "CREATE TEMP TABLE U (Id INTEGER)",
                             "DROP TABLE T", "ALTER TABLE T ADD COLUMN X INTEGER"}) {
        EXPECT_THAT(database.Failure(text).what(), HasSubstr("may only read")) << text;
    }
    EXPECT_EQ(database.Value("SELECT Id FROM T"), "1");
}

void ATimeLimitStopsAQuery(DriverFixture& database) {
    auto command = database.NewQuery(CountTo(2'000'000'000) + "SELECT COUNT(*) FROM n");
    command->SetTimeout(1);
    try {
        command->Execute(Command::kOptionsUnspecified);
        FAIL() << "finished";
    } catch (const Error& error) {
        EXPECT_THAT(error.what(), HasSubstr("after 1 second,"));
    }
    EXPECT_EQ(database.Value("SELECT 1"), "1");
    EXPECT_THROW(command->SetTimeout(-1), Error);
}

void ACommandNeedsAConnection(DriverFixture& database) {
    auto command = database.NewCommand();
    command->SetText("SELECT 1");
    EXPECT_THROW(command->Execute(Command::kOptionsUnspecified), Error);
}

/// The line is that of the report's statement that asked, which the driver does not know.
void AnErrorCarriesNoLine(DriverFixture& database) {
    const auto no_rows = database.Query("SELECT 1 WHERE 1 = 0");
    const std::function<void()> failures[] = {
        [&] { database.Query("SELECT Missing"); },
        [&] { no_rows->Current(); },
        [&] { no_rows->MoveNext(); },
        [&] { database.NewCommand()->SetTimeout(-1); },
    };
    for (const auto& fail : failures) {
        try {
            fail();
            ADD_FAILURE() << "no error";
        } catch (const Error& error) {
            EXPECT_EQ(error.Line(), 0U) << error.what();
        }
    }
}

}  // namespace

std::vector<DriverCase> ErrorCases() {
    return {
        {"a_failure_carries_the_statement", AFailureCarriesTheStatement},
        {"a_failure_among_the_rows_carries_the_statement", AFailureAmongTheRowsCarriesTheStatement},
        {"the_number_of_parameters_must_fit", TheNumberOfParametersMustFit},
        {"a_command_is_one_statement", ACommandIsOneStatement},
        {"a_query_may_not_write", AQueryMayNotWrite},
        {"a_time_limit_stops_a_query", ATimeLimitStopsAQuery},
        {"a_command_needs_a_connection", ACommandNeedsAConnection},
        {"an_error_carries_no_line", AnErrorCarriesNoLine},
    };
}

}  // namespace varnel::drivers
