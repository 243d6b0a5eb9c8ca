#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/engine/micro_report.h"
#include "tests/support/error_of.h"

using namespace varnel;
using namespace varnel::engine;
using testing::HasSubstr;

namespace {

/// Without report header and footer and page footer: pages are easier to count.
Layout PlainLayout(std::size_t groups) {
    return Without(MicroLayout(groups), {"reportHeader", "reportFooter", "pageFooter"});
}

Twips TopOf(const Page& page, std::string_view text) {
    for (const auto& item : page.content.Items())
        if (page.content.Text(item) == text) return item.box.top;
    ADD_FAILURE() << "no text " << text;
    return -1;
}

}  // namespace

TEST(Pages, HeaderAndFooterStandOnEachAndTheReportHeaderFirst) {
    MicroReport report(MicroLayout(0), "line", "1|2|3|4");
    EXPECT_EQ(TextsOfPages(report, PaperFor(5)),
              (PageTexts{{"RH", "PH", "1", "2", "PF"}, {"PH", "3", "4", "RF", "PF"}}));
}

TEST(Pages, BandsFollowEachOtherAndTheFooterStandsAtTheBottom) {
    MicroReport report(MicroLayout(0), "line", "1");
    const auto pages = PagesOf(report, {1000, 1000, 70, 50, 0});
    ASSERT_EQ(pages.size(), 1u);
    EXPECT_EQ(TopOf(pages[0], "RH"), 70);
    EXPECT_EQ(TopOf(pages[0], "PH"), 170);
    EXPECT_EQ(TopOf(pages[0], "1"), 270);
    EXPECT_EQ(TopOf(pages[0], "PF"), 850);
}

TEST(Pages, EachInstanceIsFormattedOnceThoughItMovesToTheNextPage) {
    MicroReport report(MicroLayout(1), "g0 line", "A 1|A 2|A 3|B 4|B 5|C 6|C 7");
    const auto pages = PagesOf(report, PaperFor(5));
    EXPECT_GT(pages.size(), 3u);
    EXPECT_EQ(report.Formats("detail"), 7);
    EXPECT_EQ(report.Formats("h0"), 3);
    EXPECT_EQ(report.Formats("f0"), 3);
    EXPECT_EQ(report.Formats("reportFooter"), 1);
    EXPECT_EQ(report.Formats("pageHeader"), static_cast<long>(pages.size()));
    EXPECT_EQ(report.Formats("pageFooter"), static_cast<long>(pages.size()));
}

TEST(Pages, AGroupHeaderStaysWithItsFirstLine) {
    MicroReport report(PlainLayout(2), "g0 g1 line", "A a 1|A b 2|B b 3");
    // Page 1 has room for h0 A, h1 a, 1, f1, h1 b but not for 2: the header goes with it.
    EXPECT_EQ(TextsOfPages(report, PaperFor(6)),
              (PageTexts{{"PH", "A", "a", "1", "end a"},
                         {"PH", "b", "2", "end b", "end A"},
                         {"PH", "B", "b", "3", "end b", "end B"}}));
}

TEST(Pages, AFooterTakesTheLastLineOfItsGroupAlong) {
    MicroReport report(PlainLayout(1), "g0 line", "A 1|A 2|A 3");
    EXPECT_EQ(TextsOfPages(report, PaperFor(5)),
              (PageTexts{{"PH", "A", "1", "2"}, {"PH", "3", "end A"}}));
}

TEST(Pages, ALineStaysWithTheOneBeforeOrAfterWhereItsHandlerSaysSo) {
    MicroReport report(PlainLayout(0), "line", "1|2|heading|4|5|6|sum|8");
    report.On("detail", [&] {
        const auto& line = report.TextOf("detail").Text();
        if (line == "heading") report.SectionOf("detail").KeepWithNext();
        if (line == "sum") report.SectionOf("detail").KeepWithPrevious();
    });
    EXPECT_EQ(TextsOfPages(report, PaperFor(4)),
              (PageTexts{{"PH", "1", "2"}, {"PH", "heading", "4", "5"}, {"PH", "6", "sum", "8"}}));
}

