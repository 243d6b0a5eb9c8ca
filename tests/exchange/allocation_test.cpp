#include <gtest/gtest.h>

#include "tests/exchange/realized_run.h"
#include "tests/exchange/unrealized_detail_run.h"
#include "tests/exchange/unrealized_run.h"
#include "tests/support/allocations_between.h"

namespace varnel {
namespace {

using test::AllocationsBetween;

long AllocationsOfPayments(std::size_t count) {
    test::RealizedRun run;
    run.host->calls.StopCounting();
    auto payment = test::Paid("980");
    payment.discount = Currency::FromWhole(20);
    payment.name = "A customer whose name is longer than what a text holds in place";
    const std::vector<test::PaymentRow> same(count, payment);
    run.host->database.Answer("FROM CurrPmtDet_View", test::PaymentRows(same));
    return AllocationsBetween("ghCurrency", "gfCurrPmtType", *run.report->IReport_ReportDesigner());
}

long AllocationsOfBalances(std::size_t count) {
    test::UnrealizedRun run;
    run.host->calls.StopCounting();
    const std::vector<test::ForeignRow> same(count, {1'060, 2, "12.34", "15"});
    run.host->database.Answer("SUM(ForeignAmnt)", test::ForeignRows(same));
    return AllocationsBetween("ghCurrency", "gfAccountType", *run.report->IReport_ReportDesigner());
}

long AllocationsOfLines(std::size_t count) {
    test::DetailRun run;
    run.host->calls.StopCounting();
    auto line = test::Line("12.34", "15");
    line.description = "Goods delivered in two parts, the second one late";
    run.host->database.Answer(test::kLinesStatement,
                              test::LineRows(std::vector<test::ForeignLine>(count, line)));
    return AllocationsBetween("ghGLAcct", "gfGLAcct", run.Designer());
}

struct Measured {
    const char* name;
    long (*allocations_of)(std::size_t rows);
};

const Measured kReports[] = {{"realized", AllocationsOfPayments},
                             {"unrealized", AllocationsOfBalances},
                             {"unrealized detail", AllocationsOfLines}};

TEST(ExchangeAllocationTest, ARowAllocatesNothing) {
    for (const auto& [name, allocations_of] : kReports) {
        EXPECT_GT(allocations_of(10), 0) << name;
        EXPECT_EQ(allocations_of(10), allocations_of(2'000)) << name;
    }
}

}  // namespace
}  // namespace varnel
