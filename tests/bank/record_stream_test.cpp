#include "framework/record_stream.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "drivers/memory_recordset.h"
#include "host/error.h"
#include "tests/support/error_of.h"

namespace varnel::framework {
namespace {

using drivers::MemoryRecordset;
using testing::HasSubstr;

const Variant kNull = Variant::Null{};

RecordCopy Copy() {
    MemoryRecordset rows({"No", "Amount", "Text", "Day", "Flag"},
                         {{1, Currency::FromWhole(9), "b", Date::FromDayNumber(9), true},
                          {2, Currency::FromWhole(10), "B", Date::FromDayNumber(10), false},
                          {3, kNull, kNull, kNull, kNull},
                          {4, Currency::FromWhole(-2), "a b", Date::FromDayNumber(8), false},
                          {5, 9.0, "b", Date::FromDayNumber(9), true}});
    return RecordCopy(RecordStream::Save(rows));
}

/// The numbers of its rows, from where it stands.
std::string Numbers(Recordset& rows) {
    std::string numbers;
    for (; !rows.AtEnd(); rows.MoveNext())
        rows.Current().AppendText(rows.GetColumns().At("No"), numbers);
    return numbers;
}

struct Asked {
    const char* text;
    const char* rows;
};

constexpr Asked kSorts[] = {
    {"", "12345"},
    {"Amount", "34152"},
    {"amount asc", "34152"},
    {"Amount DESC", "21543"},
    {"Text", "32415"},
    {"Day DESC", "21543"},
    {"Text DESC, No DESC", "51423"},
    {" Flag  DESC , Amount ASC ", "15342"},
};

TEST(RecordStreamTest, SortsByValuesNullFirstAndLeavesEqualRowsInOrder) {
    for (const auto& [sort, numbers] : kSorts) {
        auto rows = Copy();
        rows.SetBoolean("Flag");
        rows.MoveNext();
        rows.SetSort(sort);
        EXPECT_EQ(Numbers(rows), numbers) << sort;
    }
}

constexpr Asked kFilters[] = {
    {"", "12345"},
    {"  ", "12345"},
    {"Amount = 9", "15"},
    {"amount=-2.00", "4"},
    {"Text = 'a b'", "4"},
    {"Text = ''", ""},
    {"Flag = True", "15"},
    {"flag = false", "234"},
    {"Flag = 0", "234"},
    {"Flag = 1", "15"},
    {"Text = 'b'", "15"},
    {"Amount = 3", ""},
    {"Day = '1900-01-08'", "15"},
};

TEST(RecordStreamTest, FiltersByOneValue) {
    auto rows = Copy();
    rows.SetBoolean("Flag");
    for (const auto& [filter, numbers] : kFilters) {
        rows.SetFilter(filter);
        EXPECT_EQ(Numbers(rows), numbers) << filter;
        EXPECT_TRUE(rows.AtEnd());
        rows.MoveFirst();
        EXPECT_EQ(Numbers(rows), numbers) << filter << " once more";
    }
}

TEST(RecordStreamTest, FilterAndSortGoTogetherUntilTheyAreTakenAway) {
    auto rows = Copy();
    rows.SetBoolean("Flag");
    rows.SetSort("Amount DESC");
    rows.SetFilter("Flag = 0");
    EXPECT_EQ(Numbers(rows), "243");
    EXPECT_EQ(test::ErrorOf([&] { rows.Current(); }), 3021);
    rows.SetSort("");
    EXPECT_EQ(Numbers(rows), "234");
    rows.SetFilter("");
    EXPECT_EQ(Numbers(rows), "12345");
}

// As a text, "5x" stands between 10 and 9.
TEST(RecordStreamTest, ATextAmongNumbersDoesNotDisturbTheirOrder) {
    MemoryRecordset given({"No", "Amount"}, {{1, Currency::FromWhole(10)},
                                             {2, "5x"},
                                             {3, Currency::FromWhole(9)},
                                             {4, Date::FromDayNumber(1)},
                                             {5, Currency::FromWhole(-10)}});
    RecordCopy rows(RecordStream::Save(given));
    rows.SetSort("Amount");
    EXPECT_EQ(Numbers(rows), "53142");
}

TEST(RecordStreamTest, TextsThatCannotBeReadAreRefusedAndNamed) {
    for (const char* filter : {"Amount", "Amount > 3", "Amount = x", "Amount = 'x",
                               "Amount = ", "Amount = 1 AND No = 1"}) {
        std::string description;
        EXPECT_EQ(test::ErrorOf([&] { Copy().SetFilter(filter); }, &description), 5) << filter;
        EXPECT_THAT(description, HasSubstr(filter));
    }
    for (const char* sort : {"Amount UP", "Amount ASC DESC", ",Amount", "Amount, ,No"}) {
        std::string description;
        EXPECT_EQ(test::ErrorOf([&] { Copy().SetSort(sort); }, &description), 5) << sort;
        EXPECT_THAT(description, HasSubstr(sort));
    }
    EXPECT_EQ(test::ErrorOf([] { Copy().SetFilter("Nowhere = 1"); }), 3265);
    EXPECT_EQ(test::ErrorOf([] { Copy().SetSort("Nowhere"); }), 3265);
    EXPECT_EQ(test::ErrorOf([] { Copy().SetBoolean("Nowhere"); }), 3265);
}

}  // namespace
}  // namespace varnel::framework
