#include "tests/support/fault_sweep.h"

#include "tests/statements/statement_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

/// A report that has run once, over another amount.
StatementRun RunBefore(StatementRun run) {
    run.host->company.settings["ItemAdjustGL"] = "True";
    run.host->company.item_adjustment_start = kOpenStart;
    run.FilterSegments("3");
    run.Revalue();
    auto& first = run.host->company.ledger.front().home;
    const Currency amount = std::exchange(first, Currency::FromWhole(7'000));
    run();
    first = amount;
    return run;
}

StatementRun IncomeOf(StatementRun run) {
    run.chart = {{4'000, 4, 7},    {4'010, 4}, {4'020, 4, 3}, {5'000, 5, 1},
                 {kUnrealized, 5}, {5'020, 5}, {5'090, 5, 5}, {9'010, 9}};
    run.Post(4'010, "2025-02-10", "-100");
    run.Post(kUnrealized, "2025-02-10", "7");
    run.Post(5'020, "2025-01-10", "20");
    run.Post(9'010, "2025-02-10", "1");
    run.Post(4'010, "2024-02-10", "-80");
    run.Post(5'020, "2024-02-10", "30");
    run.HaveFiscalYears({{Date::ParseIso("2024-01-01"), Date::ParseIso("2024-12-31")}});
    run.HoldForeignAmount();
    run.host->database.Answer("ProjInfo", {{"ProjId", "Descr"}, {{"P7", "Shop"}}});
    run.Properties().Put("ProjIds", "0");
    return RunBefore(std::move(run));
}

StatementRun ComparativeIncome() { return IncomeOf(ComparativeIncomeRun()); }

StatementRun Budget() {
    StatementRun run = BudgetRun();
    run.host->company.budgets = {{4'010, run.from, run.to, Currency::FromWhole(-90)},
                                 {9'010, run.from, run.to, Currency::FromWhole(2)}};
    return IncomeOf(std::move(run));
}

StatementRun SheetOf(StatementRun run) {
    run.chart = {{1'000, 1, 1}, {1'010, 1}, {1'200, 1, 2, 2}, {1'300, 1, 2, 3},
                 {1'390, 1, 3}, {2'010, 2}, {3'010, 3},       {3'090, 3, 5}};
    run.Post(1'010, "2025-01-10", "10");
    run.Post(1'200, "2025-01-10", "120", "100");
    run.Post(1'300, "2025-01-10", "15", "10");
    run.Post(2'010, "2025-01-10", "-30");
    run.Post(3'010, "2025-01-10", "-115");
    run.Post(1'200, "2024-01-10", "12", "10");
    run.Post(3'010, "2024-01-10", "-5");
    run.HaveFiscalYears({{Date::ParseIso("2024-01-01"), Date::ParseIso("2024-12-31")}});
    run.host->company.account_params["CustGLAR"] = 1'200;
    return run;
}

StatementRun NewSheet() { return SheetOf(ComparativeSheetRun()); }
StatementRun ComparativeSheet() { return RunBefore(NewSheet()); }

/// Of a balance sheet, what its segments lack alone.
struct AdjustedRun : StatementRun {
    CollectedBands operator()() { return AdjustmentIn(StatementRun::operator()(), 1); }
};

// The comparatives make every call of the plain statements, and more.

TEST(StatementFaultSweepTest, OfTheIncomeStatementsShowsRightFiguresOrNone) {
    const Figures figures = {
        {"GroupHeader1",
         {"lblDatePeriod", "lblDateCul", "lblDatePeriodComp", "fldProjects", "txtExchangeRate"}},
        {"ghAcctType", {"lblAcctType"}},
        {"Detail", {"txtTotal", "txtTotalCul", "txtTotalComp", "txtTotalDoll", "lblTotalDiff"}},
        {"gfAcctType",
         {"txtTypeTotal", "txtTypeTotalCul", "txtTypeTotalComp", "txtTypeTotalDoll",
          "lblTypeTotalDiff", "txtTotalPassCap", "txtTotalPassCapCul", "txtTotalPassCapComp",
          "txtTotalPassCapDoll", "lblTotalPassCapDiff"}}};
    // 100 - (7 - 3.45) - 1, cumulative 20 less; 80 - 30 last year, 90 - 2 by the budget.
    const std::pair<StatementRun (*)(), const char*> kForms[] = {
        {ComparativeIncome, "95.45|75.45|50.00|45.45|90.90"},
        {Budget, "95.45|75.45|88.00|7.45|8.47"}};
    for (const auto& [make, result] : kForms) {
        const auto right = SweepFaults({"dsrComparativeIncomeStatement", figures}, make);
        EXPECT_EQ(Shown(right, "gfAcctType",
                        {"txtTotalPassCap", "txtTotalPassCapCul", "txtTotalPassCapComp",
                         "txtTotalPassCapDoll", "lblTotalPassCapDiff"})
                      .back(),
                  result);
    }
}

constexpr const char* kPrintedBySheets =
    "dsrComparativeBalanceSheet|dsrBalanceSheetAjust|dsrGeneralJournalAdjust";

TEST(StatementFaultSweepTest, OfTheBalanceSheetsShowsRightFiguresOrNone) {
    const Figures figures = {
        {"PageHeader", {"txtExchangeRate"}},
        {"ghAcctType", {"lblAcctType"}},
        {"Detail", {"txtTotal", "txtTotalComp", "txtTotalDoll", "lblTotalDiff"}},
        {"GroupFooter1", {"txtProfitLoos", "txtProfitLoosComp", "txtProfitLoosDoll"}},
        {"gfAcctType",
         {"txtTypeTotal", "txtTypeTotalComp", "txtTypeTotalDoll", "lblTypeTotalDiff"}},
        {"ReportFooter",
         {"txtTotalPassCap", "txtTotalPassCapComp", "txtTotalPassCapDoll", "lblTotalPassCapDiff"}}};
    SweepFaults({kPrintedBySheets, figures}, NewSheet);
    const auto right = SweepFaults({kPrintedBySheets, figures}, ComparativeSheet);
    // 30 + 120 + 3.80, which 110 USD booked at 132 have gained; 5 + 0.35 a year before.
    EXPECT_THAT(Shown(right, "ReportFooter",
                      {"lblGTot", "txtTotalPassCap", "txtTotalPassCapComp", "txtTotalPassCapDoll"}),
                ElementsAre("8324|153.80|5.35|148.45"));
}

TEST(StatementFaultSweepTest, OfTheAdjustedBalanceSheetShowsRightFiguresOrNone) {
    const Figures figures = {
        {"Detail", {"txtTotalAdj", "txtTotalAdjComp", "txtTotalAdjDiff", "txtTotalAdjDiffPerc"}},
        {"ReportFooter",
         {"txtTypeTotal", "txtTypeTotal2", "txtTotalDiffDollar", "txtTotalPassCap",
          "txtTotalPassCapPassed", "txtTotalPassDiffDollar"}}};
    const auto right =
        SweepFaults({kPrintedBySheets, figures}, [] { return AdjustedRun(ComparativeSheet()); });
    // Every line fits both clauses of this host: 7 are in the books, and were a year before.
    EXPECT_THAT(Shown(right, "ReportFooter", {"txtTypeTotal", "txtTypeTotal2", "txtTotalPassCap"}),
                ElementsAre("-14.00|-14.00|139.80"));
}

}  // namespace
}  // namespace varnel::test
