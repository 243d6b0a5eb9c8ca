#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/journal/journal_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

/// "debit/credit" of each band of a section.
std::vector<std::string> Pairs(const CollectedBands& bands, const std::string& section,
                               const std::string& debit, const std::string& credit) {
    std::vector<std::string> pairs;
    for (const auto& band : bands.Of(section))
        pairs.push_back(band.Text(debit) + "/" + band.Text(credit));
    return pairs;
}

std::vector<std::string> Lines(const CollectedBands& bands) {
    return Pairs(bands, "Detail", "txtDebit", "txtCredit");
}

std::vector<std::string> EntryTotals(const CollectedBands& bands) {
    return Pairs(bands, "gfSeqNo", "txtDebitTotal", "txtCreditTotal");
}

std::vector<std::string> GrandTotals(const CollectedBands& bands) {
    return Pairs(bands, "ReportFooter", "txtDebitGrandTotal", "txtCreditGrandTotal");
}

TEST(JournalAmountsTest, ALineOfZeroShowsTheAmountsOfTheLineBeforeAndAddsNothing) {
    JournalRun run;
    auto null = Amount("0");
    null.amount = Variant::Null{};
    const auto bands = run({Amount("0"), Amount("100"), Amount("0"), null, Amount("-100"),
                            Amount("0"), Amount("0", 2)});
    EXPECT_THAT(Lines(bands),
                ElementsAre("/", "100.00/", "100.00/", "100.00/", "/100.00", "/100.00", "/100.00"));
    EXPECT_THAT(EntryTotals(bands), ElementsAre("100.00/100.00", "0.00/0.00"));
    EXPECT_THAT(GrandTotals(bands), ElementsAre("100.00/100.00"));
}

TEST(JournalAmountsTest, EachEntryFooterHasTheTotalsOfTheEntryItCloses) {
    JournalRun run;
    const auto bands = run({Amount("10.25", 4), Amount("20", 4), Amount("-30.25", 4),
                            Amount("7", 5), Amount("-7", 5), Amount("0.01", 9)});
    EXPECT_THAT(EntryTotals(bands), ElementsAre("30.25/30.25", "7.00/7.00", "0.01/0.00"));
    EXPECT_THAT(GrandTotals(bands), ElementsAre("37.26/37.25"));
    EXPECT_THAT(bands.Texts("ReportFooter", "txtCount"), ElementsAre("3 entries"));
}

TEST(JournalAmountsTest, LargeTotalsAreExactToTheCent) {
    JournalRun run;
    const auto bands = run({Amount("499999999999.99"), Amount("499999999999.99"),
                            Amount("499999999999.99"), Amount("-0.01")});
    EXPECT_THAT(EntryTotals(bands), ElementsAre("1,499,999,999,999.97/0.01"));
    EXPECT_THAT(GrandTotals(bands), ElementsAre("1,499,999,999,999.97/0.01"));
}

TEST(JournalAmountsTest, SpreadsheetsGetTheValuesBehindTheTexts) {
    JournalRun run;
    const auto bands = run({Amount("100"), Amount("-40")});
    const auto lines = bands.Of("Detail");
    EXPECT_EQ(lines[0]["txtDebit"].value, ControlValue(Currency::FromWhole(100)));
    EXPECT_EQ(lines[0]["txtCredit"].value, ControlValue());
    EXPECT_EQ(lines[1]["txtDebit"].value, ControlValue());
    EXPECT_EQ(lines[1]["txtCredit"].value, ControlValue(Currency::FromWhole(40)));
    const auto footer = bands.Of("ReportFooter").at(0);
    EXPECT_EQ(footer["txtCreditGrandTotal"].value, ControlValue(Currency::FromWhole(40)));
    EXPECT_EQ(footer["txtCount"].value, ControlValue(std::int32_t{1}));
}

TEST(JournalAmountsTest, WithoutRowsTheReportFooterShowsZeroTotalsAndNoEntries) {
    JournalRun run;
    const auto bands = run({});
    EXPECT_TRUE(bands.Of("ghSeqNo").empty());
    EXPECT_TRUE(bands.Of("Detail").empty());
    EXPECT_TRUE(bands.Of("gfSeqNo").empty());
    EXPECT_THAT(GrandTotals(bands), ElementsAre("0.00/0.00"));
    EXPECT_THAT(bands.Texts("ReportFooter", "txtCount"), ElementsAre("0 entries"));
    EXPECT_THAT(run.host->message_boxes, testing::IsEmpty());
}

TEST(JournalAmountsTest, AmountsAreInTheFormatOfTheHomeCurrency) {
    JournalRun run;
    run.host->company.currency_info.records[0].decimals = 0;
    const auto bands = run({Amount("1500"), Amount("-1500")});
    EXPECT_THAT(Lines(bands), ElementsAre("1,500/", "/1,500"));
    EXPECT_THAT(EntryTotals(bands), ElementsAre("1,500/1,500"));
    EXPECT_THAT(GrandTotals(bands), ElementsAre("1,500/1,500"));
}

TEST(JournalAmountsTest, ASecondRunOfTheSameReportStartsAfresh) {
    JournalRun run;
    const std::vector lines{Amount("50"), Amount("-50"), Amount("0", 2)};
    const auto first = run(lines);
    const auto other = run({Amount("3", 7)});
    const auto again = run(lines);
    EXPECT_THAT(GrandTotals(other), ElementsAre("3.00/0.00"));
    EXPECT_THAT(other.Texts("ReportFooter", "txtCount"), ElementsAre("1 entries"));
    EXPECT_EQ(again.bands, first.bands);
    EXPECT_THAT(Lines(run({Amount("0")})), ElementsAre("/"));
}

}  // namespace
}  // namespace varnel::test
