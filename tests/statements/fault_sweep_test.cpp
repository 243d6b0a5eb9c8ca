#include "tests/support/fault_sweep.h"

#include "tests/statements/statement_run.h"

namespace varnel {
namespace {

using test::IncomeRun;
using test::kUnrealized;
using test::SheetRun;
using test::Shown;
using test::StatementRun;
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

StatementRun Income() {
    StatementRun run = IncomeRun();
    run.chart = {{4'000, 4, 7},    {4'010, 4}, {4'020, 4, 3}, {5'000, 5, 1},
                 {kUnrealized, 5}, {5'020, 5}, {5'090, 5, 5}, {9'010, 9}};
    run.Post(4'010, "2025-02-10", "-100");
    run.Post(kUnrealized, "2025-02-10", "7");
    run.Post(5'020, "2025-01-10", "20");
    run.Post(9'010, "2025-02-10", "1");
    run.HoldForeignAmount();
    run.host->database.Answer("ProjInfo", {{"ProjId", "Descr"}, {{"P7", "Shop"}}});
    run.Properties().Put("ProjIds", "0");
    return RunBefore(std::move(run));
}

StatementRun Sheet() {
    StatementRun run = SheetRun();
    run.chart = {{1'000, 1, 1}, {1'010, 1}, {1'200, 1, 2, 2}, {1'300, 1, 2, 3},
                 {1'390, 1, 3}, {2'010, 2}, {3'010, 3},       {3'090, 3, 5}};
    run.Post(1'010, "2025-01-10", "10");
    run.Post(1'200, "2025-01-10", "120", "100");
    run.Post(1'300, "2025-01-10", "15", "10");
    run.Post(2'010, "2025-01-10", "-30");
    run.Post(3'010, "2025-01-10", "-115");
    run.host->company.account_params["CustGLAR"] = 1'200;
    return RunBefore(std::move(run));
}

TEST(StatementFaultSweepTest, OfTheIncomeStatementShowsRightFiguresOrNone) {
    const auto right = SweepFaults({"dsrIncomeStatement",
                                    {{"GroupHeader1", {"lblDatePeriod"}},
                                     {"GroupHeader1", {"lblDateCul"}},
                                     {"GroupHeader1", {"fldProjects"}},
                                     {"GroupHeader1", {"txtExchangeRate"}},
                                     {"ghAcctType", {"lblAcctType"}},
                                     {"Detail", {"txtTotal"}},
                                     {"Detail", {"txtTotalCul"}},
                                     {"gfAcctType", {"txtTypeTotal"}},
                                     {"gfAcctType", {"txtTypeTotalCul"}},
                                     {"gfAcctType", {"txtTotalPassCap"}},
                                     {"gfAcctType", {"txtTotalPassCapCul"}}}},
                                   Income);
    // 100 - (7 - 3.45) - 1, and 20 less.
    EXPECT_EQ(Shown(right, "gfAcctType", {"txtTotalPassCap", "txtTotalPassCapCul"}).back(),
              "95.45|75.45");
}

TEST(StatementFaultSweepTest, OfTheBalanceSheetShowsRightFiguresOrNone) {
    const auto right = SweepFaults({"dsrBalanceSheet|dsrBalanceSheetAjust|dsrGeneralJournalAdjust",
                                    {{"PageHeader", {"txtExchangeRate"}},
                                     {"ghAcctType", {"lblAcctType"}},
                                     {"Detail", {"txtTotal"}},
                                     {"GroupFooter1", {"txtProfitLoos"}},
                                     {"gfAcctType", {"txtTypeTotal"}},
                                     {"ReportFooter", {"txtTotalPassCap"}}}},
                                   Sheet);
    // 30 + 115 + 3.45.
    EXPECT_THAT(Shown(right, "ReportFooter", {"lblGTot", "txtTotalPassCap"}),
                ElementsAre("8324|148.45"));
}

}  // namespace
}  // namespace varnel
