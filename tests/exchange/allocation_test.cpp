#include <gtest/gtest.h>

#include "tests/exchange/realized_run.h"
#include "tests/exchange/unrealized_detail_run.h"
#include "tests/exchange/unrealized_run.h"
#include "tests/support/allocations_between.h"

namespace varnel::test {
namespace {

long AllocationsOfPayments(std::size_t count) {
    RealizedRun run;
    run.host->calls.StopCounting();
    auto payment = Paid("980");
    payment.discount = Currency::FromWhole(20);
    payment.name = "A customer whose name is longer than what a text holds in place";
    const std::vector<PaymentRow> same(count, payment);
    run.host->database.Answer("FROM CurrPmtDet_View", PaymentRows(same));
    return AllocationsBetween("ghCurrency", "gfCurrPmtType", *run.report->IReport_ReportDesigner());
}

long AllocationsOfBalances(std::size_t count) {
    UnrealizedRun run;
    run.host->calls.StopCounting();
    const std::vector<ForeignRow> same(count, {1'060, 2, "12.34", "15"});
    run.host->database.Answer("SUM(ForeignAmnt)", ForeignRows(same));
    return AllocationsBetween("ghCurrency", "gfAccountType", *run.report->IReport_ReportDesigner());
}

long AllocationsOfLines(std::size_t count) {
    DetailRun run;
    run.host->calls.StopCounting();
    auto line = Line("12.34", "15");
    line.description = "Goods delivered in two parts, the second one late";
    run.host->database.Answer(kLinesStatement, LineRows(std::vector<ForeignLine>(count, line)));
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
}  // namespace varnel::test
