#include <gtest/gtest.h>

#include "framework/cell_values.h"
#include "framework/period_caption.h"
#include "framework/texts.h"
#include "tests/support/memory_host.h"

namespace varnel::framework {
namespace {

struct PeriodCase {
    const char* from;
    const char* to;
    const char* caption;
};

constexpr PeriodCase kPeriods[] = {{"2025-01-01", "2025-03-31", "From 2025-01-01 to 2025-03-31"},
                                   {"1899-12-31", "2025-03-31", "All dates"},
                                   {"2025-01-01", "9999-12-31", "All dates"},
                                   {"1900-01-01", "9999-12-30", "From 1900-01-01 to 9999-12-30"},
                                   {"1899-12-30", "2025-03-31", "From 1899-12-30 to 2025-03-31"}};

TEST(PeriodCaptionTest, GivesBothDatesOrAllDatesWhenEitherLimitIsOpen) {
    test::MemoryHost host;
    host.texts = {{3012, "&From"}, {3013, "to"}, {1376, "All dates"}};
    for (const auto& [from, to, caption] : kPeriods)
        EXPECT_EQ(JournalPeriodCaption(host, Date::ParseIso(from), Date::ParseIso(to)), caption);
}

TEST(ClosingDateCaptionTest, SaysAsAtWhichDateOrAllDatesWithAnOpenEnd) {
    test::MemoryHost host;
    host.texts = {{1776, "As &at"}, {1376, "All dates"}};
    EXPECT_EQ(ClosingDateCaption(host, Date::ParseIso("2025-03-31")), "As at 2025-03-31");
    EXPECT_EQ(ClosingDateCaption(host, kOpenEnd), "All dates");
}

struct CaptionCase {
    const char* number;
    const char* description;
    bool with_number;
    const char* caption;
};

constexpr CaptionCase kCaptions[] = {{"1060", "Bank", true, "1060 - Bank"},
                                     {"1060", "Bank", false, "Bank"},
                                     {"", "Bank", true, "Bank"},
                                     {"1060", "", true, "1060"}};

TEST(AccountCaptionTest, JoinsTheNumberAndTheDescriptionThatThereAre) {
    for (const auto& [number, description, with_number, caption] : kCaptions) {
        EXPECT_EQ(AccountCaption(with_number ? number : "", description), caption);
        Row row;
        row.Start(2);
        row.AddText(number);
        row.AddText(description);
        std::string read = "what was there before";
        ReadAccountCaption(row, Column{0}, Column{1}, with_number, read);
        EXPECT_EQ(read, caption);
    }
}

TEST(TextsTest, EveryAcceleratorMarkGoes) {
    EXPECT_EQ(WithoutAccelerators("&General Journal"), "General Journal");
    EXPECT_EQ(WithoutAccelerators("A&&B&"), "AB");
    EXPECT_EQ(WithoutAccelerators("plain"), "plain");
    test::MemoryHost host;
    host.texts[1376] = "&All &dates";
    EXPECT_EQ(PlainText(host, 1376), "All dates");
}

TEST(TextsTest, TrimmingTakesBlanksAtTheEndsOnly) {
    EXPECT_EQ(Trimmed("  two  words "), "two  words");
    EXPECT_EQ(Trimmed("   "), "");
    EXPECT_EQ(Trimmed(""), "");
    EXPECT_EQ(Trimmed("\tkept\t"), "\tkept\t");
}

}  // namespace
}  // namespace varnel::framework
