#include <gtest/gtest.h>

#include "tests/bank/bank_run.h"
#include "tests/support/allocations_between.h"

namespace varnel {
namespace {

long AllocationsOf(int items) {
    test::BankRun run = test::SavedRun();
    run.items.assign(static_cast<std::size_t>(items), {3, test::Money("-1000.5")});
    run.host->calls.StopCounting();
    run.Prepare();
    const long count = test::AllocationsBetween("ghTransactionType", "gfTransactionType",
                                                *run.report->IReport_ReportDesigner());
    EXPECT_TRUE(run.host->message_boxes.empty());
    return count;
}

TEST(ReconciliationAllocationTest, AnItemAllocatesNothing) {
    EXPECT_EQ(AllocationsOf(10), AllocationsOf(900));
}

}  // namespace
}  // namespace varnel
