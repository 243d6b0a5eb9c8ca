#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/bank/bank_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

void HaveHistory(BankRun& run) {
    run.host->database.Answer(
        "BankConcilHistory",
        {{"ID", "BankConcilDate"}, {{1, Day("2025-01-31")}, {4, Day("2025-02-28")}}});
}

/// The sums that the ledger has.
void HaveSums(BankRun& run, const Variant& withdrawals, const Variant& deposits,
              const Variant& balance) {
    run.host->database.Answer("AS ChqAmntCirc", {{"ChqAmntCirc"}, {{withdrawals}}});
    run.host->database.Answer("AS DepAmntCirc", {{"DepAmntCirc"}, {{deposits}}});
    run.host->database.Answer("AS GLBalAmnt", {{"GLBalAmnt"}, {{balance}}});
}

struct DatedHistory {
    std::int32_t history_id;
    const char* date;
};

constexpr DatedHistory kDated[] = {
    {-1, "2025-03-31"}, {0, "2025-03-31"}, {1, "2025-01-31"},
    {4, "2025-02-28"},  {3, "1899-12-30"}, {5, "1899-12-30"},
};

TEST(SavedReconciliationTest, IsDatedByItsRecordAndTheOneInProgressByTheHost) {
    BankRun run = SavedRun();
    HaveHistory(run);
    HaveSums(run, Money("0"), Money("0"), Money("0"));
    for (const auto& [history_id, date] : kDated) {
        run.Properties().Put("ExBankConcilHistoryId", history_id);
        EXPECT_EQ(run.Properties().Get("exbankconcilhistoryid").ToInteger32(), history_id);
        EXPECT_THAT(Shown(run(), "PageHeader", {"txtConcDate"}), ElementsAre("2025-03-31"));
        EXPECT_EQ(run.Command().parameters[5].ToDate().ToIso(), date) << history_id;
        run.Refresh();
        EXPECT_EQ(run.Command().parameters[1].ToDate().ToIso(), date) << history_id;
    }
    EXPECT_THAT(run.host->message_boxes, testing::IsEmpty());
}

TEST(SavedReconciliationTest, RefreshedFiguresProveTheBalance) {
    BankRun run = SavedRun();
    HaveHistory(run);
    run.Properties().Put("ExBankConcilHistoryId", 4);
    run.SetFigures({"9", "9", "9", "9", "9"});
    HaveSums(run, Money("-30.25"), Money("200.5"), Money("1000"));
    run.Refresh();
    // 1000 - 200.50 + 30.25.
    EXPECT_EQ(run.Figures(), "829.75|200.50|30.25|1000.00|0.00|");
    EXPECT_THAT(run().Texts("ReportFooter", "txtAdjustedBal"), ElementsAre("1,000.00"));
    HaveSums(run, Variant::Null{}, Variant::Null{}, Variant::Null{});
    run.Refresh();
    EXPECT_EQ(run.Figures(), "0.00|0.00|0.00|0.00|0.00|");
}

TEST(SavedReconciliationTest, AForeignAccountIsRefreshedInItsOwnCurrency) {
    for (const auto& [account, column] :
         {std::pair(kYenBank, "GLDet.ForeignAmnt"), std::pair(kBank, "GLDet.DetAmnt")}) {
        BankRun run = SavedRun();
        HaveSums(run, Money("-1"), Money("2"), Money("3"));
        run.Properties().Put("ExConcilAcctId", account);
        run.Refresh();
        const auto& commands = run.host->database.Commands();
        ASSERT_EQ(commands.size(), 3u);
        for (const auto& command : commands)
            EXPECT_THAT(command->text, HasSubstr(std::string("SUM(") + column + ")"));
    }
}

TEST(SavedReconciliationTest, AfterARefreshThatFailsTheFiguresAreUnknownAndBlank) {
    int k = 1;
    for (;; ++k) {
        BankRun run = SavedRun();
        HaveHistory(run);
        HaveSums(run, Money("-1"), Money("2"), Money("3"));
        run.Properties().Put("ExBankConcilHistoryId", 4);
        run.SetFigures({"5", "6", "7", "8", "9"});
        run.host->calls.FailAt(run.host->calls.Count() + k);
        run.Refresh();
        if (run.host->message_boxes.empty()) break;
        EXPECT_EQ(run.Figures(), "|||||") << k;
        EXPECT_THAT(Shown(run(), "ReportFooter", {"txtEndBal", "txtAdjustedBal", "txtDif"}),
                    ElementsAre("||"));
        EXPECT_THAT(run.host->message_boxes,
                    ElementsAre(testing::ContainsRegex(
                        "failed\r\nin Varnel.dsrBankReconciliation."
                        "RefreshTotalsWithBankConcilHistory at line [1-9][0-9]*")));
    }
    EXPECT_GT(k, 20);
}

TEST(SavedReconciliationTest, AnUnknownTypeLeavesTheCaption) {
    BankRun run = SavedRun();
    run.items = {{-1, Money("1")}, {2, Money("2")}, {5, Money("3")}, {0, Money("4")}};
    EXPECT_THAT(run().Texts("ghTransactionType", "lblTransactionType"),
                ElementsAre("", "3043", "3043", "3043"));
}

TEST(SavedReconciliationTest, ARowThatCannotBeReadIsToldAndBlanksItsGroupsTotalOnly) {
    BankRun run = SavedRun();
    run.items = {{3, Money("-1")},
                 {3, "12,50"},
                 {3, Money("-2"), Variant::Null{}, "yesterday"},
                 {4, Money("3")}};
    const auto bands = run();
    EXPECT_THAT(Shown(bands, "Detail", {"txtDetDate", "txtAmount"}),
                ElementsAre("2025-02-10|1.00", "|", "|2.00", "2025-02-10|3.00"));
    EXPECT_THAT(bands.Texts("gfTransactionType", "txtGroupTotal"), ElementsAre("", "3.00"));
    EXPECT_THAT(run.host->message_boxes, ElementsAre(HasSubstr("12,50"), HasSubstr("yesterday")));
}

}  // namespace
}  // namespace varnel::test
