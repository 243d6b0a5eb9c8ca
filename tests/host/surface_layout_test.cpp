#include <gtest/gtest.h>

#include <initializer_list>

#include "host/surface.h"
#include "tests/support/error_of.h"

namespace varnel::test {
namespace {

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
