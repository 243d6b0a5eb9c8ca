#include "tests/support/fault_sweep.h"

#include "tests/trial/trial_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

TrialRun PlainDetailRun() { return DetailRun(); }

struct SweptTrial {
    const char* name;
    TrialRun (*make)();
    Swept swept;
    std::vector<std::string> totals;
    const char* last;  // Those totals.
};

void PrintTo(const SweptTrial& tried, std::ostream* out) { *out << tried.name; }

const SweptTrial kReports[] = {
    {"summary",
     SummaryRun,
     {"dsrTrialBalanceSummary",
      {{"Detail", {"txtDebit", "txtCredit", "txtCurrency"}},
       {"ReportFooter",
        {"txtDebitAdj", "txtCreditAdj", "txtDebitGrandTotal", "txtCreditGrandTotal"}}}},
     {"txtDebitGrandTotal", "txtCreditGrandTotal"},
     // 20 + 123.45 + 6.55 + 4 against 1 + 150.
     "154.00|154.00"},
    {"detail",
     PlainDetailRun,
     {"dsrTrialBalanceDetail",
      {{"ghAccount",
        {"txtBalanceForward lblBalanceForwardType", "txtGPUnrealized lblGPUnrealizedType"}},
       {"Detail",
        {"txtDebit", "txtCredit", "txtCurrency", "txtDetDate", "txtBalance lblBalanceType"}},
       {"gfAccount", {"txtDebitTotal", "txtCreditTotal", "txtBalanceTotal lblBalanceTotalType"}},
       {"ReportFooter",
        {"txtDebitAdj", "txtCreditAdj", "txtDebitGrandTotal", "txtCreditGrandTotal",
         "txtBalanceGrandTotal lblBalanceGrandTotalType"}}}},
     {"txtDebitGrandTotal", "txtCreditGrandTotal"},
     // 20 and 24.69 against 25.
     "44.69|44.69"},
    {"ledger by account",
     LedgerRun,
     {"dsrGeneralLedgerByAccount",
      {{"ghForward", {"txtBalanceForward lblBalanceForwardType"}},
       {"Detail",
        {"txtDebit", "txtCredit", "txtForeign", "txtDetDate", "txtBalance lblBalanceType"}},
       {"gfAccount", {"txtDebitTotal", "txtCreditTotal", "txtBalanceTotal lblBalanceTotalType"}},
       {"ReportFooter",
        {"txtDebitGrandTotal", "txtCreditGrandTotal",
         "txtBalanceGrandTotal lblBalanceGrandTotalType"}}}},
     {"txtDebitGrandTotal", "txtCreditGrandTotal", "txtBalanceGrandTotal"},
     // 20 and 24 against 25; 106 - 1 - 125 + 1 + 4 brought forward.
     "44.00|25.00|4.00"},
    {"gifi",
     GifiRun,
     {"dsrGIFIReport",
      {{"Detail", {"txtAmount"}}, {"gfGIFI", {"txtTotal"}}, {"ReportFooter", {"txtCount"}}},
      "0 7630"},
     {"txtCount"},
     "1 7630"},
};

void Post(TrialRun& run) {
    run.chart = {{1'010},    {1'030, 1, 2},    {kRetainedEarnings, 3},
                 {4'000, 4}, {kUnrealized, 5}, {6'000}};
    run.Post(1'010, "2025-02-12", "20");
    run.Post(1'030, "2025-01-10", "106", "80", 2);
    run.Post(1'030, "2025-02-10", "24", "20", 2);
    run.Post(4'000, "2024-02-10", "-1");
    run.Post(4'000, "2025-01-10", "-125");
    run.Post(4'000, "2025-02-10", "-25");
    run.Post(kUnrealized, "2025-01-12", "1");
    run.Post(6'000, "2025-01-12", "4");
}

/// A report that has run once, over another amount.
TrialRun RunBefore(TrialRun run) {
    run.host->company.settings["ItemAdjustGL"] = "True";
    run.host->company.item_adjustment_start = kOpenStart;
    run.report->IReport_DisplayForeignCurrency(true);
    run.FilterSegments("3");
    if (dynamic_cast<IExchangeRates*>(run.report.get()) != nullptr) run.Revalue();
    Post(run);
    run.host->company.ledger[1].home = Currency::FromWhole(7'000);
    run();
    run.host->company.ledger[1].home = Currency::FromWhole(106);
    return run;
}

class TrialFaultSweepTest : public testing::TestWithParam<SweptTrial> {};

TEST_P(TrialFaultSweepTest, EveryFailureIsToldAndEveryFigureIsRightOrBlank) {
    const auto& tried = GetParam();
    const auto right = SweepFaults(tried.swept, [&] { return RunBefore(tried.make()); });
    EXPECT_THAT(Shown(right, "ReportFooter", tried.totals), ElementsAre(tried.last));
}

INSTANTIATE_TEST_SUITE_P(Reports, TrialFaultSweepTest, testing::ValuesIn(kReports));

}  // namespace
}  // namespace varnel::test
