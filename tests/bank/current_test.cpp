#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/bank/bank_run.h"
#include "tests/support/error_of.h"

namespace varnel::test {
namespace {

using drivers::MemoryRecordset;
using testing::ElementsAre;
using testing::HasSubstr;

/// Without giving it rows.
CollectedBands RunAsItIs(BankRun& run) { return Collect(*run.report->IReport_ReportDesigner()); }

std::shared_ptr<MemoryRecordset> Screen(const BankRun& run) {
    const auto rows = run.Rows();
    return std::make_shared<MemoryRecordset>(rows.columns, rows.rows);
}

/// Types, references and amounts in the order of the report.
std::vector<std::string> Listed(const CollectedBands& bands) {
    std::vector<std::string> lines;
    for (const auto& band : bands.bands) {
        if (band.section == "ghTransactionType") lines.push_back(band.Text("lblTransactionType"));
        if (band.section == "Detail")
            lines.push_back(band.Text("txtDetRef") + " " + band.Text("txtAmount"));
    }
    return lines;
}

TEST(CurrentReconciliationTest, KeepsACopyOfTheScreensRows) {
    BankRun run = CurrentRun();
    run.items = {{3, Money("-1")}, {4, Money("2")}};
    const auto screen = Screen(run);
    screen->MoveNext();
    run.Properties().Put("concildataset", ObjectRef(screen));
    EXPECT_EQ(screen->Current().Text(screen->GetColumns().At("DetRef")), "R1");
    *screen = MemoryRecordset({"Nothing"}, {});
    for (int i = 0; i < 2; ++i)
        EXPECT_THAT(Listed(RunAsItIs(run)), ElementsAre("3046", "R1 1.00", "3045", "R2 2.00"));
    EXPECT_TRUE(run.host->message_boxes.empty());
    EXPECT_TRUE(run.host->database.Commands().empty());
}

TEST(CurrentReconciliationTest, GroupsComeInOrderWhateverTheOrderOfTheScreen) {
    BankRun run = CurrentRun();
    run.items = {{4, Money("40")}, {1, Money("-10")}, {3, Money("-30")},
                 {2, Money("20")}, {4, Money("9")},   {1, Money("-11")},
                 {2, Money("20")}, {1, Money("0")},   {3, Money("0")}};
    const auto outstanding = ElementsAre("3046", "R3 30.00", "R9 ", "3045", "R5 9.00", "R1 40.00");
    EXPECT_THAT(Listed(run()), outstanding);
    run.IncludeReconciled();
    EXPECT_THAT(Listed(run()),
                ElementsAre("3044", "R6 11.00", "R2 10.00", "R8 ", "3043", "R4 20.00", "R7 20.00",
                            "3046", "R3 30.00", "R9 ", "3045", "R5 9.00", "R1 40.00"));
    run.IncludeReconciled(false);
    EXPECT_THAT(Listed(run()), outstanding);
}

TEST(CurrentReconciliationTest, AnItemThatIsNeitherTickedNorUntickedIsOutstanding) {
    BankRun run = CurrentRun();
    run.items = {{1, Money("-1")}, {3, Money("-2")}, {3, Money("-3")}};
    auto rows = run.Rows();
    rows.rows[1].back() = Variant::Null{};
    rows.rows[0].back() = std::int32_t{-1};  // As some hosts write True.
    run.Properties().Put("ConcilDataSet",
                         ObjectRef(std::make_shared<MemoryRecordset>(rows.columns, rows.rows)));
    run.IncludeReconciled();
    EXPECT_THAT(Listed(RunAsItIs(run)),
                ElementsAre("3044", "R1 1.00", "3046", "R3 3.00", "R2 2.00"));
}

TEST(CurrentReconciliationTest, AnEmptyReferenceTakesTheRowsAway) {
    BankRun run = CurrentRun();
    run.items = {{3, Money("-1")}};
    run();
    run.Properties().Put("ConcilDataSet", ObjectRef());
    run.SetFigures({"1", "2", "3", "4", "5"});
    const auto bands = RunAsItIs(run);
    EXPECT_TRUE(Listed(bands).empty());
    EXPECT_EQ(bands.Of("PageHeader").size(), 1u);
    EXPECT_THAT(Shown(bands, "ReportFooter", {"txtEndBal", "txtDif"}), ElementsAre("1.00|5.00"));
    EXPECT_TRUE(run.host->message_boxes.empty());
}

TEST(CurrentReconciliationTest, RowsWithoutAColumnAreToldAtOnceAndNotTaken) {
    for (std::size_t missing = 0; missing < 8; ++missing) {
        BankRun run = CurrentRun();
        run.items = {{3, Money("-1")}, {4, Money("2")}};
        run();
        auto columns = run.Rows().columns;
        const std::string name = std::exchange(columns[missing], "Other");
        run.Properties().Put("ConcilDataSet", ObjectRef(std::make_shared<MemoryRecordset>(
                                                  columns, run.Rows().rows)));
        EXPECT_TRUE(Listed(RunAsItIs(run)).empty());
        EXPECT_THAT(
            run.host->message_boxes,
            ElementsAre(testing::ContainsRegex(
                "no column \"" + name +
                "\".*\r\nin Varnel.dsrCurrentBankReconciliation.ConcilDataSet at line [1-9]")));
    }
}

// Nobody can tell whether it is a withdrawal or a deposit.
TEST(CurrentReconciliationTest, AnAmountThatCannotBeReadBlanksTheTotalItIsListedWith) {
    for (const std::int32_t account : {kBank, kYenBank}) {
        BankRun run = CurrentRun();
        run.Properties().Put("ExConcilAcctId", account);
        run.items = {{4, Money("10"), Money("10")},
                     {4, "12,50", Money("-12")},
                     {4, Money("9"), Money("9")},
                     {3, Money("-9"), Money("-9")}};
        const auto bands = run();
        EXPECT_THAT(bands.Texts("ghTransactionType", "lblTransactionType"),
                    ElementsAre("3046", "3045"));
        EXPECT_EQ(bands.Of("Detail").size(), 4u);
        EXPECT_THAT(bands.Texts("gfTransactionType", "txtGroupTotal"),
                    ElementsAre(account == kYenBank ? "9" : "9.00", ""));
        EXPECT_THAT(run.host->message_boxes, ElementsAre(HasSubstr("12,50")));
    }
}

}  // namespace
}  // namespace varnel::test
