#include <gtest/gtest.h>

#include <algorithm>

#include "host/error.h"
#include "tests/engine/micro_report.h"

using namespace varnel;
using namespace varnel::engine;

namespace {

Layout SubLayout() {
    Layout layout = Without(MicroLayout(0), {"pageHeader", "pageFooter", "reportFooter"});
    Design(layout, "reportHeader").controls[0].text = "sub";
    return layout;
}

/// A detail of 300: its line, then a sub-report of no height at 100, then a text and a rule at 100
/// and 200.
Layout ParentLayout() {
    Layout layout = MicroLayout(0);
    auto& detail = Design(layout, "detail");
    detail.height = 300;
    detail.controls.push_back({.name = "below", .box = {0, 100, 500, 100}, .text = "below"});
    detail.controls.push_back(
        {.name = "rule", .kind = ControlKind::kLine, .box = {0, 200, 1000, 10}});
    detail.controls.push_back(
        {.name = "sub", .kind = ControlKind::kSubReport, .box = {50, 100, 800, 0}});
    return layout;
}

PlacedBand DetailOf(BandedReport& report) {
    GridMeasurer measurer;
    PlacedLog sink;
    RunToPlacedBands(report, {}, 1000, measurer, sink);
    for (auto& band : sink.bands)
        if (band.kind == SectionKind::kDetail) return band;
    return {};
}

Box BoxOf(const PlacedBand& band, std::string_view text) {
    for (const auto& item : band.content.Items())
        if (band.content.Text(item) == text) return item.box;
    ADD_FAILURE() << "no text " << text;
    return {};
}

}  // namespace

TEST(SubReport, ItsBandsStandInTheParentsAndWhatIsBelowMovesDown) {
    MicroReport parent(ParentLayout(), "line", "1");
    const auto sub = std::make_shared<MicroReport>(SubLayout(), "line", "x|y");
    parent.TextOf("sub").SetSubReport(sub);
    const PlacedBand band = DetailOf(parent);
    EXPECT_EQ(band.height, 600);
    EXPECT_EQ(BoxOf(band, "1").top, 0);
    EXPECT_EQ(BoxOf(band, "sub").top, 100);
    EXPECT_EQ(BoxOf(band, "y"), (Box{50, 300, 1000, 100}));
    EXPECT_EQ(BoxOf(band, "below").top, 400);
    EXPECT_EQ(BoxOf(band, "").top, 500);  // The rule.
}

TEST(SubReport, IsWidenedToTheControlThatHoldsIt) {
    Layout layout = ParentLayout();
    Design(layout, "detail").controls[3].box.width = 1200;
    MicroReport parent(layout, "line", "1");
    Layout sub_layout = SubLayout();
    Design(sub_layout, "detail").controls[0].stretch = Stretch::kWiden;
    parent.TextOf("sub").SetSubReport(std::make_shared<MicroReport>(sub_layout, "line", "x"));
    EXPECT_EQ(BoxOf(DetailOf(parent), "x").width, 1200);
}

TEST(SubReport, RunsWithItsOwnEventsForEachInstance) {
    MicroReport parent(ParentLayout(), "line", "1|2");
    const auto sub = std::make_shared<MicroReport>(SubLayout(), "line", "x");
    parent.TextOf("sub").SetSubReport(sub);
    BandsOf(parent);
    const Names once{"Initialize",       "ReportStart", "DataInitialize", "FetchData",
                     "reportHeader sub", "detail x",    "FetchData end",  "Terminate"};
    Names twice = once;
    twice.insert(twice.end(), once.begin(), once.end());
    EXPECT_EQ(sub->log, twice);
}

TEST(SubReport, AHiddenOrAbsentOneTakesNoSpaceAndDoesNotRun) {
    Layout layout = ParentLayout();
    auto& controls = Design(layout, "detail").controls;
    controls[3].box.height = 60;
    controls[1].box.top = 160;
    controls[2].box.top = 260;
    MicroReport parent(layout, "line", "1");
    EXPECT_EQ(DetailOf(parent).height, 240);
    const auto sub = std::make_shared<MicroReport>(SubLayout(), "line", "x");
    parent.TextOf("sub").SetSubReport(sub);
    parent.TextOf("sub").SetVisible(false);
    EXPECT_EQ(DetailOf(parent).height, 240);
    EXPECT_EQ(BoxOf(DetailOf(parent), "below").top, 100);
    BandsOf(parent);
    EXPECT_TRUE(sub->log.empty());
}

TEST(SubReport, ASkippedSectionDoesNotRunIt) {
    MicroReport parent(ParentLayout(), "line", "1");
    const auto sub = std::make_shared<MicroReport>(SubLayout(), "line", "x");
    parent.TextOf("sub").SetSubReport(sub);
    parent.On("detail", [&] { parent.SectionOf("detail").Skip(); });
    BandsOf(parent);
    PagesOf(parent, PaperFor(10));
    EXPECT_TRUE(sub->log.empty());
}

