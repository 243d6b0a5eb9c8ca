#include "framework/standard_header.h"

#include <gtest/gtest.h>

#include "tests/support/memory_host.h"

namespace varnel::framework {
namespace {

ControlLayout Caption(std::string_view name, Box box, std::int16_t text) {
    return {.name = name, .kind = ControlKind::kLabel, .box = box, .caption = text};
}

const Layout kLayout{
    .name = "dsrTried",
    .sections = {{.name = "PageHeader",
                  .kind = SectionKind::kPageHeader,
                  .height = 5'000,
                  .controls = PageHeaderControls(
                      {Caption("lblFirst", {0, 17, 500, 270}, 1912),
                       Caption("lblSecond", {500, 400, 500, 300}, 2656),
                       {.name = "lblOther", .kind = ControlKind::kLabel, .box = {0, 33, 9, 9}},
                       {.name = kCaptionRule, .kind = ControlKind::kLine, .box = {0, 1, 900, 8}}})},
                 {.name = "Detail"}}};

TEST(StandardHeaderTest, CaptionsStand90TwipsUnderTheBlockAndEndTheSection) {
    Surface surface(kLayout);
    surface.At("StandardHeader").SetPlace({0, 40, 10'800, 1'000});
    Section& header = surface.SectionAt("PageHeader");
    ReplacePageHeaderControls(header);

    EXPECT_EQ(surface.At("lblFirst").Place(), (Box{0, 1'130, 500, 270}));
    EXPECT_EQ(surface.At("lblSecond").Place(), (Box{500, 1'130, 500, 300}));
    EXPECT_EQ(header.Height(), 1'400);
    EXPECT_EQ(surface.At("linCaptions").Place().Bottom(), 1'400);
    EXPECT_EQ(surface.At("lblOther").Place().top, 33);
    EXPECT_EQ(surface.At("StandardHeader").Place().top, 40);
}

TEST(StandardHeaderTest, WithoutCaptionsTheSectionEndsUnderTheBlock) {
    const Layout layout{.name = "dsrTried",
                        .sections = {{.name = "PageHeader",
                                      .kind = SectionKind::kPageHeader,
                                      .controls = PageHeaderControls({})},
                                     {.name = "Detail"}}};
    Surface surface(layout);
    ReplacePageHeaderControls(surface.SectionAt("PageHeader"));
    EXPECT_EQ(surface.SectionAt("PageHeader").Height(), 900);
}

TEST(StandardHeaderTest, SaysWhoseReportItIsAndWhenItWasRun) {
    test::MemoryHost host;
    host.texts[30044] = "&Page {0} of {1}";
    Surface surface(kLayout);
    FillStandardHeader(surface, host, "General Journal");
    EXPECT_EQ(surface.At("hdrCompany").Text(), "Small Company");
    EXPECT_EQ(surface.At("hdrTitle").Text(), "General Journal");
    EXPECT_EQ(surface.At("hdrRunDate").Text(), "2025-06-30");
    EXPECT_EQ(surface.At("hdrRunDate").Value(), ControlValue(Date::ParseIso("2025-06-30")));
    EXPECT_EQ(surface.At("hdrPage").Text(), "Page {0} of {1}");
}

}  // namespace
}  // namespace varnel::framework
