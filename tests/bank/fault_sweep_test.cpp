#include "tests/support/fault_sweep.h"

#include "tests/bank/bank_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

/// A report that has run once, over another amount.
BankRun RunBefore(bool current) {
    BankRun run(current);
    run.host->database.Answer(
        "BankConcilHistory",
        {{"ID", "BankConcilDate"}, {{1, Day("2025-01-31")}, {4, Day("2025-02-28")}}});
    if (!current) run.Properties().Put("ExBankConcilHistoryId", 4);
    run.IncludeReconciled();
    run.SetFigures({"100", "20", "5", "116", "1"});
    run.items = {{1, Money("-7000")}, {2, Money("4")}, {3, Money("-5")}, {4, Money("20")}};
    run();
    run.items[0].amount = Money("-3");
    return run;
}

const std::vector<std::string> kSummary{"txtEndBal",      "txtDepCirc", "txtChqCirc",
                                        "txtAdjustedBal", "txtGLBal",   "txtDif"};

Swept SweptIn(const char* object) {
    Swept swept{object,
                {{"PageHeader", {"txtConcDate", "txtCurrency"}},
                 {"ghTransactionType", {"lblTransactionType"}},
                 {"Detail", {"txtDetDate", "txtAmount"}},
                 {"gfTransactionType", {"txtGroupTotal"}}}};
    return swept;
}

TEST(ReconciliationFaultSweepTest, EveryFailureIsToldAndEveryFigureIsRightOrBlank) {
    const std::pair<bool, const char*> kReports[] = {{false, "dsrBankReconciliation"},
                                                     {true, "dsrCurrentBankReconciliation"}};
    for (const auto& [current, object] : kReports) {
        const auto right =
            SweepFaults(SweptIn(object), [current = current] { return RunBefore(current); });
        EXPECT_THAT(right.Texts("gfTransactionType", "txtGroupTotal"),
                    ElementsAre("3.00", "4.00", "5.00", "20.00"));
        EXPECT_THAT(Shown(right, "ReportFooter", kSummary),
                    ElementsAre("100.00|20.00|5.00|115.00|116.00|1.00"));
    }
}

}  // namespace
}  // namespace varnel::test
