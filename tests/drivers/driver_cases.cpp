#include "tests/drivers/driver_cases.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>

namespace varnel::drivers {

std::shared_ptr<Command> DriverFixture::NewQuery(const std::string& text,
                                                 std::initializer_list<Variant> parameters) {
    auto command = NewCommand();
    command->SetTimeout(0);
    command->SetActiveConnection(ConnectionString());
    command->SetText(text);
    for (const auto& parameter : parameters) command->AppendParameter(parameter);
    return command;
}

std::shared_ptr<Recordset> DriverFixture::Query(const std::string& text,
                                                std::initializer_list<Variant> parameters) {
    return NewQuery(text, parameters)->Execute(Command::kOptionsUnspecified);
}

std::string DriverFixture::Value(const std::string& text,
                                 std::initializer_list<Variant> parameters) {
    std::string value;
    Query(text, parameters)->Current().AppendText(Column{0}, value);
    return value;
}

Currency DriverFixture::Amount(const std::string& text) {
    return Query(text)->Current().Amount(Column{0});
}

Error DriverFixture::Failure(const std::string& text, std::initializer_list<Variant> parameters) {
    try {
        for (auto rows = Query(text, parameters); !rows->AtEnd();) rows->MoveNext();
    } catch (const Error& error) {
        return error;
    }
    return {0, "", "no error"};
}

std::string CountTo(int count) {
    return "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
           std::to_string(count) + ") ";
}

namespace {

constexpr const char* kPeople =
    "CREATE TABLE People (Id INTEGER NOT NULL, Name TEXT, Balance RealAmount, Since DATE);"
    "INSERT INTO People VALUES (1, 'Zoë', -1234.56, '2025-03-31');"
    "INSERT INTO People VALUES (2, NULL, NULL, NULL);"
    "INSERT INTO People VALUES (3, 'Ann', 922337203685.4775, '9999-12-31');"
    "INSERT INTO People VALUES (4, 'Old', 0.01, '1899-12-31');";

constexpr const char* kAllPeople = "SELECT Id, Name, Balance, Since FROM People ORDER BY Id";

void ValuesKeepTheirTypes(DriverFixture& database) {
    database.Prepare(kPeople);
    const auto rows = database.Query(kAllPeople);
    const Row& row = rows->Current();
    EXPECT_EQ(row.Integer({0}), 1);
    EXPECT_EQ(row.Text({1}), "Zoë");
    EXPECT_EQ(row.Amount({2}), Currency::FromScaled(-12'345'600));
    EXPECT_EQ(row.Day({3}), Date::FromYearMonthDay(2025, 3, 31));
}

void NullsReadAsNull(DriverFixture& database) {
    database.Prepare(kPeople);
    const auto rows = database.Query(kAllPeople);
    rows->MoveNext();
    const Row& row = rows->Current();
    EXPECT_FALSE(row.IsNull({0}));
    for (std::uint32_t i = 1; i < 4; ++i) EXPECT_TRUE(row.IsNull({i})) << i;
}

void OpenLimitsAreDates(DriverFixture& database) {
    database.Prepare(kPeople);
    const char* text = "SELECT Since FROM People WHERE Since BETWEEN ? AND ? ORDER BY Since";
    const auto rows = database.Query(text, {kOpenStart, kOpenEnd});
    EXPECT_EQ(rows->Current().Day({0}), kOpenStart);
    rows->MoveNext();
    rows->MoveNext();
    EXPECT_EQ(rows->Current().Day({0}), kOpenEnd);
    rows->MoveNext();
    EXPECT_TRUE(rows->AtEnd());
}

void ParametersCompareByTheirType(DriverFixture& database) {
    database.Prepare(kPeople);
    const std::string count = "SELECT COUNT(*) FROM People WHERE ";
    EXPECT_EQ(database.Value(count + "Id = ?", {std::int32_t{2}}), "1");
    EXPECT_EQ(database.Value(count + "Id > ?", {std::int16_t{2}}), "2");
    EXPECT_EQ(database.Value(count + "Balance = ?", {Currency::FromScaled(-12'345'600)}), "1");
    EXPECT_EQ(database.Value(count + "Balance < ?", {0.005}), "1");
    EXPECT_EQ(database.Value(count + "Name = ?", {"Zoë"}), "1");
    EXPECT_EQ(database.Value(count + "Id = ?", {true}), "1");
    EXPECT_EQ(database.Value(count + "Since < ?", {Date::FromYearMonthDay(1900, 1, 1)}), "1");
}

void NamesIgnoreCase(DriverFixture& database) {
    database.Prepare(kPeople);
    const auto rows = database.Query(
        "SELECT p.Name, SUM(p.Balance) AS Total FROM People p "
        "WHERE p.Id = 1 GROUP BY p.Name");
    EXPECT_EQ(rows->GetColumns().At("NAME").index, 0U);
    EXPECT_EQ(rows->GetColumns().At("total").index, 1U);
}

void AnUnknownColumnIsNamed(DriverFixture& database) {
    const auto rows = database.Query("SELECT 1 AS \"One\", 2 AS \"Two\"");
    try {
        rows->GetColumns().At("Three");
        FAIL() << "found";
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), error_number::kUnknownColumn);
        EXPECT_STREQ(error.what(), "The row set has no column \"Three\"; it has One, Two");
    }
}

