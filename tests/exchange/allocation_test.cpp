#include <gtest/gtest.h>

#include "tests/exchange/realized_run.h"
#include "tests/exchange/unrealized_detail_run.h"
#include "tests/exchange/unrealized_run.h"
#include "tests/support/allocations_between.h"

namespace varnel::test {
namespace {

/// Of a run over so many of the same row.
template <class Run, class Row>
long AllocationsOf(const Row& row, std::size_t count, const char* header, const char* footer) {
    Run run;
    run.host->calls.StopCounting();
    run(std::vector<Row>(count, row));
    return AllocationsBetween(header, footer, *run.report->IReport_ReportDesigner());
}

template <class Run, class Row>
void ExpectNoneForFurther(const Row& row, const char* header, const char* footer) {
    const long of_ten = AllocationsOf<Run>(row, 10, header, footer);
    EXPECT_GT(of_ten, 0);
    EXPECT_EQ(AllocationsOf<Run>(row, 2'000, header, footer), of_ten);
}

TEST(ExchangeAllocationTest, ARowAllocatesNothing) {
    auto payment = Paid("980");
    payment.discount = Currency::FromWhole(20);
    payment.name = "A customer whose name is longer than what a text holds in place";
    ExpectNoneForFurther<RealizedRun>(payment, "ghCurrency", "gfCurrPmtType");
    const ForeignRow balance{1'060, 2, "12.34", "15"};
    ExpectNoneForFurther<UnrealizedRun>(balance, "ghCurrency", "gfAccountType");
    auto line = Line("12.34", "15");
    line.description = "Goods delivered in two parts, the second one late";
    ExpectNoneForFurther<DetailRun>(line, "ghGLAcct", "gfGLAcct");
}

}  // namespace
}  // namespace varnel::test
