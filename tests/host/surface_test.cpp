#include "host/surface.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include "tests/support/error_of.h"

namespace varnel::test {
namespace {

const Layout kLayout{
    .name = "dsrTried",
    .width = 1'000,
    .sections = {
        {.name = "PageHeader",
         .kind = SectionKind::kPageHeader,
         .height = 300,
         .controls = {{.name = "lblLeft", .box = {0, 0, 100, 20}, .text = "left"},
                      {.name = "lblWide", .box = {100, 0, 500, 20}, .stretch = Stretch::kWiden},
                      {.name = "lblRight",
                       .box = {900, 0, 100, 20},
                       .visible = false,
                       .stretch = Stretch::kShift}}},
        {.name = "Detail", .height = 200, .controls = {{.name = "txtDebit", .box = {}}}}}};

TEST(SurfaceTest, AnUnknownControlOrSectionStopsTheReportNamingLayoutAndControl) {
    Surface surface(kLayout);
    EXPECT_EQ(ErrorOf([&] { surface.At("txtCredit"); }), error_number::kUnknownMember);
    EXPECT_EQ(DescriptionOf([&] { surface.SectionAt("PageFooter"); }),
              "dsrTried has no member \"PageFooter\"");
}

TEST(SurfaceTest, WideningSpreadsAndShiftsAsEachControlSays) {
    Surface surface(kLayout);
    surface.Widen(1'200);
    EXPECT_EQ(surface.Width(), 1'200);
    EXPECT_EQ(surface.At("lblLeft").Place(), (Box{0, 0, 100, 20}));
    EXPECT_EQ(surface.At("lblWide").Place(), (Box{100, 0, 700, 20}));
    EXPECT_EQ(surface.At("lblRight").Place(), (Box{1'100, 0, 100, 20}));
    surface.Widen(1'100);
    EXPECT_EQ(surface.Width(), 1'200);
    EXPECT_EQ(surface.At("lblRight").Place().left, 1'100);
}

TEST(SurfaceTest, RestoreGoesBackToWhatWasSavedInEveryRespect) {
    Surface surface(kLayout);
    surface.At("lblLeft").SetText("set by the host");
    surface.Save();

    surface.Widen(2'000);
    surface.At("lblLeft").SetValue(3, "3");
    surface.At("lblLeft").SetTag("key");
    surface.At("lblRight").SetVisible(true);
    surface.SectionAt("Detail").SetVisible(false);
    surface.SectionAt("Detail").SetHeight(0);
    surface.Restore();

    EXPECT_EQ(surface.Width(), 1'000);
    EXPECT_EQ(surface.At("lblLeft").Text(), "set by the host");
    EXPECT_EQ(surface.At("lblLeft").Value(), ControlValue());
    EXPECT_EQ(surface.At("lblLeft").Tag(), "");
    EXPECT_FALSE(surface.At("lblRight").Visible());
    EXPECT_EQ(surface.At("lblRight").Place().left, 900);
    EXPECT_TRUE(surface.SectionAt("Detail").Visible());
    EXPECT_EQ(surface.SectionAt("Detail").Height(), 200);
}

TEST(SurfaceTest, SkippingLeavesOutOneInstanceHidingAllThatFollow) {
    Surface surface(kLayout);
    Section& detail = surface.SectionAt("Detail");
    int instance = 0;
    detail.OnFormat([&] {
        ++instance;
        if (instance == 1) detail.Skip();
        if (instance == 3) detail.SetVisible(false);
    });
    EXPECT_FALSE(detail.Format());
    EXPECT_TRUE(detail.Format());
    EXPECT_FALSE(detail.Format());
    EXPECT_FALSE(detail.Format());
    EXPECT_EQ(instance, 4);
}

using Kind = SectionKind;

struct Shape {
    const char* name;
    std::vector<Kind> sections;
    const char* fault;
};

Layout LayoutOf(const std::vector<Kind>& kinds) {
    Layout layout{.name = "dsrTried", .sections = {}};
    for (const Kind kind : kinds) layout.sections.push_back({.name = "Section", .kind = kind});
    return layout;
}

constexpr const char* kOrder = "section Section is out of order";
constexpr const char* kPairs = "group headers and footers do not pair";
constexpr const char* kDetail = "it needs one detail section";
constexpr const char* kTwice = "section Section is there twice";

const Shape kMalformed[] = {
    {"no detail", {Kind::kReportHeader, Kind::kPageHeader}, kDetail},
    {"nothing", {}, kDetail},
    {"two details", {Kind::kDetail, Kind::kDetail}, kTwice},
    {"no footer", {Kind::kGroupHeader, Kind::kDetail}, kPairs},
    {"no header", {Kind::kDetail, Kind::kGroupFooter}, kPairs},
    {"one footer for two",
     {Kind::kGroupHeader, Kind::kGroupHeader, Kind::kDetail, Kind::kGroupFooter},
     kPairs},
    {"header after detail", {Kind::kDetail, Kind::kPageHeader}, kOrder},
    {"footer before detail", {Kind::kGroupFooter, Kind::kDetail, Kind::kGroupHeader}, kOrder},
    {"detail after the report footer", {Kind::kReportFooter, Kind::kDetail}, kOrder},
    {"two page headers", {Kind::kPageHeader, Kind::kPageHeader, Kind::kDetail}, kTwice},
    {"two report footers", {Kind::kDetail, Kind::kReportFooter, Kind::kReportFooter}, kTwice}};

TEST(SurfaceLayoutTest, AMalformedOneIsRefusedWithItsNameAndTheReason) {
    for (const auto& [name, sections, fault] : kMalformed) {
        const Layout layout = LayoutOf(sections);
        std::string description;
        EXPECT_EQ(ErrorOf([&] { const Surface surface(layout); }, &description),
                  error_number::kInvalidArgument)
            << name;
        EXPECT_EQ(description, std::string("The layout dsrTried is not well formed: ") + fault)
            << name;
    }
}

TEST(SurfaceLayoutTest, TheReportFooterMayStandOnEitherSideOfThePageFooter) {
    for (const auto& kinds : {std::vector{Kind::kDetail, Kind::kPageFooter, Kind::kReportFooter},
                              std::vector{Kind::kDetail, Kind::kReportFooter, Kind::kPageFooter}}) {
        const Layout layout = LayoutOf(kinds);
        EXPECT_NO_THROW(const Surface surface(layout));
    }
}

TEST(SurfaceLayoutTest, TwoControlsOfOneNameAreRefused) {
    const Layout layout{
        .name = "dsrTried",
        .sections = {{.name = "PageHeader",
                      .kind = Kind::kPageHeader,
                      .controls = {{.name = "txtDebit", .box = {}},
                                   {.name = "", .box = {}},
                                   {.name = "", .box = {}}}},
                     {.name = "Detail", .controls = {{.name = "TxtDebit", .box = {}}}}}};
    EXPECT_EQ(DescriptionOf([&] { const Surface surface(layout); }),
              "The layout dsrTried is not well formed: control TxtDebit is there twice");
}

}  // namespace
}  // namespace varnel::test
