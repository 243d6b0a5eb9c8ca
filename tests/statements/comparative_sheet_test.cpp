#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/statements/statement_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

std::vector<std::string> Line(const CollectedBands& bands, const std::string& section,
                              const std::string& control, const char* percent) {
    return Shown(bands, section, {control, control + "Comp", control + "Doll", percent});
}

/// 100 at 31 March 2024, 150 a year later; in between nothing of what came after the day.
StatementRun AfterAYear() {
    StatementRun run = ComparativeSheetRun();
    run.chart = {{1'010, 1}, {1'020, 1}, {1'090, 1, 3}, {2'010, 2}, {3'010, 3}};
    run.Post(1'010, "2024-03-31", "100");
    run.Post(2'010, "2024-02-01", "-30");
    run.Post(3'010, "2020-01-01", "-70");
    run.Post(1'020, "2025-03-31", "50");
    run.Post(2'010, "2024-04-01", "-20");
    run.Post(3'010, "2025-01-05", "-30");
    return run;
}

TEST(ComparativeSheetTest, HasTheBalancesOfAYearBeforeBesideThem) {
    StatementRun run = AfterAYear();
    const auto bands = run();
    EXPECT_THAT(Rows(bands),
                ElementsAre("1010|100.00|100.00|0.00|0.00", "1020|50.00|0.00|50.00|NA",
                            "1090|150.00|100.00|50.00|50.00", "2010|50.00|30.00|20.00|66.67",
                            "3010|100.00|70.00|30.00|42.86"));
    EXPECT_THAT(Line(bands, "gfAcctType", "txtTypeTotal", "lblTypeTotalDiff"),
                ElementsAre("150.00|100.00|50.00|50.00", "50.00|30.00|20.00|66.67",
                            "100.00|70.00|30.00|42.86"));
    EXPECT_THAT(Line(bands, "ReportFooter", "txtTotalPassCap", "lblTotalPassCapDiff"),
                ElementsAre("150.00|100.00|50.00|50.00"));
    EXPECT_EQ(run().bands, bands.bands) << "again";
}

TEST(ComparativeSheetTest, NamesItselfAndTheDaysOfItsColumns) {
    StatementRun run = AfterAYear();
    EXPECT_EQ(run.report->IReport_ReportTitle(), "30006");
    const std::vector<std::string> captions{"lblDate", "lblDateComp", "lblVariance",
                                            "lblVariancePercent"};
    EXPECT_THAT(Shown(run(), "PageHeader", captions),
                ElementsAre("1776 2025-03-31|1776 2024-03-31|2684|2683"));
    run.HaveFiscalYears({{Date::ParseIso("2023-04-01"), Date::ParseIso("2024-02-15")}});
    const auto cut = run();
    EXPECT_THAT(Shown(cut, "PageHeader", captions),
                ElementsAre("1776 2025-03-31|1776 2024-02-15|2684|2683"));
    EXPECT_EQ(Rows(cut).front(), "1010|100.00|0.00|100.00|NA");
}

TEST(ComparativeSheetTest, LeadsToTheLinesOfEitherYearButFromEarningsToNone) {
    StatementRun run = ComparativeSheetRun();
    run.chart = {{1'010, 1}, {kCurrentEarnings, 3}};
    run.IncludeZeroBalances();
    const auto rows = run().Of("Detail");
    EXPECT_EQ(rows[0]["txtTotal"].tag, "1010");
    EXPECT_EQ(rows[0]["txtTotalComp"].tag, "1010|LastYear");
    for (const char* name : {"txtTotal", "txtTotalComp"}) EXPECT_EQ(rows[1][name].tag, "") << name;
}

// 100 USD of 2024 booked at 120 are worth 123.45, 150 USD of both years booked at 180 185.18.
TEST(ComparativeSheetTest, ReceivablesAndPayablesAreRevaluedOnBothSides) {
    StatementRun run = ComparativeSheetRun();
    run.chart = {{1'200, 1, 2, 2}, {3'010, 3}};
    run.Post(1'200, "2024-01-10", "120", "100");
    run.Post(3'010, "2024-01-10", "-120");
    run.Post(1'200, "2025-01-10", "60", "50");
    run.Post(3'010, "2025-01-10", "-60");
    run.host->company.account_params["SuppGLAP"] = 1'200;
    EXPECT_EQ(run.Rows().front(), "1200|180.00|120.00|60.00|50.00");
    run.Revalue();
    const auto bands = run();
    EXPECT_EQ(Rows(bands).front(), "1200|185.18|123.45|61.73|50.00");
    EXPECT_THAT(Line(bands, "GroupFooter1", "txtProfitLoos", "lblProfitLoosDiff"),
                ElementsAre("5.18|3.45|1.73|50.14"));
    EXPECT_THAT(Line(bands, "ReportFooter", "txtTotalPassCap", "lblTotalPassCapDiff"),
                ElementsAre("185.18|123.45|61.73|50.00"));
}

}  // namespace
}  // namespace varnel::test
