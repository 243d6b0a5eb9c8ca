#include <gtest/gtest.h>

#include "tests/support/allocations_between.h"
#include "tests/trial/trial_run.h"

namespace varnel::test {
namespace {

long AllocationsOf(TrialRun run, int lines) {
    run.chart = {{1'030, 1, 2}};
    for (int i = 0; i < lines; ++i) run.Post(1'030, "2025-02-10", "1000.5", "800.25", 2);
    run.report->IReport_DisplayForeignCurrency(true);
    if (dynamic_cast<IExchangeRates*>(run.report.get()) != nullptr) run.Revalue();
    run.host->calls.StopCounting();
    run.Prepare();
    const long count =
        AllocationsBetween("ghAccount", "gfAccount", *run.report->IReport_ReportDesigner());
    EXPECT_TRUE(run.host->message_boxes.empty());
    return count;
}

TEST(TrialAllocationTest, ALineAllocatesNothing) {
    for (auto* make : {+[] { return DetailRun(); }, +[] { return LedgerRun(); }}) {
        const long of_ten = AllocationsOf(make(), 10);
        EXPECT_GT(of_ten, 0);
        EXPECT_EQ(AllocationsOf(make(), 2'000), of_ten);
    }
}

}  // namespace
}  // namespace varnel::test
