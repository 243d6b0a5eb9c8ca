#include <gtest/gtest.h>

#include "tests/exchange/unrealized_run.h"
#include "tests/support/allocation_count.h"

namespace varnel {
namespace {

/// Counts what is allocated between a group's header and the footer of its only account.
class AllocationsOfAGroup final : public engine::BandSink {
  public:
    long count = 0;

    void Begin(const engine::DocumentInfo&, const Surface&) override {}
    void End() override {}
    void Write(const Section& section, const engine::BandMark&) override {
        if (section.Name() == "ghCurrency") count = -test::AllocationCount();
        if (section.Name() == "gfAccountType") count += test::AllocationCount();
    }
};

long AllocationsOf(std::size_t rows) {
    test::UnrealizedRun run;
    run.host->calls.StopCounting();
    const std::vector<test::ForeignRow> same(rows, {1'060, 2, "12.34", "15"});
    run.host->database.Answer("SUM(ForeignAmnt)", test::ForeignRows(same));
    AllocationsOfAGroup sink;
    engine::RunToBands(*run.report->IReport_ReportDesigner(), {}, sink);
    return sink.count;
}

TEST(UnrealizedAllocationTest, ARowAllocatesNothing) {
    EXPECT_GT(AllocationsOf(10), 0);
    EXPECT_EQ(AllocationsOf(10), AllocationsOf(2'000));
}

}  // namespace
}  // namespace varnel
