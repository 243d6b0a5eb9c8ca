#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/exchange/unrealized_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;

/// "booked revalued gain" of each account.
std::vector<std::string> Figures(const CollectedBands& bands) {
    std::vector<std::string> figures;
    for (const auto& band : bands.Of("gfAccountType"))
        figures.push_back(band.Text("txtBooked") + " " + band.Text("txtRevalued") + " " +
                          band.Text("txtGain"));
    return figures;
}

TEST(UnrealizedFiguresTest, StandUnderCurrencyAndAccountWithTheirDrillDownKey) {
    UnrealizedRun run;
    const auto bands =
        run({{1'200, 3, "100", "150"}, {1'060, 2, "1000", "1300"}, {1'200, 2, "1", "2"}});
    EXPECT_THAT(bands.Texts("ghCurrency", "txtCurrency"), ElementsAre("EUR", "USD"));
    EXPECT_THAT(bands.Texts("gfAccountType", "txtAccount"),
                ElementsAre("1200 - Receivables", "1060 - Bank USD", "1200 - Receivables"));
    EXPECT_THAT(bands.Texts("gfAccountType", "txtCode"), ElementsAre("EUR", "USD", "USD"));
    EXPECT_THAT(bands.Texts("gfCurrency", "txtCurrencyTotal"),
                ElementsAre("Subtotal: EUR", "Subtotal: USD"));
    for (const char* control :
         {"txtAccount", "txtForeign", "txtCode", "txtBooked", "txtRevalued", "txtGain"})
        EXPECT_EQ(bands.Of("gfAccountType").at(1)[control].tag, "ACC|1060|2") << control;
    EXPECT_THAT(bands.Of("Detail"), IsEmpty());
    EXPECT_THAT(bands.Of("ghAccountType"), IsEmpty());
}

TEST(UnrealizedFiguresTest, AreInTheFormatOfTheirCurrency) {
    UnrealizedRun run;
    run.host->company.currency_info.records[1].decimals = 0;
    run.host->company.currency_info.records[0].decimals = 3;
    const auto bands = run({{1'060, 2, "1000", "1300"}});
    EXPECT_THAT(bands.Texts("gfAccountType", "txtForeign"), ElementsAre("1,000"));
    EXPECT_THAT(Figures(bands), ElementsAre("1,300.000 1,372.500 72.500"));
    EXPECT_THAT(bands.Texts("ReportFooter", "txtGainGrandTotal"), ElementsAre("72.500"));
}

TEST(UnrealizedFiguresTest, AreThoseBookedInACompanyOfOneCurrency) {
    UnrealizedRun run;
    run.host->company.currency_info.records.resize(1);
    const auto bands = run({{1'060, 2, "100", "130"}});
    EXPECT_FALSE(bands.Of("PageHeader").at(0)["txtExchangeRate"].visible);
    EXPECT_THAT(Figures(bands), ElementsAre("130.00 130.00 0.00"));
}

TEST(UnrealizedFiguresTest, WithoutRowsAreATotalOfZero) {
    UnrealizedRun run;
    const auto bands = run({});
    EXPECT_THAT(bands.Of("gfAccountType"), IsEmpty());
    EXPECT_THAT(bands.Of("gfCurrency"), IsEmpty());
    EXPECT_THAT(bands.Texts("ReportFooter", "txtGainGrandTotal"), ElementsAre("0.00"));
}

TEST(UnrealizedPageTest, SaysClosingDateRatesAndSegments) {
    UnrealizedRun run;
    run.host->texts[1776] = "As at";
    run.host->texts[30010] = "Unrealized";
    run.report->IReport_ReportDesigner()->Put("ISegmentFilter_SegmentFilterDisplay", "North");
    run.report->IReport_ReportDesigner()->Put("IFilterableReport_Filter", "USD=1.5");
    const auto bands = run({});
    const auto header = bands.Of("PageHeader").at(0);
    EXPECT_EQ(header.Text("hdrTitle"), "Unrealized");
    EXPECT_EQ(header.Text("lblDateFromDateTo"), "As at 2025-03-31");
    EXPECT_EQ(header.Text("txtExchangeRate"), "Exchange rates (USD 1.3725; EUR 1.4700)");
    EXPECT_THAT(bands.Texts("ReportFooter", "txtRatesDate"),
                ElementsAre("Exchange rates (2025-03-31)"));
    EXPECT_EQ(run.report->IReport_DateDisplayOptions(), DateDisplay::kClosingDate);
    const auto note = std::find_if(bands.bands.begin(), bands.bands.end(),
                                   [](const CollectedBand& band) { return band.depth == 1; });
    ASSERT_NE(note, bands.bands.end());
    EXPECT_EQ(note->Text("txtSegments"), "North");
    EXPECT_EQ(note->Text("txtFilter"), "");
}

TEST(UnrealizedFailureTest, ABalanceWithoutARateLeavesBlankWhatItBelongsToAndIsToldOnce) {
    UnrealizedRun run;
    run.host->company.currency_info.rate_table[3].clear();
    run({{1'060, 2, "100", "130"}});
    EXPECT_TRUE(run.host->message_boxes.empty()) << "no balance in EUR";
    const auto bands = run({{1'065, 3, "1", "1"},
                            {1'065, 3, "2", "2"},
                            {1'060, 2, "100", "130"},
                            {1'200, 2, "10", "13"}});
    EXPECT_THAT(
        run.host->message_boxes,
        ElementsAre(MatchesRegex("There is no exchange rate for EUR on or before 2025-03-31\r\n"
                                 "in Varnel.dsrUnRealExchProfitloss.Detail_Format at "
                                 "line [1-9][0-9]*")));
    EXPECT_THAT(bands.Texts("gfAccountType", "txtAccount"),
                ElementsAre("1065 - Bank EUR", "1060 - Bank USD", "1200 - Receivables"));
    EXPECT_THAT(bands.Texts("gfAccountType", "txtGain"), ElementsAre("", "7.25", "0.73"));
    EXPECT_THAT(bands.Texts("gfAccountType", "txtForeign"), ElementsAre("", "100.00", "10.00"));
    EXPECT_THAT(bands.Texts("gfCurrency", "txtGainTotal"), ElementsAre("", "7.98"));
    EXPECT_THAT(bands.Texts("ReportFooter", "txtGainGrandTotal"), ElementsAre(""));
}

}  // namespace
}  // namespace varnel::test
