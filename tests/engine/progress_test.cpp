#include <gtest/gtest.h>

#include "tests/engine/micro_report.h"

using namespace varnel;
using namespace varnel::engine;

namespace {

class CountingProgress final : public Progress {
  public:
    explicit CountingProgress(int cancel_at = -1) : cancel_at_(cancel_at) {}
    bool Report(std::int64_t rows, int pages) override {
        last_rows = rows;
        last_pages = pages;
        return ++asked != cancel_at_;
    }
    int asked = 0;
    std::int64_t last_rows = 0;
    int last_pages = 0;

  private:
    int cancel_at_;
};

std::string ManyRows(int count) {
    std::string rows;
    for (int i = 0; i < count; ++i) rows += "A " + std::to_string(i) + "|";
    return rows;
}

}  // namespace

TEST(ProgressOfARun, IsAskedEverySomeHundredRows) {
    MicroReport report(MicroLayout(1), "g0 line", ManyRows(1000));
    CountingProgress progress;
    BandLog sink;
    const RunResult result = RunToBands(report, {}, sink, &progress);
    EXPECT_EQ(result.rows, 1000);
    EXPECT_GE(progress.asked, 2);
    EXPECT_LE(progress.asked, 10);
    EXPECT_GT(progress.last_rows, 500);
}

TEST(ProgressOfARun, IsAskedForEachPage) {
    MicroReport report(MicroLayout(0), "g0 line", ManyRows(12));
    CountingProgress progress;
    GridMeasurer measurer;
    PageStore store;
    RunToPages(report, PaperFor(6), measurer, store, &progress);
    EXPECT_EQ(progress.asked, store.Count());
    EXPECT_EQ(progress.last_pages, store.Count());
}

TEST(ProgressOfARun, CancellingStopsRowsAndLeavesTheSinkOpenButTerminates) {
    MicroReport report(MicroLayout(1), "g0 line", ManyRows(2000));
    CountingProgress progress(2);
    BandLog sink;
    const RunResult result = RunToBands(report, {}, sink, &progress);
    EXPECT_TRUE(result.cancelled);
    EXPECT_EQ(result.rows, progress.last_rows);
    EXPECT_LT(result.rows, 1000);
    EXPECT_NE(sink.bands.back(), "end");
    EXPECT_EQ(report.Formats("f0"), 0);
    EXPECT_EQ(report.log.back(), "Terminate");
}

TEST(ProgressOfARun, CancellingAtAPageStopsTheRun) {
    MicroReport report(MicroLayout(0), "g0 line", ManyRows(100));
    CountingProgress progress(3);
    GridMeasurer measurer;
    PageStore store;
    const RunResult result = RunToPages(report, PaperFor(6), measurer, store, &progress);
    EXPECT_TRUE(result.cancelled);
    EXPECT_EQ(result.pages, 3);
    EXPECT_EQ(store.Count(), 3);
    EXPECT_LT(result.rows, 20);
}

TEST(ProgressOfARun, CancellingInsideASubReportStopsTheParentToo) {
    Layout layout = MicroLayout(0);
    Design(layout, "detail")
        .controls.push_back(
            {.name = "sub", .kind = ControlKind::kSubReport, .box = {0, 100, 1000, 0}});
    MicroReport parent(layout, "g0 line", "A 1|A 2");
    parent.TextOf("sub").SetSubReport(
        std::make_shared<MicroReport>(MicroLayout(0), "g0 line", ManyRows(2000)));
    CountingProgress progress(1);
    BandLog sink;
    const RunResult result = RunToBands(parent, {}, sink, &progress);
    EXPECT_TRUE(result.cancelled);
    EXPECT_EQ(result.rows, 1);  // Of the parent only.
    EXPECT_EQ(parent.Formats("detail"), 1);
    EXPECT_EQ(parent.log.back(), "Terminate");
}

TEST(FailingFeed, TheErrorComesOutAfterTerminateAndTheSurfaceIsPutBack) {
    MicroReport report(MicroLayout(1), "g0 line", "A 1|A 2|B 3");
    report.fails_at = 2;
    report.On("detail", [&] { report.TextOf("reportHeader").SetText("scribbled"); });
    EXPECT_THROW(BandsOf(report), std::runtime_error);
    EXPECT_EQ(report.Formats("detail"), 2);
    EXPECT_EQ(report.log.back(), "Terminate");
    EXPECT_EQ(report.TextOf("reportHeader").Text(), "RH");
    EXPECT_EQ(report.Data().Rows(), nullptr);
    report.fails_at = -1;
    EXPECT_EQ(BandsOf(report).back(), "end");
}