TEST(Pages, TheReportFooterTakesABandAlong) {
    Layout layout = Without(MicroLayout(0), {"reportHeader", "pageFooter"});
    MicroReport report(layout, "line", "1|2|3");
    EXPECT_EQ(TextsOfPages(report, PaperFor(4)), (PageTexts{{"PH", "1", "2"}, {"PH", "3", "RF"}}));
}

TEST(Pages, WhereNothingElseFitsAFooterStandsAlone) {
    MicroReport report(PlainLayout(1), "g0 line", "A 1");
    EXPECT_EQ(TextsOfPages(report, PaperFor(3)), (PageTexts{{"PH", "A", "1"}, {"PH", "end A"}}));
}

TEST(Pages, AHiddenHeaderLetsTheSummaryLinesOfGroupsBreak) {
    MicroReport report(PlainLayout(1), "g0 line", "A 1|B 2|C 3|D 4|E 5");
    report.On("h0", [&] { report.SectionOf("h0").Skip(); });
    report.On("detail", [&] { report.SectionOf("detail").Skip(); });
    EXPECT_EQ(TextsOfPages(report, PaperFor(3)),
              (PageTexts{{"PH", "end A", "end B"}, {"PH", "end C", "end D"}, {"PH", "end E"}}));
}

TEST(Pages, ARepeatedHeaderPrintsAgainWhereItsGroupGoesOn) {
    Layout layout = PlainLayout(2);
    Design(layout, "h0").repeat = true;
    MicroReport report(layout, "g0 g1 line", "A a 1|A a 2|A a 3|A b 4|B b 5");
    EXPECT_EQ(TextsOfPages(report, PaperFor(5)),
              (PageTexts{{"PH", "A", "a", "1", "2"},
                         {"PH", "A", "3", "end a"},
                         {"PH", "b", "4", "end b", "end A"},  // No room to repeat it here.
                         {"PH", "B", "b", "5", "end b"},
                         {"PH", "B", "end B"}}));
    EXPECT_EQ(report.Formats("h0"), 2);
}

TEST(Pages, AHeaderThatTheGroupSkippedIsNotRepeated) {
    Layout layout = PlainLayout(1);
    Design(layout, "h0").repeat = true;
    MicroReport report(layout, "g0 line", "A 1|B 2|B 3|B 4");
    report.On("h0", [&] {
        if (report.TextOf("h0").Text() == "B") report.SectionOf("h0").Skip();
    });
    EXPECT_EQ(TextsOfPages(report, PaperFor(5)),
              (PageTexts{{"PH", "A", "1", "end A", "2"}, {"PH", "3", "4", "end B"}}));
}

TEST(Pages, AGroupKeptTogetherBeginsANewPage) {
    Layout layout = PlainLayout(1);
    Design(layout, "h0").keep_together = true;
    MicroReport report(layout, "g0 line", "A 1|A 2|B 3|B 4|C 5");
    EXPECT_EQ(TextsOfPages(report, PaperFor(8)),
              (PageTexts{{"PH", "A", "1", "2", "end A"},
                         {"PH", "B", "3", "4", "end B", "C", "5", "end C"}}));
}

TEST(Pages, AGroupTooTallForAPageBreaksWhereItStands) {
    Layout layout = PlainLayout(1);
    Design(layout, "h0").keep_together = true;
    MicroReport report(layout, "g0 line", "A 1|B 2|B 3|B 4|B 5");
    EXPECT_EQ(TextsOfPages(report, PaperFor(6)),
              (PageTexts{{"PH", "A", "1", "end A", "B", "2"}, {"PH", "3", "4", "5", "end B"}}));
}

