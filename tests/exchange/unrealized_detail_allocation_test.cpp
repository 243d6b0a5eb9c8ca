#include <gtest/gtest.h>

#include "tests/exchange/unrealized_detail_run.h"
#include "tests/support/allocation_count.h"

namespace varnel {
namespace {

/// Counts what is allocated between the account's header and its footer.
class AllocationsOfTheAccount final : public engine::BandSink {
  public:
    long count = 0;

    void Begin(const engine::DocumentInfo&, const Surface&) override {}
    void End() override {}
    void Write(const Section& section, const engine::BandMark&) override {
        if (section.Name() == "ghGLAcct") count = -test::AllocationCount();
        if (section.Name() == "gfGLAcct") count += test::AllocationCount();
    }
};

long AllocationsOf(std::size_t lines) {
    test::DetailRun run;
    run.host->calls.StopCounting();
    auto line = test::Line("12.34", "15");
    line.description = "Goods delivered in two parts, the second one late";
    run.host->database.Answer(test::kLinesStatement,
                              test::LineRows(std::vector<test::ForeignLine>(lines, line)));
    AllocationsOfTheAccount sink;
    engine::RunToBands(run.Designer(), {}, sink);
    return sink.count;
}

TEST(UnrealizedDetailAllocationTest, ALineAllocatesNothing) {
    EXPECT_GT(AllocationsOf(10), 0);
    EXPECT_EQ(AllocationsOf(10), AllocationsOf(2'000));
}

}  // namespace
}  // namespace varnel