void NoRowsIsTheEndAtOnce(DriverFixture& database) {
    database.Prepare(kPeople);
    const auto rows = database.Query("SELECT Id, Name FROM People WHERE Id = ?", {99});
    EXPECT_TRUE(rows->AtEnd());
    EXPECT_EQ(rows->GetColumns().Size(), 2U);
    EXPECT_THROW(rows->Current(), Error);
    EXPECT_THROW(rows->MoveNext(), Error);
}

void MoveFirstStartsAgain(DriverFixture& database) {
    database.Prepare(kPeople);
    const auto rows = database.Query("SELECT Id FROM People WHERE Id > ? ORDER BY Id", {2});
    for (int from = 0; from < 3; ++from) {  // From the first row, the second and the end.
        for (int i = 0; i < from; ++i) rows->MoveNext();
        rows->MoveFirst();
        EXPECT_EQ(rows->Current().Integer({0}), 3) << from;
    }
}

void TwoRowSetsDoNotDisturbEachOther(DriverFixture& database) {
    database.Prepare(kPeople);
    const auto outer = database.Query("SELECT Id FROM People ORDER BY Id");
    std::string seen;
    for (; !outer->AtEnd(); outer->MoveNext()) {
        const auto id = outer->Current().Integer({0});
        const auto inner = database.Query("SELECT COUNT(*) FROM People WHERE Id <= ?", {id});
        seen += std::to_string(id) + ":" + std::to_string(inner->Current().Integer({0})) + " ";
    }
    EXPECT_EQ(seen, "1:1 2:2 3:3 4:4 ");
}

void ARowSetOutlivesItsCommand(DriverFixture& database) {
    auto command = database.NewQuery("SELECT ? AS Kept", {"text"});
    const auto rows = command->Execute(Command::kOptionsUnspecified);
    command.reset();
    rows->MoveFirst();
    EXPECT_EQ(rows->Current().Text({0}), "text");
}

long ResidentKilobytes() {
    long pages = 0;
    std::ifstream("/proc/self/statm") >> pages >> pages;
    return pages * (sysconf(_SC_PAGESIZE) / 1024);
}

void ReadingManyRowsTakesNoMemory(DriverFixture& database) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the address sanitizer keeps what was freed";
#endif
    const auto rows = database.Query(CountTo(3'000'000) +
                                     "SELECT i, 'a text of thirty-two characters ' AS t FROM n");
    long before = 0;
    std::int64_t sum = 0;
    for (int count = 0; !rows->AtEnd(); rows->MoveNext()) {
        if (++count == 1'000) before = ResidentKilobytes();
        sum += rows->Current().Integer64({0});
    }
    EXPECT_EQ(sum, 4'500'001'500'000);
    EXPECT_LT(ResidentKilobytes() - before, 8 * 1024);
}

}  // namespace

std::vector<DriverCase> RowCases() {
    return {
        {"values_keep_their_types", ValuesKeepTheirTypes},
        {"nulls_read_as_null", NullsReadAsNull},
        {"open_limits_are_dates", OpenLimitsAreDates},
        {"parameters_compare_by_their_type", ParametersCompareByTheirType},
        {"names_ignore_case", NamesIgnoreCase},
        {"an_unknown_column_is_named", AnUnknownColumnIsNamed},
        {"no_rows_is_the_end_at_once", NoRowsIsTheEndAtOnce},
        {"move_first_starts_again", MoveFirstStartsAgain},
        {"two_row_sets_do_not_disturb_each_other", TwoRowSetsDoNotDisturbEachOther},
        {"a_row_set_outlives_its_command", ARowSetOutlivesItsCommand},
        {"reading_many_rows_takes_no_memory", ReadingManyRowsTakesNoMemory},
    };
}

std::vector<DriverCase> EveryDriverCase() {
    std::vector<DriverCase> all;
    for (const auto& cases : {RowCases(), TextCases(), SumCases(), ErrorCases()})
        all.insert(all.end(), cases.begin(), cases.end());
    return all;
}

}  // namespace varnel::drivers
