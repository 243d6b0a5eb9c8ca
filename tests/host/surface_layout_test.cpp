#include <gtest/gtest.h>

#include <initializer_list>

#include "host/surface.h"
#include "tests/support/error_of.h"

namespace varnel {
namespace {

using Kind = SectionKind;

struct Shape {
    const char* name;
    std::vector<Kind> sections;
    const char* fault;
};

void PrintTo(const Shape& shape, std::ostream* out) { *out << shape.name; }

Layout LayoutOf(const std::vector<Kind>& kinds) {
    Layout layout{.name = "dsrTried", .sections = {}};
    for (const Kind kind : kinds) layout.sections.push_back({.name = "Section", .kind = kind});
    return layout;
}

class MalformedLayoutTest : public testing::TestWithParam<Shape> {};

TEST_P(MalformedLayoutTest, IsRefusedWithTheLayoutsNameAndTheReason) {
    const Layout layout = LayoutOf(GetParam().sections);
    std::string description;
    EXPECT_EQ(test::ErrorOf([&] { const Surface surface(layout); }, &description),
              error_number::kInvalidArgument);
    EXPECT_EQ(description,
              std::string("The layout dsrTried is not well formed: ") + GetParam().fault);
}

constexpr const char* kOrder = "section Section is out of order";
constexpr const char* kPairs = "group headers and footers do not pair";
constexpr const char* kDetail = "it needs one detail section";
constexpr const char* kTwice = "section Section is there twice";

INSTANTIATE_TEST_SUITE_P(
    Shapes, MalformedLayoutTest,
    testing::Values(
        Shape{"no detail", {Kind::kReportHeader, Kind::kPageHeader}, kDetail},
        Shape{"nothing", {}, kDetail}, Shape{"two details", {Kind::kDetail, Kind::kDetail}, kTwice},
        Shape{"no footer", {Kind::kGroupHeader, Kind::kDetail}, kPairs},
        Shape{"no header", {Kind::kDetail, Kind::kGroupFooter}, kPairs},
        Shape{"one footer for two",
              {Kind::kGroupHeader, Kind::kGroupHeader, Kind::kDetail, Kind::kGroupFooter},
              kPairs},
        Shape{"header after detail", {Kind::kDetail, Kind::kPageHeader}, kOrder},
        Shape{"footer before detail",
              {Kind::kGroupFooter, Kind::kDetail, Kind::kGroupHeader},
              kOrder},
        Shape{"detail after the report footer", {Kind::kReportFooter, Kind::kDetail}, kOrder},
        Shape{"two page headers", {Kind::kPageHeader, Kind::kPageHeader, Kind::kDetail}, kTwice},
        Shape{"two report footers",
              {Kind::kDetail, Kind::kReportFooter, Kind::kReportFooter},
              kTwice}));

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
    EXPECT_EQ(test::DescriptionOf([&] { const Surface surface(layout); }),
              "The layout dsrTried is not well formed: control TxtDebit is there twice");
}

}  // namespace
}  // namespace varnel
