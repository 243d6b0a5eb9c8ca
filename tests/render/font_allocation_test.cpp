#include <gtest/gtest.h>

#include "render/fonts/line_breaker.h"
#include "render/pdf/pdf_page.h"
#include "tests/support/allocation_count.h"

namespace varnel::render {
namespace {

template <class Action>
long AllocationsOf(Action action) {
    action();  // fills the caches
    const long before = test::AllocationCount();
    action();
    return test::AllocationCount() - before;
}

TEST(Allocation, MeasuringAndBreakingATextThatFitsTakesNoMemory) {
    FontSet fonts;
    std::vector<std::string_view> lines;
    EXPECT_EQ(AllocationsOf([&] {
                  fonts.Width(FontStyle::kBold, 9, "Soci\u00E9t\u00E9 1,234.56 \u2713");
                  BreakLines(fonts, FontStyle::kRegular, 9, 500, "Office supplies", lines);
              }),
              0);
}

TEST(Allocation, DrawingRowsTakesNoMemoryOnceThePageHasGrown) {
    FontSet fonts;
    UsedFonts used_fonts(fonts);
    PdfPage page(fonts, used_fonts);
    page.Text(0, 0, {}, std::string(20'000, 'x'));
    EXPECT_EQ(AllocationsOf([&] {
                  page.Text(500, 20, {}, "Soci\u00E9t\u00E9 1,234.56 \u2713");
                  page.Text(500, 32, {.font = FontStyle::kBold}, "1,234.56");
                  page.FillRect(36, 34, 464, 0.5, {});
              }),
              0);
}

}  // namespace
}  // namespace varnel::render