TEST(Pages, AnInnerGroupIsKeptTogetherThoughTheOuterCannotBe) {
    Layout layout = PlainLayout(2);
    Design(layout, "h0").keep_together = true;
    Design(layout, "h1").keep_together = true;
    MicroReport report(layout, "g0 g1 line", "A a 1|A b 2|A b 3|A c 4");
    EXPECT_EQ(TextsOfPages(report, PaperFor(7)), (PageTexts{{"PH", "A", "a", "1", "end a"},
                                                            {"PH", "b", "2", "3", "end b"},
                                                            {"PH", "c", "4", "end c", "end A"}}));
}

TEST(Pages, ABandTallerThanAPageIsCutBetweenItsTexts) {
    Layout layout = PlainLayout(0);
    auto& detail = Design(layout, "detail");
    detail.height = 900;
    detail.controls.clear();
    constexpr std::string_view kTexts[] = {"a", "b", "c", "d", "e", "f"};
    for (Twips i = 0; i < 6; ++i)
        detail.controls.push_back(
            {.name = kTexts[i], .box = {0, i * 150, 500, 150}, .text = kTexts[i]});
    detail.controls.push_back(
        {.name = "side", .kind = ControlKind::kLine, .box = {600, 0, 10, 900}});
    detail.controls.push_back(
        {.name = "across", .kind = ControlKind::kLine, .box = {0, 140, 500, 10}});
    MicroReport report(layout, "line", "1");
    const auto pages = PagesOf(report, PaperFor(5));  // 400 below the header: two texts and a bit.
    ASSERT_EQ(pages.size(), 3u);
    EXPECT_EQ(TextsOf(pages[1].content), (Names{"PH", "c", "d", ""}));
    EXPECT_EQ(TopOf(pages[1], "c"), 100);
    EXPECT_EQ(TopOf(pages[2], "f"), 250);
    EXPECT_EQ(pages[1].content.Items().back().box, (Box{600, 100, 10, 300}));
    EXPECT_EQ(report.Formats("detail"), 1);
}

TEST(Pages, ATextTallerThanAPageDoesNotLoop) {
    Layout layout = PlainLayout(0);
    auto& detail = Design(layout, "detail");
    detail.height = 1100;
    detail.controls[0].box.height = 1000;
    detail.controls.push_back({.name = "after", .box = {0, 1000, 500, 100}, .text = "after"});
    MicroReport report(layout, "line", "1");
    EXPECT_EQ(TextsOfPages(report, PaperFor(5)), (PageTexts{{"PH", "1"}, {"PH"}, {"PH", "after"}}));
}

TEST(Pages, APageWithoutRoomForALineDoesNotLoop) {
    MicroReport report(MicroLayout(1), "g0 line", "A 1|A 2");
    EXPECT_LE(PagesOf(report, PaperFor(2)).size(), 7u);
}

TEST(Pages, AReportHeaderLongerThanAPageIsFollowedByOnePageHeader) {
    Layout layout = Without(MicroLayout(0), {"pageFooter"});
    auto& header = Design(layout, "reportHeader");
    header.height = 700;
    header.controls[0].box.top = 650;
    header.controls[0].box.height = 50;
    MicroReport report(layout, "line", "1");
    EXPECT_EQ(TextsOfPages(report, PaperFor(5)), (PageTexts{{}, {"PH", "RH", "1", "RF"}}));
    EXPECT_EQ(report.Formats("pageHeader"), 1);
}

TEST(Pages, APageHeaderThatTheReportHeaderLeavesNoRoomForMovesOn) {
    Layout layout = Without(MicroLayout(0), {"pageFooter"});
    Design(layout, "reportHeader").height = 450;
    MicroReport report(layout, "line", "1");
    EXPECT_EQ(TextsOfPages(report, PaperFor(5)), (PageTexts{{"RH"}, {"PH", "1", "RF"}}));
    EXPECT_EQ(report.Formats("pageHeader"), 1);
}

