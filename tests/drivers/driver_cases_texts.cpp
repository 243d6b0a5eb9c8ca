#include <gtest/gtest.h>

#include "tests/drivers/driver_cases.h"

namespace varnel::drivers {

namespace {

constexpr const char* kCurrencies =
    "CREATE TABLE Cur (Id INTEGER NOT NULL, Code TEXT, Descr TEXT, Rate RealRate, N INTEGER);"
    "INSERT INTO Cur VALUES (1, 'CAD', 'Canadian dollar', 1.5, 7);"
    "INSERT INTO Cur VALUES (2, 'USD', NULL, 2, NULL);";

void ConcatenationGivesTheText(DriverFixture& database) {
    database.Prepare(kCurrencies);
    const struct {
        const char* expression;
        const char* result;
    } cases[] = {
        {"Code + ' - ' + Descr", "CAD - Canadian dollar"},
        {"(Code & ' - ' & Descr)", "CAD - Canadian dollar"},
        {"UPPER(Code & Descr)", "CADCANADIAN DOLLAR"},
        {"CASE WHEN N = 7 THEN 'seven' ELSE 'other' END & '!'", "seven!"},
        {"CASE WHEN N = 7 THEN 'seven' ELSE 'other' END + '!'", "seven!"},
        {"(Code + ' - ') + Descr", "CAD - Canadian dollar"},
        {"(Code & ' (' & (Descr & ')'))", "CAD (Canadian dollar)"},
        {"'it''s & ' & Code", "it's & CAD"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(database.Value("SELECT " + std::string(each.expression) + " FROM Cur WHERE Id=1"),
                  each.result)
            << each.expression;
}

/// Where the operators are the driver's; a server knows them between texts only.
void NumbersJoinAsTheirText(DriverFixture& database) {
    database.Prepare(kCurrencies);
    EXPECT_EQ(database.Value("SELECT Code & N FROM Cur WHERE Id = 1"), "CAD7");
    EXPECT_EQ(database.Value("SELECT Descr & N FROM Cur WHERE Id = 2"), "");
    EXPECT_EQ(database.Value("SELECT N * 2 & '%' FROM Cur WHERE Id = 1"), "14%");
    EXPECT_EQ(database.Value("SELECT N + 1 & ' of ' & N + 3 FROM Cur WHERE Id = 1"), "8 of 10");
}

void NullJoinsAsTheEmptyTextByAmpersandOnly(DriverFixture& database) {
    database.Prepare(kCurrencies);
    const auto rows = database.Query(
        "SELECT (Code & ' - ' & Descr) AS A, Code + ' - ' + Descr AS B, Descr & Descr AS C "
        "FROM Cur WHERE Id = 2");
    EXPECT_EQ(rows->Current().Text({0}), "USD - ");
    EXPECT_TRUE(rows->Current().IsNull({1}));
    EXPECT_FALSE(rows->Current().IsNull({2}));
    EXPECT_EQ(rows->Current().Text({2}), "");
}

void ConcatenationServesInConditionsAndOrder(DriverFixture& database) {
    database.Prepare(kCurrencies);
    const auto rows = database.Query(
        "SELECT Id FROM Cur WHERE Code & '-' = ? OR Code LIKE ? + '%' "
        "ORDER BY 'x' & Code",
        {"CAD-", "US"});
    EXPECT_EQ(rows->Current().Integer({0}), 1);
    rows->MoveNext();
    EXPECT_EQ(rows->Current().Integer({0}), 2);
}

void PlusBetweenNumbersAdds(DriverFixture& database) {
    database.Prepare(kCurrencies);
    EXPECT_EQ(database.Value("SELECT N + 1 FROM Cur WHERE Id = 1"), "8");
    EXPECT_EQ(database.Amount("SELECT Rate + N FROM Cur WHERE Id = 1"),
              Currency::FromScaled(85'000));
    EXPECT_EQ(database.Amount("SELECT SUM(Rate) + SUM(N) FROM Cur"), Currency::FromScaled(105'000));
}

void LiteralsAndCommentsStay(DriverFixture& database) {
    EXPECT_EQ(database.Value("SELECT 'a & b + c' /* & 'x' + */ -- & '\n"), "a & b + c");
}

}  // namespace

std::vector<DriverCase> TextCases() {
    return {
        {"concatenation_gives_the_text", ConcatenationGivesTheText},
        {"null_joins_as_the_empty_text_by_ampersand_only", NullJoinsAsTheEmptyTextByAmpersandOnly},
        {"concatenation_serves_in_conditions_and_order", ConcatenationServesInConditionsAndOrder},
        {"plus_between_numbers_adds", PlusBetweenNumbersAdds},
        {"literals_and_comments_stay", LiteralsAndCommentsStay},
    };
}

std::vector<DriverCase> MixedTextCases() {
    return {{"numbers_join_as_their_text", NumbersJoinAsTheirText}};
}

}  // namespace varnel::drivers