TEST(SubReport, DataExportsGetItsSectionsOneDeeperAfterTheSectionThatHoldsIt) {
    MicroReport parent(ParentLayout(), "line", "1|2");
    Layout inner_layout = ParentLayout();
    inner_layout.sections = {Design(inner_layout, "detail")};
    const auto inner = std::make_shared<MicroReport>(inner_layout, "line", "i");
    inner->TextOf("sub").SetSubReport(std::make_shared<MicroReport>(SubLayout(), "line", "x"));
    parent.TextOf("sub").SetSubReport(inner);
    EXPECT_EQ(BandsOf(parent), (Names{"begin", "RH", "PH", "1", ">i", ">>sub", ">>x", "2", ">i",
                                      ">>sub", ">>x", "RF", "PF", "end"}));
}

TEST(SubReport, OneThatHoldsItselfIsAnErrorHoweverItIsRun) {
    MicroReport outer(ParentLayout(), "line", "1");
    MicroReport inner(ParentLayout(), "line", "2");
    // Without a share in each other's lifetime.
    outer.TextOf("sub").SetSubReport({std::shared_ptr<void>(), &inner});
    inner.TextOf("sub").SetSubReport({std::shared_ptr<void>(), &outer});
    EXPECT_THROW(BandsOf(outer), Error);
    EXPECT_THROW(PagesOf(outer, PaperFor(10)), Error);
    EXPECT_EQ(std::ranges::count(outer.log, "Initialize"), 2);
    EXPECT_EQ(std::ranges::count(outer.log, "Terminate"), 2);
    outer.TextOf("sub").SetSubReport({});
    EXPECT_EQ(BandsOf(outer), (Names{"begin", "RH", "PH", "1", "RF", "PF", "end"}));
}

TEST(Composing, ATextThatGrowsPrintsOneItemForEachLine) {
    Layout layout = ParentLayout();
    Design(layout, "detail").controls[0].can_grow = true;
    Design(layout, "detail").controls[0].box.width = 300;
    MicroReport report(layout, "line", "abcdefg");
    const PlacedBand band = DetailOf(report);
    EXPECT_EQ(TextsOf(band.content), (Names{"abc", "def", "g", "below", ""}));
    EXPECT_EQ(BoxOf(band, "def"), (Box{0, 100, 300, 100}));
    EXPECT_EQ(BoxOf(band, "below").top, 300);
    EXPECT_EQ(band.height, 500);
}

TEST(Composing, TheFirstLineStandsWhereASingleOneWould) {
    Layout layout = ParentLayout();
    Design(layout, "detail").controls[0].can_grow = true;
    Design(layout, "detail").controls[0].box = {0, 0, 300, 140};
    MicroReport report(layout, "line", "abcd");
    EXPECT_EQ(BoxOf(DetailOf(report), "abc"), (Box{0, 0, 300, 140}));
    EXPECT_EQ(BoxOf(DetailOf(report), "d"), (Box{0, 100, 300, 140}));
}

TEST(Composing, FiguresAreWhatHasAValueOrStandsAtTheRight) {
    Layout layout = MicroLayout(0);
    auto& controls = Design(layout, "detail").controls;
    controls.push_back({.name = "amount", .box = {}});
    controls.push_back({.name = "right", .box = {}, .align = Align::kRight, .text = "right"});
    controls.push_back({.name = "empty", .box = {}});
    controls.push_back({.name = "hidden", .box = {}, .text = "hidden", .visible = false});
    controls.push_back(
        {.name = "page", .kind = ControlKind::kPageNumber, .box = {}, .text = "{0} of {1}"});
    MicroReport report(layout, "line", "text");
    report.On("detail", [&] { report.TextOf("amount").SetValue(Currency::FromWhole(5), "5.00"); });
    const PlacedBand band = DetailOf(report);
    EXPECT_EQ(TextsOf(band.content), (Names{"text", "5.00", "right", "{0} of {1}"}));
    const auto& items = band.content.Items();
    EXPECT_FALSE(items[0].figure);
    EXPECT_TRUE(items[1].figure);
    EXPECT_TRUE(items[2].figure);
    EXPECT_EQ(items[3].kind, ItemKind::kPageNumber);
}

TEST(Composing, AHeightThatAHandlerChangesIsHonoured) {
    MicroReport report(MicroLayout(0), "line", "1");
    report.On("detail", [&] { report.SectionOf("detail").SetHeight(70); });
    EXPECT_EQ(DetailOf(report).height, 70);
}

TEST(Composing, ASurfaceIsWidenedForTheRunOnly) {
    Layout layout = MicroLayout(0);
    Design(layout, "detail").controls[0].stretch = Stretch::kWiden;
    MicroReport report(layout, "line", "1");
    GridMeasurer measurer;
    PlacedLog sink;
    RunToPlacedBands(report, {}, 1500, measurer, sink);
    EXPECT_EQ(sink.width, 1500);
    EXPECT_EQ(BoxOf(sink.bands[2], "1").width, 1500);
    EXPECT_EQ(report.TextOf("detail").Place().width, 1000);
}
