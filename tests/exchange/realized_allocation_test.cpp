#include <gtest/gtest.h>

#include "tests/exchange/realized_run.h"
#include "tests/support/allocation_count.h"

namespace varnel {
namespace {

/// Counts what is allocated between the header of the only group and its footer.
class AllocationsOfTheGroup final : public engine::BandSink {
  public:
    long count = 0;

    void Begin(const engine::DocumentInfo&, const Surface&) override {}
    void End() override {}
    void Write(const Section& section, const engine::BandMark&) override {
        if (section.Name() == "ghCurrency") count = -test::AllocationCount();
        if (section.Name() == "gfCurrPmtType") count += test::AllocationCount();
    }
};

long AllocationsOf(std::size_t payments) {
    test::RealizedRun run;
    run.host->calls.StopCounting();
    auto payment = test::Paid("980");
    payment.discount = Currency::FromWhole(20);
    payment.name = "A customer whose name is longer than what a text holds in place";
    const std::vector<test::PaymentRow> same(payments, payment);
    run.host->database.Answer("FROM CurrPmtDet_View", test::PaymentRows(same));
    AllocationsOfTheGroup sink;
    engine::RunToBands(*run.report->IReport_ReportDesigner(), {}, sink);
    return sink.count;
}

TEST(RealizedAllocationTest, APaymentAllocatesNothing) {
    EXPECT_GT(AllocationsOf(10), 0);
    EXPECT_EQ(AllocationsOf(10), AllocationsOf(2'000));
}

}  // namespace
}  // namespace varnel
