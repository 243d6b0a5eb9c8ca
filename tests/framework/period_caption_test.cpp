#include "framework/period_caption.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace varnel::framework
