#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

#include "render/fonts/line_breaker.h"
#include "render/pdf/pdf_page.h"

namespace {

std::atomic<long> allocation_count = 0;

}  // namespace

void* operator new(std::size_t size) {
    ++allocation_count;
    if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}

void* operator new[](std::size_t size) { return operator new(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace varnel::render {
namespace {

template <class Action>
long AllocationsOf(Action action) {
    action();  // fills the caches
    const long before = allocation_count;
    action();
    return allocation_count - before;
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
                  page.Text(500, 20, {}, "Soci\u00E9t\u00E9 1,234.56 \u2713", Align::kRight);
                  page.Text(500, 32, {.font = FontStyle::kBold}, "1,234.56", Align::kRight);
                  page.Line(36, 34, 500, 34, 0.5, {});
              }),
              0);
}

}  // namespace
}  // namespace varnel::render
