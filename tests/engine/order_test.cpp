#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/engine/micro_report.h"
#include "tests/support/error_of.h"

using namespace varnel;
using namespace varnel::engine;
using testing::HasSubstr;

namespace {

/// Logs the name of each section, with its level, and in brackets where it does not print.
class MarkLog final : public BandSink {
  public:
    void Begin(const DocumentInfo&, const Surface&) override {}
    void Write(const Section& section, const BandMark& mark) override {
        const std::string entry = std::string(section.Name()) + " " + std::to_string(mark.level);
        marks.push_back(mark.printed ? entry : "(" + entry + ")");
    }
    void End() override {}
    Names marks;
};

}  // namespace

TEST(Order, EventsComeInTheOrderThatReportsRelyOn) {
    MicroReport report(MicroLayout(2), "g0 g1 line", "A a 1|A a 2|A b 3|B b 4");
    BandsOf(report);
    EXPECT_EQ(report.log, (Names{"Initialize",      "ReportStart",   "DataInitialize", "FetchData",
                                 "reportHeader RH", "pageHeader PH", "h0 A",           "h1 a",
                                 "detail 1",        "FetchData",     "detail 2",       "FetchData",
                                 "f1 end a",        "h1 b",          "detail 3",       "FetchData",
                                 "f1 end b",        "f0 end A",      "h0 B",           "h1 b",
                                 "detail 4",        "FetchData end", "f1 end b",       "f0 end B",
                                 "reportFooter RF", "pageFooter PF", "Terminate"}));
}

TEST(Order, IsTheSameOnPagesAndOnAnEndlessPage) {
    MicroReport bands(MicroLayout(2), "g0 g1 line", "A a 1|A b 2|B b 3");
    MicroReport paged(MicroLayout(2), "g0 g1 line", "A a 1|A b 2|B b 3");
    MicroReport placed(MicroLayout(2), "g0 g1 line", "A a 1|A b 2|B b 3");
    BandsOf(bands);
    PagesOf(paged, PaperFor(100));
    GridMeasurer measurer;
    PlacedLog sink;
    RunToPlacedBands(placed, {}, 1000, measurer, sink);
    EXPECT_EQ(paged.log, bands.log);
    EXPECT_EQ(placed.log, bands.log);
}

TEST(Order, AnOuterChangeClosesAllThreeLevelsThoughTheInnerValuesAreTheSame) {
    MicroReport report(MicroLayout(3), "g0 g1 g2 line", "A a x 1|A a y 2|B a y 3");
    EXPECT_EQ(BandsOf(report),
              (Names{"begin", "RH",    "PH",    "A",     "a",     "x",  "1",  "end x",
                     "y",     "2",     "end y", "end a", "end A", "B",  "a",  "y",
                     "3",     "end y", "end a", "end B", "RF",    "PF", "end"}));
}

TEST(Order, NullKeysMakeOneGroupOfTheirOwn) {
    MicroReport report(MicroLayout(1), "g0 line", "~ 1|~ 2|A 3|~ 4");
    EXPECT_EQ(BandsOf(report), (Names{"begin", "RH", "PH", "", "1", "2", "end ", "A", "3", "end A",
                                      "", "4", "end ", "RF", "PF", "end"}));
}

TEST(Order, AGroupWithoutFieldHoldsTheWholeReport) {
    Layout layout = MicroLayout(1);
    Design(layout, "h0").group_field = {};
    MicroReport report(layout, "g0 line", "A 1|B 2");
    EXPECT_EQ(BandsOf(report),
              (Names{"begin", "RH", "PH", "A", "1", "2", "end B", "RF", "PF", "end"}));
}

TEST(Order, WithoutRowsOnlyReportAndPageSectionsPrint) {
    MicroReport report(MicroLayout(1), "g0 line", "");
    Names ends;
    for (const auto* name : {"reportHeader", "pageHeader", "reportFooter", "pageFooter"})
        report.On(name, [&] { ends.emplace_back(report.Data().EndOfData() ? "end" : "row"); });
    EXPECT_EQ(BandsOf(report), (Names{"begin", "RH", "PH", "RF", "PF", "end"}));
    EXPECT_EQ(ends, Names(4, "end"));
}

TEST(Order, AReportThatCouldNotAttachRowsPrintsAsAnEmptyOne) {
    MicroReport report(MicroLayout(1));
    EXPECT_EQ(TextsOfPages(report, PaperFor(10)), (PageTexts{{"RH", "PH", "RF", "PF"}}));
}

TEST(Order, GroupFootersSeeTheLastRowOfTheirGroupAndHeadersTheFirst) {
    MicroReport report(MicroLayout(1), "g0 line", "A 1|A 2|B 3");
    Names seen;
    const auto look = [&] { seen.emplace_back(report.Data().Current().Text({1})); };
    for (const auto* name : {"reportHeader", "h0", "f0"}) report.On(name, look);
    BandsOf(report);
    EXPECT_EQ(seen, (Names{"1", "1", "2", "3", "3"}));
}

