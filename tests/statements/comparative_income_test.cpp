#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/statements/statement_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

Date Day(const char* iso) { return Date::ParseIso(iso); }

std::vector<std::string> Ends(const CollectedBands& bands, const std::string& control,
                              const char* percent) {
    return Shown(bands, "gfAcctType",
                 {control, control + "Cul", control + "Comp", control + "Doll", percent});
}

StatementRun OfThreeSections(StatementRun run) {
    run.chart = {{4'010, 4}, {4'090, 4, 3}, {5'010, 5}, {5'020, 5}, {5'090, 5, 3}, {9'010, 9}};
    run.Post(4'010, "2025-02-10", "-100");
    run.Post(4'010, "2025-01-10", "-50");
    run.Post(5'010, "2025-03-31", "60");
    run.Post(5'010, "2025-01-01", "10");
    run.Post(9'010, "2025-02-10", "5");
    return run;
}

StatementRun AfterAYear() {
    StatementRun run = OfThreeSections(ComparativeIncomeRun());
    run.Post(4'010, "2024-02-10", "-80");
    run.Post(5'010, "2024-03-31", "40");
    run.Post(5'020, "2024-02-01", "30");
    for (const char* outside : {"2024-01-31", "2024-04-01"}) run.Post(5'010, outside, "1000");
    return run;
}

TEST(ComparativeIncomeTest, HasTheSameDaysOfTheYearBeforeBesideThePeriod) {
    StatementRun run = AfterAYear();
    const auto bands = run();
    EXPECT_THAT(
        Rows(bands),
        ElementsAre("4010|100.00|150.00|80.00|20.00|25.00", "4090|100.00|150.00|80.00|20.00|25.00",
                    "5010|60.00|70.00|40.00|-20.00|-50.00", "5020|0.00|0.00|30.00|30.00|100.00",
                    "5090|60.00|70.00|70.00|10.00|14.29", "9010|5.00|5.00|0.00|-5.00|NA"));
    EXPECT_THAT(Ends(bands, "txtTypeTotal", "lblTypeTotalDiff"),
                ElementsAre("100.00|150.00|80.00|20.00|25.00", "60.00|70.00|70.00|10.00|14.29",
                            "5.00|5.00|0.00|-5.00|NA"));
    // More is better of results: 40 after 10.
    EXPECT_THAT(
        Ends(bands, "txtTotalPassCap", "lblTotalPassCapDiff"),
        ElementsAre("||||", "40.00|80.00|10.00|30.00|300.00", "35.00|75.00|10.00|25.00|250.00"));
    EXPECT_EQ(run().bands, bands.bands) << "again";
}

TEST(ComparativeIncomeTest, TheBudgetTakesThePlaceOfTheYearBefore) {
    StatementRun run = OfThreeSections(BudgetRun());
    run.host->company.budgets = {{4'010, run.from, run.to, Currency::FromWhole(-90)}};
    run.HaveFiscalYears({{Day("2024-03-01"), Day("2024-03-02")}});
    const auto bands = run();
    EXPECT_EQ(Rows(bands).front(), "4010|100.00|150.00|90.00|10.00|11.11");
    EXPECT_THAT(bands.Texts("GroupHeader1", "lblDatePeriodComp"),
                ElementsAre("2025-02-01 3012 2025-03-31"));
    for (const auto& command : run.host->database.Commands())
        EXPECT_EQ(command->text.find("FiscalYearDet"), std::string::npos)
            << "last year is not asked";
}

TEST(ComparativeIncomeTest, TheHostTurnsItIntoTheBudgetFormByName) {
    StatementRun run = AfterAYear();
    EXPECT_EQ(run.report->IReport_ReportTitle(), "30004");
    EXPECT_FALSE(run.Properties().Get("IsBudgetComparative").ToBool());
    run.Properties().Put("IsBudgetComparative", true);
    EXPECT_TRUE(run.Properties().Get("IsBudgetComparative").ToBool());
    EXPECT_EQ(run.report->IReport_ReportTitle(), "30005");
    EXPECT_EQ(run.Rows().front(), "4010|100.00|150.00|0.00|100.00|NA");
    EXPECT_EQ(BudgetRun().report->IReport_ReportTitle(), "30005");
}

/// Of the figures in order.
std::vector<std::string> Keys(StatementRun& run) {
    std::vector<std::string> keys;
    for (const auto& band : run().Of("Detail")) {
        std::string& key = keys.emplace_back();
        for (const char* name :
             {"txtTotal", "txtTotalCul", "txtTotalComp", "txtTotalDoll", "lblTotalDiff"})
            key += band[name].tag + ";";
    }
    return keys;
}

TEST(ComparativeIncomeTest, LeadsToTheLinesOfEitherYearButToNoneOfABudget) {
    for (const bool is_budget : {false, true}) {
        StatementRun run = is_budget ? BudgetRun() : ComparativeIncomeRun();
        run.chart = {
            {5'000, 5, 1}, {5'010, 5}, {kUnrealized, 5}, {kCurrentEarnings, 5}, {5'090, 5, 3}};
        run.IncludeZeroBalances();
        const std::string year[] = {is_budget ? "" : "5010|LastYear",
                                    is_budget ? "" : "5900|LastYear"};
        EXPECT_THAT(Keys(run), ElementsAre(";;;;;", "5010;5010;" + year[0] + ";;;",
                                           "GLUnrealized|5900;GLUnrealized|5900;" + year[1] + ";;;",
                                           ";;;;;", ";;;;;"));
    }
}

TEST(ComparativeIncomeTest, UnrealizedGainsAreNoPartOfTheComparison) {
    StatementRun run = ComparativeIncomeRun();
    run.chart = {{kUnrealized, 5}};
    run.Post(kUnrealized, "2025-02-10", "7");
    run.Post(kUnrealized, "2024-02-10", "4");
    run.HoldForeignAmount();
    run.Revalue();
    EXPECT_THAT(run.Rows(), ElementsAre("5900|3.55|3.55|4.00|0.45|11.25"));
}

TEST(ComparativeIncomeTest, CumulativeDatesHaveTwoNames) {
    StatementRun run = AfterAYear();
    run.Properties().Put("CumulativeDateFrom", Day("2024-02-01"));
    run.Properties().Put("CumulativeDateTo", Day("2024-12-31"));
    EXPECT_EQ(run.Properties().Get("CumulDateFrom").ToDate(), Day("2024-02-01"));
    EXPECT_EQ(run.Properties().Get("CumulDateTo").ToDate(), Day("2024-12-31"));
    EXPECT_EQ(run.Properties().Get("CumulativeDateTo").ToDate(), Day("2024-12-31"));
    EXPECT_EQ(run.Rows().front(), "4010|100.00|80.00|80.00|20.00|25.00");
}

TEST(ComparativeIncomeTest, CaptionsStandOverTheirColumnsWhereverTheHostPutsThem) {
    StatementRun run = AfterAYear();
    run.report->IReport_ReportDesigner()->GetSurface().At("txtTotalComp").SetLeft(6'000);
    const auto bands = run();
    EXPECT_THAT(Shown(bands, "GroupHeader1",
                      {"lblPeriod", "lblCumul", "lblComp", "lblVariance", "lblVariancePercent"}),
                ElementsAre("2681|2682|2685|2684|2683"));
    EXPECT_THAT(Shown(bands, "GroupHeader1", {"lblDatePeriod", "lblDateCul", "lblDatePeriodComp"}),
                ElementsAre("2025-02-01 3012 2025-03-31|2025-01-01 3012 2025-03-31|"
                            "2024-02-01 3012 2024-03-31"));
    const auto header = bands.Of("GroupHeader1").at(0);
    for (const char* caption : {"lblComp", "lblDatePeriodComp"})
        EXPECT_EQ(header[caption].box.left, 6'000) << caption;
}

TEST(ComparativeIncomeTest, CaptionsAreHiddenWhereTheHostWantsNone) {
    StatementRun run = AfterAYear();
    EXPECT_FALSE(run.report->IReport_NoHeaders());
    const Twips height = run().Of("GroupHeader1").at(0).height;
    run.Properties().Put("NoHeaders", true);
    EXPECT_TRUE(run.report->IReport_NoHeaders());
    const auto header = run().Of("GroupHeader1").at(0);
    for (const char* caption : {"lblPeriod", "lblComp", "lblVariancePercent", "lblDatePeriodComp"})
        EXPECT_FALSE(header[caption].visible) << caption;
    EXPECT_LT(header.height, height - 200);
    run.Properties().Put("NoHeaders", false);
    EXPECT_EQ(run().Of("GroupHeader1").at(0).height, height) << "again";
}

}  // namespace
}  // namespace varnel::test