TEST(Pages, APageHeaderSeesTheFirstRowOfItsPage) {
    MicroReport report(MicroLayout(0), "line", "1|2|3|4|5");
    Names seen;
    report.On("pageHeader", [&] {
        seen.emplace_back(report.Data().EndOfData() ? "end" : report.Data().Current().Text({0}));
    });
    PagesOf(report, PaperFor(4));
    // The last one is begun by the report footer, which takes line 5 along.
    EXPECT_EQ(seen, (Names{"1", "2", "4", "end"}));
}

TEST(Pages, AFooterThatGrowsIsGivenItsRoomOnTheNextPage) {
    Layout layout = Without(MicroLayout(0), {"reportHeader", "reportFooter"});
    MicroReport report(layout, "line", "1|2|3|4|5");
    report.On("pageFooter", [&] { report.SectionOf("pageFooter").SetHeight(200); });
    const auto pages = PagesOf(report, {1000, 500, 0, 100, 0});
    ASSERT_EQ(pages.size(), 4u);
    EXPECT_EQ(TextsOf(pages[0].content), (Names{"PH", "1", "2", "PF"}));
    EXPECT_EQ(TopOf(pages[0], "PF"), 300);  // Into the margin rather than over the lines.
    EXPECT_EQ(TextsOf(pages[1].content), (Names{"PH", "3", "PF"}));
    EXPECT_EQ(TopOf(pages[1], "PF"), 200);
}

TEST(Pages, ANarrowLayoutIsWidenedAndAWideOneCentred) {
    Layout layout = PlainLayout(0);
    Design(layout, "detail").controls[0].stretch = Stretch::kWiden;
    const struct {
        PageSetup setup;
        Box expected;
    } cases[] = {{{1500, 1000, 0, 0, 200}, {200, 100, 1100, 100}},
                 {{1400, 1000, 0, 0, 200}, {200, 100, 1000, 100}},
                 {{1100, 1000, 0, 0, 200}, {50, 100, 1000, 100}}};
    for (const auto& [setup, expected] : cases) {
        MicroReport report(layout, "line", "1");
        const auto pages = PagesOf(report, setup);
        EXPECT_EQ(pages[0].content.Items().back().box, expected);
        EXPECT_EQ(pages[0].width, setup.paper_width);
    }
}

TEST(Pages, ALayoutWiderThanThePaperIsRefused) {
    MicroReport report(PlainLayout(0), "line", "1");
    EXPECT_EQ(PagesOf(report, {1000, 500, 0, 0, 100}).size(), 1u);
    const auto text = test::DescriptionOf([&] { PagesOf(report, {999, 500, 0, 0, 100}); });
    EXPECT_THAT(text, HasSubstr("layout micro is 1000 twips wide and the paper 999;"));
}

namespace {

class PageLog final : public PageSink {
  public:
    void Begin(const DocumentInfo& info, int page_count) override {
        log.push_back(info.title + " " + std::to_string(page_count));
    }
    void Write(const Page& page, int number, int page_count) override {
        log.push_back(TextsOf(page.content).at(1) + " on " + std::to_string(number) + " of " +
                      std::to_string(page_count));
    }
    void End() override { log.emplace_back("end"); }
    Names log;
};

}  // namespace

TEST(Pages, TheNumberOfPagesIsKnownBeforeTheFirstIsWritten) {
    MicroReport report(PlainLayout(0), "line", "1|2|3");
    GridMeasurer measurer;
    PageStore store;
    const RunResult result = RunToPages(report, PaperFor(2), measurer, store);
    EXPECT_EQ(result.pages, 3);
    EXPECT_EQ(result.rows, 3);
    PageLog sink;
    WritePages(store, {.title = "T", .company = {}, .language = {}, .creator = {}, .date = {}},
               sink);
    EXPECT_EQ(sink.log, (Names{"T 3", "1 on 1 of 3", "2 on 2 of 3", "3 on 3 of 3", "end"}));
}
