#include <gtest/gtest.h>

#include "tests/statements/statement_run.h"
#include "tests/support/allocations_between.h"

namespace varnel::test {
namespace {

long AllocationsOf(StatementRun run, std::int32_t type, int blocks) {
    for (std::int32_t id = 10'000; id < 10'000 + blocks * 10; id += 10) {
        run.chart.push_back({id, type, 1});
        run.chart.push_back({id + 1, type, 2, 1});
        run.chart.push_back({id + 2, type, 3});
        run.Post(id + 1, "2025-02-10", "1000.5");
    }
    run.host->calls.StopCounting();
    run.Prepare();
    const long count =
        AllocationsBetween("ghAcctType", "gfAcctType", *run.report->IReport_ReportDesigner());
    EXPECT_TRUE(run.host->message_boxes.empty());
    return count;
}

TEST(StatementAllocationTest, ARowAllocatesNothing) {
    for (auto* make : {IncomeRun, ComparativeIncomeRun, BudgetRun})
        EXPECT_EQ(AllocationsOf(make(), 5, 10), AllocationsOf(make(), 5, 500));
    for (auto* make : {SheetRun, ComparativeSheetRun})
        EXPECT_EQ(AllocationsOf(make(), 1, 10), AllocationsOf(make(), 1, 500));
}

}  // namespace
}  // namespace varnel::test
