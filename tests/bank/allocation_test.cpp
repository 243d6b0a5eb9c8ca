#include <gtest/gtest.h>

#include "tests/bank/bank_run.h"
#include "tests/support/allocations_between.h"

namespace varnel::test {
namespace {

long AllocationsOf(int items, bool current) {
    BankRun run(current);
    run.items.assign(static_cast<std::size_t>(items), {3, Money("-1000.5")});
    run.note = "a description that is too long to be kept without memory of its own";
    run.host->calls.StopCounting();
    run.Prepare();
    const long count = AllocationsBetween("ghTransactionType", "gfTransactionType",
                                          *run.report->IReport_ReportDesigner());
    EXPECT_TRUE(run.host->message_boxes.empty());
    return count;
}

TEST(ReconciliationAllocationTest, AnItemAllocatesNothing) {
    for (const bool current : {false, true})
        EXPECT_EQ(AllocationsOf(10, current), AllocationsOf(900, current)) << current;
}

}  // namespace
}  // namespace varnel::test
