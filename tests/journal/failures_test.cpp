#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <regex>

#include "tests/journal/journal_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

std::string JournalSourceLine(int number) {
    std::ifstream in(VARNEL_SOURCE_DIR "/reports/journal/entry_report.cpp");
    std::string line;
    while (number-- > 0) std::getline(in, line);
    return line;
}

/// The statement of the journal's source that the message of form A names.
std::string FailingStatement(const std::string& message, const std::string& description,
                             const std::string& procedure) {
    std::smatch line;
    const std::regex form(description + "\r\nin Varnel\\.dsrGeneralJournal\\." + procedure +
                          " at line (\\d+)");
    if (!std::regex_match(message, line, form)) return "not in form A: " + message;
    return JournalSourceLine(std::stoi(line[1]));
}

TEST(JournalFailureTest, AFailingHandlerIsToldAndTheRunGoesOnWithRightTotals) {
    JournalRun run;
    run.report->IReport_DisplayForeignCurrency(true);
    auto unknown_currency = Amount("20");
    unknown_currency.currency_id = 99;
    const auto bands = run({Amount("10"), unknown_currency, Amount("-30")});

    ASSERT_EQ(run.host->message_boxes.size(), 1u);
    EXPECT_THAT(
        FailingStatement(run.host->message_boxes[0], "There is no currency 99", "Detail_Format"),
        testing::HasSubstr("PutAmountIn(GetCurrencyInfo(), txtForeign,"));
    EXPECT_THAT(bands.Texts("Detail", "txtDebit"), ElementsAre("10.00", "20.00", ""));
    EXPECT_FALSE(bands.Of("Detail")[1]["txtForeign"].visible);
    EXPECT_THAT(bands.Texts("gfSeqNo", "txtDebitTotal"), ElementsAre("30.00"));
    EXPECT_THAT(bands.Texts("gfSeqNo", "txtCreditTotal"), ElementsAre("30.00"));
}

TEST(JournalFailureTest, AColumnThatTheQueryDoesNotGiveIsNamed) {
    JournalRun run;
    auto rows = JournalRows({Amount("10")});
    rows.columns[3] = "Amount";
    run.host->database.Answer("FROM (((GLDet", rows);
    const auto collected = Collect(*run.report->IReport_ReportDesigner());
    ASSERT_EQ(run.host->message_boxes.size(), 1u);
    EXPECT_THAT(run.host->message_boxes[0],
                testing::StartsWith("The row set has no column \"DetAmnt\"; it has InGLDetId, "));
    EXPECT_THAT(run.host->message_boxes[0],
                testing::HasSubstr("\r\nin Varnel.dsrGeneralJournal.ActiveReport_ReportStart at "));
    EXPECT_TRUE(collected.Of("Detail").empty());
}

TEST(JournalFailureTest, ALineWhoseAmountCannotBeReadShowsNoneAndBlanksItsTotals) {
    JournalRun run;
    auto unreadable = Amount("0");
    unreadable.amount = "12,50";
    const auto bands = run({Amount("10"), unreadable, Amount("-10"), Amount("7", 2)});
    ASSERT_EQ(run.host->message_boxes.size(), 1u);
    EXPECT_THAT(FailingStatement(run.host->message_boxes[0], "\"12,50\" is not an amount.*",
                                 "Detail_Format"),
                testing::HasSubstr("CurrentRow().Amount(columns_.amount)"));
    EXPECT_THAT(bands.Texts("Detail", "txtDebit"), ElementsAre("10.00", "", "", "7.00"));
    EXPECT_THAT(bands.Texts("Detail", "txtCredit"), ElementsAre("", "", "10.00", ""));
    EXPECT_THAT(bands.Texts("gfSeqNo", "txtDebitTotal"), ElementsAre("", "7.00"));
    EXPECT_THAT(bands.Texts("gfSeqNo", "txtCreditTotal"), ElementsAre("", "0.00"));
    EXPECT_THAT(bands.Texts("ReportFooter", "txtDebitGrandTotal"), ElementsAre(""));
    EXPECT_THAT(bands.Texts("ReportFooter", "txtCreditGrandTotal"), ElementsAre(""));
}

TEST(JournalFailureTest, AnAmountThatOverflowsATotalBlanksThoseItBelongsTo) {
    JournalRun run;
    const auto bands =
        run({Amount("900000000000000", 1), Amount("900000000000000", 2), Amount("5", 2)});
    EXPECT_EQ(run.host->message_boxes.size(), 1u);
    EXPECT_THAT(bands.Texts("gfSeqNo", "txtDebitTotal"), ElementsAre("900,000,000,000,000.00", ""));
    EXPECT_THAT(bands.Texts("ReportFooter", "txtDebitGrandTotal"), ElementsAre(""));
}

}  // namespace
}  // namespace varnel::test
