#include <gtest/gtest.h>

#include "tests/support/allocation_count.h"
#include "tests/trial/trial_run.h"

namespace varnel {
namespace {

/// Counts what is allocated between the header of the only account and its footer.
class AllocationsOfAnAccount final : public engine::BandSink {
  public:
    long count = 0;

    void Begin(const engine::DocumentInfo&, const Surface&) override {}
    void End() override {}
    void Write(const Section& section, const engine::BandMark&) override {
        if (section.Name() == "ghAccount") count = -test::AllocationCount();
        if (section.Name() == "gfAccount") count += test::AllocationCount();
    }
};

long AllocationsOf(int lines) {
    test::TrialRun run = test::DetailRun();
    run.chart = {{1'030, 1, 2}};
    for (int i = 0; i < lines; ++i) run.Post(1'030, "2025-02-10", "1000.5", "800.25", 2);
    run.report->IReport_DisplayForeignCurrency(true);
    run.Revalue();
    run.host->calls.StopCounting();
    run.Prepare();
    AllocationsOfAnAccount sink;
    engine::RunToBands(*run.report->IReport_ReportDesigner(), {}, sink);
    EXPECT_TRUE(run.host->message_boxes.empty());
    return sink.count;
}

TEST(DetailAllocationTest, ALineAllocatesNothing) {
    EXPECT_GT(AllocationsOf(10), 0);
    EXPECT_EQ(AllocationsOf(10), AllocationsOf(2'000));
}

}  // namespace
}  // namespace varnel
