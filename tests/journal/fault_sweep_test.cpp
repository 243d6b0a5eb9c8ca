#include "tests/support/fault_sweep.h"

#include "tests/journal/journal_run.h"
#include "tests/support/picking_tool.h"

namespace varnel::test {
namespace {

JournalLine InDollars(const char* amount, const char* foreign) {
    JournalLine line = Amount(amount, 2);
    line.foreign = Currency::Parse(foreign);
    line.currency_id = 2;
    line.date = "2025-01-16";
    line.remarks = "At 1.35";
    return line;
}

/// A journal that has run once, over another amount. Both sides come twice in a row, with different
/// amounts, so that a leftover would show.
auto RunBefore() {
    RunOver<JournalRun, JournalLine> run;
    run.host->company.settings["ItemAdjustGL"] = "True";
    run.host->company.item_adjustment_start = kOpenStart;
    run.Filter("A|B", std::make_shared<PickingTool>());
    run.report->IReport_DisplayForeignCurrency(true);
    run.rows = {Amount("7000"),          Amount("15"),        Amount("-65"),
                InDollars("135", "100"), InDollars("0", "0"), InDollars("-54", "-40"),
                InDollars("-81", "-60")};
    run();
    run.rows.front() = Amount("50");
    return run;
}

TEST(JournalFaultSweepTest, EveryFailureIsToldAndEveryFigureIsRightOrBlank) {
    const auto right =
        SweepFaults({"dsrGeneralJournal",
                     {{"ghSeqNo", {"txtSeqNo", "txtDate"}},
                      {"Detail", {"txtDebit", "txtCredit", "txtForeign"}},
                      {"gfSeqNo", {"txtDebitTotal", "txtCreditTotal"}},
                      {"ReportFooter", {"txtDebitGrandTotal", "txtCreditGrandTotal", "txtCount"}}},
                     "0 entries"},
                    RunBefore);
    EXPECT_EQ(right.Texts("ReportFooter", "txtDebitGrandTotal").at(0), "200.00");
}

}  // namespace
}  // namespace varnel::test
