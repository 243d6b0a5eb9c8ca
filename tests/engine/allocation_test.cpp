#include <gtest/gtest.h>

#include "tests/engine/micro_report.h"
#include "tests/support/allocation_count.h"

using namespace varnel;
using namespace varnel::engine;

namespace {

/// Rows without end in two buffers: no storage of its own after the first.
class EndlessRows final : public Recordset {
  public:
    explicit EndlessRows(int count) : columns_({"g0", "g1", "line"}), count_(count) { Fill(); }
    const Columns& GetColumns() const override { return columns_; }
    bool AtEnd() const override { return place_ == count_; }
    const Row& Current() const override { return row_; }
    void MoveNext() override {
        ++place_;
        Fill();
    }
    void MoveFirst() override { place_ = 0; }

  private:
    void Fill() {
        row_.Start(3);
        row_.AddInteger(place_ / 50);
        row_.AddText(place_ / 5 % 2 == 0 ? "even, and longer than a small text" : "odd");
        row_.AddInteger(place_);
    }
    Columns columns_;
    int count_;
    int place_ = 0;
    Row row_;
};

/// Counts what a run allocates when it has `rows` rows.
class LongReport final : public MicroReport {
  public:
    LongReport(Layout layout, int rows) : MicroReport(std::move(layout)), rows_(rows) {
        for (auto& section : GetSurface().Sections()) section.OnFormat({});
    }
    void ActiveReport_ReportStart() override {
        Data().Attach(std::make_shared<EndlessRows>(rows_));
    }
    void ActiveReport_FetchData(bool&) override {}

  private:
    int rows_;
};

class Nothing final : public BandSink, public PlacedBandSink {
  public:
    void Begin(const DocumentInfo&, const Surface&) override {}
    void Begin(const DocumentInfo&, Twips) override {}
    void Write(const Section&, const BandMark&) override {}
    void Write(const PlacedBand&) override {}
    void End() override {}
};

enum class Mode { kBands, kPlaced, kPages };

Layout LongLayout() {
    Layout layout = MicroLayout(2);
    Design(layout, "h0").repeat = true;
    Design(layout, "detail").controls[0].can_grow = true;
    return layout;
}

long AllocationsOf(Mode mode, int rows) {
    LongReport report(LongLayout(), rows);
    Nothing sink;
    GridMeasurer measurer;
    PageStore store(1000);
    const long before = test::AllocationCount();
    if (mode == Mode::kBands) RunToBands(report, {}, sink);
    if (mode == Mode::kPlaced) RunToPlacedBands(report, {}, 1000, measurer, sink);
    if (mode == Mode::kPages) RunToPages(report, PaperFor(30), measurer, store);
    return test::AllocationCount() - before;
}

}  // namespace

TEST(Allocation, NoneForFurtherRows) {
    // A page's place in the index is all that may be added, and that grows by doubling.
    const struct {
        Mode mode;
        long allowed;
    } cases[] = {{Mode::kBands, 0}, {Mode::kPlaced, 0}, {Mode::kPages, 10}};
    for (const auto& [mode, allowed] : cases) {
        const long few = AllocationsOf(mode, 2'000);
        EXPECT_LE(AllocationsOf(mode, 20'000) - few, allowed) << static_cast<int>(mode);
    }
}

TEST(Allocation, FieldsSetForEveryRowTakeTheMemoryOfOne) {
    ReportData data;
    const Column field = data.AddField("note");
    Row copy;
    test::ResetLargestAllocation();
    for (int i = 0; i < 10'000; ++i) {
        data.SetField(field, "a text that is too long for a small buffer");
        data.CopyFields(copy);
    }
    EXPECT_LT(test::LargestAllocation(), 1000u);
}