TEST(Order, AHiddenDetailStillClosesAndOpensGroups) {
    MicroReport report(MicroLayout(1), "g0 line", "A 1|B 2|C 3");
    report.On("detail", [&] {
        if (report.TextOf("detail").Text() == "2") report.SectionOf("detail").Skip();
        if (report.TextOf("detail").Text() == "3") report.SectionOf("detail").SetVisible(false);
    });
    EXPECT_EQ(BandsOf(report), (Names{"begin", "RH", "PH", "A", "1", "end A", "B", "end B", "C",
                                      "end C", "RF", "PF", "end"}));
}

TEST(Order, ExportsHearOfEveryGroupButOfNothingElseThatDoesNotPrint) {
    MicroReport report(MicroLayout(2), "g0 g1 line", "A a 1|A b 2");
    report.On("h1", [&] {
        if (report.TextOf("h1").Text() == "b") report.SectionOf("h1").Skip();
    });
    report.On("f0", [&] { report.SectionOf("f0").SetVisible(false); });
    report.On("detail", [&] {
        if (report.TextOf("detail").Text() == "1") report.SectionOf("detail").Skip();
    });
    report.On("pageFooter", [&] { report.SectionOf("pageFooter").Skip(); });
    MarkLog sink;
    RunToBands(report, {}, sink);
    EXPECT_EQ(sink.marks, (Names{"reportHeader -1", "pageHeader -1", "h0 0", "h1 1", "f1 1",
                                 "(h1 1)", "detail -1", "f1 1", "(f0 0)", "reportFooter -1"}));
}

TEST(Order, TextsOfHandlersStayAndBoundTextsAreRefreshed) {
    Layout layout = MicroLayout(0);
    Design(layout, "detail").controls.push_back({.name = "note", .box = {}});
    MicroReport report(layout, "line", "1|2|3");
    Names notes;
    report.On("detail", [&] {
        if (report.Data().Current().Text({0}) == "2") report.TextOf("note").SetText("second");
        notes.push_back(report.TextOf("note").Text());
        report.TextOf("detail").SetText("overwritten");
    });
    BandsOf(report);
    EXPECT_EQ(notes, (Names{"", "second", "second"}));
    EXPECT_EQ(report.log[10], "detail 3");
}

TEST(Order, ASecondRunGivesTheSameAndKeepsWhatTheHostSet) {
    MicroReport report(MicroLayout(1), "g0 line", "A 1|B 2");
    report.TextOf("reportHeader").SetText("set by host");
    report.On("detail", [&] {
        report.TextOf("reportHeader").SetText("scribbled");
        report.SectionOf("f0").SetVisible(false);
    });
    const Names first = BandsOf(report);
    EXPECT_EQ(first[1], "set by host");
    EXPECT_EQ(report.TextOf("reportHeader").Text(), "set by host");
    EXPECT_TRUE(report.SectionOf("f0").Visible());
    EXPECT_EQ(BandsOf(report), first);
}

TEST(Order, AReportThatIsRunningIsNotRunAgainAndGoesOnUnharmed) {
    MicroReport report(MicroLayout(1), "g0 line", "A 1|A 2|B 3");
    report.TextOf("reportHeader").SetText("set by host");
    report.On("reportHeader", [&] { report.TextOf("pageHeader").SetText("set by handler"); });
    report.On("f0", [&] {
        std::string text;
        EXPECT_EQ(test::ErrorOf([&] { BandsOf(report); }, &text), error_number::kInvalidArgument);
        EXPECT_THAT(text, HasSubstr("micro is running already"));
    });
    EXPECT_EQ(BandsOf(report), (Names{"begin", "set by host", "set by handler", "A", "1", "2",
                                      "end A", "B", "3", "end B", "RF", "PF", "end"}));
    EXPECT_EQ(report.TextOf("pageHeader").Text(), "PH");
    EXPECT_EQ(std::ranges::count(report.log, "Initialize"), 1);
    EXPECT_EQ(std::ranges::count(report.log, "Terminate"), 1);
}

TEST(Order, AnUnknownFieldIsNamedWithItsLayout) {
    for (const auto* columns : {"g9 line", "g0 lines"}) {
        MicroReport report(MicroLayout(1), columns, "A 1");
        std::string text;
        EXPECT_EQ(test::ErrorOf([&] { BandsOf(report); }, &text), error_number::kUnknownColumn);
        EXPECT_THAT(text, HasSubstr("layout micro"));
        EXPECT_THAT(text, HasSubstr(columns == std::string("g9 line") ? "\"g0\"" : "\"line\""));
        EXPECT_EQ(report.log.back(), "Terminate");
    }
}
