#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "reports/statements/journal_adjustment.h"
#include "tests/engine/micro_report.h"
#include "tests/statements/statement_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

// What follows a balance sheet of some segments.

/// As SQL has it: a line without a segment is neither in a list nor outside it.
bool Fits(const LedgerLine& line, const std::string& clause) {
    const bool knows_none = clause.find("IS NULL") != std::string::npos;
    if (line.segment_id == 0 && !knows_none) return false;
    const std::string listed = "IN (" + std::to_string(line.segment_id) + ")";
    const bool in = line.segment_id == 0 || clause.find(listed) != std::string::npos;
    return in != clause.starts_with("NOT ");
}

void PostIn(StatementRun& run, std::int32_t segment, std::int32_t account, const char* day,
            const char* amount) {
    run.Post(account, day, amount);
    run.host->company.ledger.back().segment_id = segment;
}

/// Assets of 147 owed in full, in segments 3 and 5 and in none.
StatementRun OfSegments(StatementRun run) {
    run.host->company.in_segments = Fits;
    run.chart = {{1'010, 1}, {2'010, 2}, {3'010, 3}};
    PostIn(run, 3, 1'010, "2025-02-10", "100");
    PostIn(run, 3, 2'010, "2025-02-10", "-60");
    PostIn(run, 5, 1'010, "2024-02-10", "40");
    PostIn(run, 5, 2'010, "2024-02-10", "-85");
    PostIn(run, 0, 1'010, "2025-02-10", "7");
    PostIn(run, 0, 2'010, "2025-02-10", "-2");
    return run;
}

TEST(AdjustedSheetTest, FollowsTheClosingLineUnderASegmentFilterOnly) {
    for (auto* make : {SheetRun, ComparativeSheetRun}) {
        StatementRun run = OfSegments(make());
        EXPECT_THAT(AdjustmentIn(run(), 1).bands, testing::IsEmpty());
        run.FilterSegments("3");
        EXPECT_THAT(AdjustmentIn(run(), 1).bands, testing::SizeIs(3));
        run.FilterSegments("");
        EXPECT_THAT(AdjustmentIn(run(), 1).bands, testing::IsEmpty()) << "again";
    }
}

TEST(AdjustedSheetTest, IsOneLineWithItsTotalUnderACaption) {
    StatementRun run = OfSegments(SheetRun());
    run.FilterSegments("3");
    const auto adjusted = AdjustmentIn(run(), 1);
    EXPECT_THAT(adjusted.Texts("ReportHeader", "lblAcctType"), ElementsAre("8323"));
    EXPECT_THAT(Shown(adjusted, "Detail",
                      {"txtDescr", "txtTotal", "txtTotalAdj", "txtTotalAdjComp", "txtTotalAdjDiff",
                       "txtTotalAdjDiffPerc"}),
                ElementsAre("8571|40.00||||"));
    EXPECT_THAT(Shown(adjusted, "ReportFooter",
                      {"lblTypeCap", "txtTypeTotal", "txtTypeTotal2", "txtTotalDiffDollar",
                       "lblTotalDiffPercent", "lblGTot", "txtTotalPassCap", "txtTotalPassCapPassed",
                       "txtTotalPassDiffDollar", "lblTotalPassDiffPercent"}),
                ElementsAre("8322|40.00||||2672|100.00|||"));
    EXPECT_EQ(adjusted.Of("Detail").at(0)["txtTotal"].tag, "-1");
}

// At 31 March 2024 there were 40 of segment 5 against 85, and nothing of segment 3.
TEST(AdjustedSheetTest, ComparesWithTheYearBeforeWhereTheSheetDoes) {
    StatementRun run = OfSegments(ComparativeSheetRun());
    PostIn(run, 3, 1'010, "2024-03-31", "10");
    PostIn(run, 3, 2'010, "2024-03-31", "-5");
    PostIn(run, 5, 3'010, "2024-03-31", "40");
    run.FilterSegments("3");
    const auto adjusted = AdjustmentIn(run(), 1);
    // 110 - 65 now; 85 - 40 - 40 then.
    EXPECT_THAT(Shown(adjusted, "Detail",
                      {"txtDescr", "txtTotal", "txtTotalAdj", "txtTotalAdjComp", "txtTotalAdjDiff",
                       "txtTotalAdjDiffPerc"}),
                ElementsAre("8571||0.00|5.00|-5.00|-100.00"));
    EXPECT_THAT(
        Shown(adjusted, "ReportFooter",
              {"txtTypeTotal", "txtTypeTotal2", "txtTotalDiffDollar", "lblTotalDiffPercent"}),
        ElementsAre("0.00|5.00|-5.00|-100.00"));
    EXPECT_THAT(Shown(adjusted, "ReportFooter",
                      {"txtTotalPassCap", "txtTotalPassCapPassed", "txtTotalPassDiffDollar",
                       "lblTotalPassDiffPercent"}),
                ElementsAre("65.00|10.00|55.00|550.00"));
    const auto row = adjusted.Of("Detail").at(0);
    EXPECT_EQ(row["txtTotalAdj"].tag, "-1");
    EXPECT_EQ(row["txtTotalAdjComp"].tag, "-1|LastYear");
}

TEST(AdjustedSheetTest, TheJournalLineComesBelowUnlessItIsOfNothing) {
    StatementRun run = OfSegments(SheetRun());
    run.FilterSegments("5");
    EXPECT_THAT(Shown(AdjustmentIn(run(), 2), "Detail", {"txtDebit", "txtCredit"}),
                ElementsAre("45.00|"));
    run.FilterSegments("3");
    EXPECT_THAT(Shown(AdjustmentIn(run(), 2), "Detail", {"txtDebit", "txtCredit"}),
                ElementsAre("|40.00"));
    run.FilterSegments("4");
    EXPECT_THAT(AdjustmentIn(run(), 2).bands, testing::IsEmpty());
}

/// Where the figures of a line stand.
std::vector<Box> Columns(const CollectedBand& band, const std::vector<std::string>& names) {
    std::vector<Box> boxes;
    for (const auto& name : names)
        boxes.push_back({band[name].box.left, 0, band[name].box.width, 0});
    return boxes;
}

TEST(AdjustedSheetTest, StandsInTheColumnsOfTheSheetWhereverTheHostPutsThem) {
    StatementRun run = OfSegments(ComparativeSheetRun());
    run.FilterSegments("3");
    auto& surface = run.report->IReport_ReportDesigner()->GetSurface();
    surface.At("txtTotalComp").SetLeft(6'123);
    surface.At("lblTotalDiff").SetWidth(777);
    const auto bands = run();
    const auto adjusted = AdjustmentIn(bands, 1);
    const auto columns = Columns(bands.Of("Detail").at(0),
                                 {"txtTotal", "txtTotalComp", "txtTotalDoll", "lblTotalDiff"});
    EXPECT_EQ(Columns(adjusted.Of("Detail").at(0),
                      {"txtTotalAdj", "txtTotalAdjComp", "txtTotalAdjDiff", "txtTotalAdjDiffPerc"}),
              columns);
    EXPECT_EQ(Columns(adjusted.Of("ReportFooter").at(0),
                      {"txtTotalPassCap", "txtTotalPassCapPassed", "txtTotalPassDiffDollar",
                       "lblTotalPassDiffPercent"}),
              columns);
}

/// Where that text stands in the band, from left to right edge.
std::pair<Twips, Twips> SpanOf(const engine::PlacedBand& band, std::string_view text) {
    for (const auto& item : band.content.Items())
        if (band.content.Text(item) == text) return {item.box.left, item.box.Right()};
    ADD_FAILURE() << "no text " << text;
    return {};
}

TEST(AdjustedSheetTest, StandsInTheColumnsOfTheSheetOnWiderPaper) {
    StatementRun run = OfSegments(SheetRun());
    run.FilterSegments("3");
    run.Prepare();
    engine::GridMeasurer measurer;
    engine::PlacedLog sink;
    engine::RunToPlacedBands(*run.report->IReport_ReportDesigner(), {}, 15'000, measurer, sink);
    const auto& footer =
        *std::ranges::find(sink.bands, SectionKind::kReportFooter, &engine::PlacedBand::kind);
    const auto closing = SpanOf(footer, "60.00");
    EXPECT_EQ(closing.second, 15'000);
    EXPECT_EQ(SpanOf(footer, "40.00"), closing);
    EXPECT_EQ(SpanOf(footer, "100.00"), closing);
    EXPECT_EQ(SpanOf(footer, "8322"), SpanOf(footer, "8324"));
}

TEST(JournalAdjustmentTest, APositiveAmountIsACreditInEachRunAnew) {
    struct Sided {
        const char *amount, *row, *footer;
    };
    constexpr Sided kCases[] = {{"-125.50", "8571|125.50|", "1641|125.50|"},
                                {"125.50", "8571||125.50", "1641||125.50"},
                                {"125.50", "8571||125.50", "1641||125.50"},
                                {"-0.01", "8571|0.01|", "1641|0.01|"},
                                {"0", "||", "||"}};
    const auto report =
        std::make_shared<reports::dsrGeneralJournalAdjust>(std::make_shared<MemoryHost>());
    for (const auto& tried : kCases) {
        report->AdjustingAmount(Currency::Parse(tried.amount));
        const auto bands = Collect(*report);
        EXPECT_THAT(Shown(bands, "Detail", {"txtAccountDescr", "txtDebit", "txtCredit"}),
                    ElementsAre(tried.row));
        EXPECT_THAT(Shown(bands, "ReportFooter", {"lblTotal", "txtDebitTotal", "txtCreditTotal"}),
                    ElementsAre(tried.footer));
        EXPECT_THAT(bands.Texts("PageHeader", "lblTitle"), ElementsAre("8323"));
    }
}

}  // namespace
}  // namespace varnel::test
