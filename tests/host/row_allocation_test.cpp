#include <gtest/gtest.h>

#include "host/row.h"
#include "tests/support/allocation_count.h"

namespace varnel::test {
namespace {

TEST(RowAllocationTest, WritingAndReadingARowAgainTakesNoMemory) {
    Row row;
    std::string text;
    const auto write_and_read = [&] {
        row.Start(4);
        row.AddText("a text that is too long for a short string");
        row.AddReal(1234.56);
        row.AddDate(kOpenEnd);
        row.AddNull();
        text.clear();
        for (std::uint32_t i = 0; i < 4; ++i) row.AppendText({i}, text);
        return row.Amount({1});
    };
    write_and_read();
    const long before = AllocationCount();
    for (int i = 0; i < 1'000; ++i) write_and_read();
    EXPECT_EQ(AllocationCount(), before);
}

TEST(RowAllocationTest, SettingACellOverAndOverTakesNoMoreMemory) {
    Row row;
    row.Start(2);
    row.AddText("first");
    row.AddText("second");
    const Variant texts[] = {"short", "some longer"};
    for (const auto& text : texts) row.Set({0}, text);
    const long before = AllocationCount();
    for (int i = 0; i < 1'000; ++i) row.Set({0}, texts[i % 2]);
    EXPECT_EQ(AllocationCount(), before);
    EXPECT_EQ(row.Text({0}), "some longer");
    EXPECT_EQ(row.Text({1}), "second");
}

}  // namespace
}  // namespace varnel::test
