#include "host/row.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/error_of.h"

namespace varnel::test {
namespace {

constexpr Column At(std::uint32_t index) { return {index}; }

template <class Fill>
Row OneCell(Fill&& fill) {
    Row row;
    row.Start(1);
    fill(row);
    return row;
}

Row Holding(const Variant& value) {
    return OneCell([&](Row& row) { row.Add(value); });
}

std::string Plain(const Row& row) {
    std::string text;
    row.AppendText(At(0), text);
    return text;
}

template <class Read>
std::string Outcome(Read&& read) {
    std::string outcome;
    const auto number = ErrorOf([&] { outcome = read(); });
    if (number == error_number::kTypeMismatch) return "-";
    return number == 0 ? outcome : "error " + std::to_string(number);
}

struct ReadingCase {
    const char* name;
    Row row;
    // What each accessor gives, as text; "-" is error 13.
    const char* integer;
    const char* amount;
    const char* rate;
    const char* day;
    const char* text;
    const char* plain;
};

const ReadingCase kReadings[] = {
    {"null", Holding(Variant::Null{}), "0", "0", "0", "-", "", ""},
    {"integer", Holding(45), "45", "45", "45", "-", "-", "45"},
    {"whole real", Holding(45.0), "45", "45", "45", "-", "-", "45"},
    {"real", Holding(1234.5678), "-", "1234.5678", "1234.5678", "-", "-", "1234.5678"},
    {"amount", Holding(Currency::Parse("50.25")), "-", "50.25", "50.25", "-", "-", "50.25"},
    {"whole amount", Holding(Currency::Parse("50")), "50", "50", "50", "-", "-", "50"},
    {"date", Holding(Date::ParseIso("1900-01-11")), "12", "-", "-", "1900-01-11", "-",
     "1900-01-11"},
    {"digits", Holding("-17"), "-17", "-17", "-17", "-", "-17", "-17"},
    {"decimals", Holding("1.3725"), "-", "1.3725", "1.3725", "-", "1.3725", "1.3725"},
    {"iso", Holding("2025-03-31"), "-", "-", "-", "2025-03-31", "2025-03-31", "2025-03-31"},
    {"date and time", Holding("2025-03-31 23:59:59"), "-", "-", "-", "2025-03-31",
     "2025-03-31 23:59:59", "2025-03-31 23:59:59"},
    {"no such day", Holding("2025-02-30"), "-", "-", "-", "-", "2025-02-30", "2025-02-30"},
    {"no text", Holding(""), "-", "-", "-", "-", "", ""},
    {"beyond 64 bits", Holding("99999999999999999999"), "-", "-", "-", "-", "99999999999999999999",
     "99999999999999999999"},
    {"word", Holding("word"), "-", "-", "-", "-", "word", "word"}};

TEST(RowTest, ACellIsReadAsWhatTheReaderAsksForOrAnError) {
    for (const auto& expected : kReadings) {
        SCOPED_TRACE(expected.name);
        const Row& row = expected.row;
        EXPECT_EQ(Outcome([&] { return std::to_string(row.Integer(At(0))); }), expected.integer);
        EXPECT_EQ(Outcome([&] { return row.Amount(At(0)).ToText(0); }), expected.amount);
        EXPECT_EQ(Outcome([&] { return row.ExchangeRate(At(0)).ToText(0); }), expected.rate);
        EXPECT_EQ(Outcome([&] { return row.Day(At(0)).ToIso(); }), expected.day);
        EXPECT_EQ(Outcome([&] { return std::string(row.Text(At(0))); }), expected.text);
        EXPECT_EQ(Plain(row), expected.plain);
    }
}

TEST(RowTest, IntegersBeyond32BitsAreReadOnlyAs64) {
    const Row row = OneCell([](Row& r) { r.AddInteger(3'000'000'000); });
    EXPECT_EQ(row.Integer64(At(0)), 3'000'000'000);
    EXPECT_EQ(DescriptionOf([&] { (void)row.Integer(At(0)); }),
              "Column 1 holds \"3000000000\", which is not a 32-bit integer");
    EXPECT_EQ(row.Amount(At(0)).ToText(0), "3000000000");
    EXPECT_EQ(Plain(row), "3000000000");
}

TEST(RowTest, AmountsThatDoNotFitAreError6) {
    const Row row = OneCell([](Row& r) { r.AddInteger(std::numeric_limits<std::int64_t>::max()); });
    EXPECT_EQ(ErrorOf([&] { (void)row.Amount(At(0)); }), error_number::kOverflow);
    EXPECT_EQ(ErrorOf([&] { (void)row.ExchangeRate(At(0)); }), error_number::kOverflow);
    EXPECT_EQ(ErrorOf([] { (void)Holding(1e18).Amount(At(0)); }), error_number::kOverflow);
}

TEST(RowTest, TruthIsAnyNumberButZero) {
    EXPECT_TRUE(Holding(true).Truth(At(0)));
    EXPECT_TRUE(Holding(1).Truth(At(0)));
    EXPECT_FALSE(Holding(0).Truth(At(0)));
    EXPECT_FALSE(Holding(Variant::Null{}).Truth(At(0)));
    EXPECT_EQ(ErrorOf([] { (void)Holding("yes").Truth(At(0)); }), error_number::kTypeMismatch);
}

TEST(RowTest, ValuesComeOutInTheTypeTheyWentIn) {
    EXPECT_TRUE(Holding(Variant::Null{}).Value(At(0)).IsNull());
    EXPECT_TRUE(Holding(7).Value(At(0)).Holds<std::int32_t>());
    EXPECT_TRUE(Holding(7.5).Value(At(0)).Holds<double>());
    EXPECT_TRUE(Holding("7").Value(At(0)).Holds<std::string>());
    EXPECT_TRUE(Holding(Date()).Value(At(0)).Holds<Date>());
    EXPECT_TRUE(Holding(Currency()).Value(At(0)).Holds<Currency>());
    const Row large = OneCell([](Row& r) { r.AddInteger(3'000'000'000); });
    EXPECT_DOUBLE_EQ(large.Value(At(0)).ToDouble(), 3e9);
}

TEST(RowTest, SameValueTakesNullAsEqualToNullAndToNothingElse) {
    const Row null = Holding(Variant::Null{});
    EXPECT_TRUE(null.SameValue(Holding(Variant::Null{}), At(0)));
    for (const Row& other : {Holding(0), Holding(""), Holding(Currency()), Holding(Date())}) {
        EXPECT_FALSE(null.SameValue(other, At(0)));
        EXPECT_FALSE(other.SameValue(null, At(0)));
        EXPECT_TRUE(other.SameValue(other, At(0)));
    }
    EXPECT_TRUE(Holding("GJ").SameValue(Holding("GJ"), At(0)));
    EXPECT_FALSE(Holding("GJ").SameValue(Holding("gj"), At(0)));
    EXPECT_FALSE(Holding(1).SameValue(Holding(2), At(0)));
    EXPECT_FALSE(Holding(0.25).SameValue(Holding(0.5), At(0)));
}

TEST(RowTest, ACopyKeepsItsValuesWhenTheOriginalGoesOn) {
    Row row = Holding("first");
    const Row kept = row;
    row.Start(1);
    row.AddText("second");
    EXPECT_EQ(kept.Text(At(0)), "first");
    EXPECT_EQ(row.Text(At(0)), "second");
}

Row ThreeTexts() {
    Row row;
    row.Start(3);
    for (const char* text : {"one", "two", "three"}) row.AddText(text);
    return row;
}

TEST(RowTest, SettingOneCellLeavesTheOthersAlone) {
    Row row = ThreeTexts();
    row.Set(At(0), "a longer text");
    row.Set(At(2), Currency::Parse("5"));
    row.Set(At(1), "");
    EXPECT_EQ(row.Text(At(0)), "a longer text");
    EXPECT_EQ(row.Text(At(1)), "");
    EXPECT_EQ(row.Amount(At(2)).ToText(0), "5");
    row.Set(At(1), "2");
    row.Set(At(2), "3");
    EXPECT_EQ(row.Text(At(0)), "a longer text");
    EXPECT_EQ(row.Text(At(1)), "2");
    EXPECT_EQ(row.Text(At(2)), "3");
    EXPECT_EQ(row.Size(), 3u);
}

TEST(ColumnsTest, AreFoundWhateverTheCaseAndTheFirstOfEqualNamesWins) {
    const Columns columns({"SeqNo", "DetAmnt", "SEQNO"});
    EXPECT_EQ(columns.At("seqno").index, 0u);
    EXPECT_EQ(columns.At("DETAMNT").index, 1u);
    EXPECT_FALSE(columns.Find("DetAmn").Valid());
    EXPECT_FALSE(Column().Valid());
}

TEST(ColumnsTest, AnUnknownColumnIsAnErrorThatListsTheColumns) {
    const Columns columns({"SeqNo", "DetAmnt"});
    EXPECT_EQ(ErrorOf([&] { (void)columns.At("Amount"); }), error_number::kUnknownColumn);
    EXPECT_EQ(DescriptionOf([&] { (void)columns.At("Amount"); }),
              "The row set has no column \"Amount\"; it has SeqNo, DetAmnt");
    EXPECT_EQ(DescriptionOf([] { (void)Columns().At("Amount"); }),
              "The row set has no column \"Amount\"; it has none");
}

}  // namespace
}  // namespace varnel::test
