#include "framework/record_copy.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "drivers/memory_recordset.h"
#include "host/error.h"
#include "tests/support/error_of.h"

namespace varnel::framework {
namespace {

using drivers::MemoryRecordset;

const Variant kNull = Variant::Null{};

RecordCopy Copy() {
    MemoryRecordset rows({"No", "Amount", "Text", "Day", "Flag"},
                         {{1, Currency::FromWhole(9), "b", Date::FromDayNumber(9), true},
                          {2, Currency::FromWhole(10), "B", Date::FromDayNumber(10), false},
                          {3, kNull, kNull, kNull, kNull},
                          {4, Currency::FromWhole(-2), "a b", Date::FromDayNumber(8), false},
                          {5, 9.0, "b", Date::FromDayNumber(9), true}});
    return RecordCopy(rows, "flag");
}

/// The numbers of its rows, from where it stands.
std::string Numbers(Recordset& rows) {
    std::string numbers;
    for (; !rows.AtEnd(); rows.MoveNext())
        rows.Current().AppendText(rows.GetColumns().At("No"), numbers);
    return numbers;
}

struct Asked {
    const char *filter, *sort, *rows;
};

constexpr Asked kAsked[] = {
    {"", "", "12345"},
    {"  ", "amount asc", "34152"},
    {"", "Amount DESC", "21543"},
    {"", "Text", "32415"},
    {"", "Day DESC", "21543"},
    {"", "Text DESC, No DESC", "51423"},
    {"", " Flag  DESC , Amount ASC ", "15342"},
    {"amount=-2.00", "", "4"},
    {"Amount = 3", "Amount", ""},
    {"Text = 'a b'", "", "4"},
    {"Text = ''", "", ""},
    {"Flag = True", "No DESC", "51"},
    {"flag = false", "", "234"},
    {"Flag = 0", "Amount DESC", "243"},
    {"Day = '1900-01-08'", "", "15"},
};

TEST(RecordCopyTest, FiltersAndSortsAnewEachTime) {
    auto rows = Copy();
    for (const auto& [filter, sort, numbers] : kAsked) {
        rows.Arrange(filter, sort);
        EXPECT_EQ(Numbers(rows), numbers) << filter << "; " << sort;
        EXPECT_EQ(test::ErrorOf([&] { rows.Current(); }), 3021);
        rows.MoveFirst();
        EXPECT_EQ(Numbers(rows), numbers) << "once more";
    }
}

TEST(RecordCopyTest, NumbersThatAreTextsStandAmongTheNumbersAndWhatIsNoneComesLast) {
    MemoryRecordset given({"No", "Amount"}, {{1, "-7x"},
                                             {2, 1e300},
                                             {3, 9.5},
                                             {4, "10"},
                                             {5, -7},
                                             {6, Date::FromDayNumber(1)},
                                             {7, "+3"},
                                             {8, Currency::FromWhole(-1)}});
    RecordCopy rows(given, "No");
    rows.Arrange("", "Amount");
    rows.MoveFirst();
    std::string amounts;
    for (; !rows.AtEnd(); rows.MoveNext()) {
        rows.Current().AppendText(Column{1}, amounts);
        amounts += ' ';
    }
    EXPECT_THAT(amounts, testing::StartsWith("-7 -1 +3 9.5 10 1899-12-31 -7x 1"));
}

TEST(RecordCopyTest, WhatCannotBeReadIsNamedAndLeavesTheRowsAsTheyWere) {
    const std::tuple<const char*, const char*, std::int32_t> kRefused[] = {
        {"Amount", "", 5},          {"Amount > 3", "", 5},  {"Amount = x", "", 5},
        {"Amount = 'x", "", 5},     {"Amount = ", "", 5},   {"Amount = 1 AND No = 1", "", 5},
        {"Nowhere = 1", "", 3265},  {"", "Amount UP", 5},   {"", "Amount ASC DESC", 5},
        {"Flag = 1", ",Amount", 5}, {"", "Amount, ,No", 5}, {"Flag = 1", "Nowhere", 3265},
    };
    auto rows = Copy();
    rows.Arrange("Flag = 0", "Amount");
    for (const auto& [filter, sort, number] : kRefused) {
        std::string description;
        EXPECT_EQ(test::ErrorOf([&] { rows.Arrange(filter, sort); }, &description), number);
        const std::string fault = number == 3265 ? "Nowhere" : *sort != '\0' ? sort : filter;
        EXPECT_THAT(description, testing::HasSubstr(fault));
        rows.MoveFirst();
        EXPECT_EQ(Numbers(rows), "342");
    }
    MemoryRecordset unclear({"Flag"}, {{true}, {"maybe"}});
    EXPECT_EQ(test::ErrorOf([&] { RecordCopy(unclear, "Flag"); }), 13);
    EXPECT_EQ(test::ErrorOf([&] { RecordCopy(unclear, "Nowhere"); }), 3265);
}

}  // namespace
}  // namespace varnel::framework
