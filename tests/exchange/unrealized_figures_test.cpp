#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/exchange/unrealized_run.h"

namespace varnel {
namespace {

using test::CollectedBand;
using test::CollectedBands;
using test::ForeignRow;
using test::UnrealizedRun;
using testing::ElementsAre;
using testing::IsEmpty;

/// "booked revalued gain" of each band of a section.
std::vector<std::string> Figures(const CollectedBands& bands, const std::string& section,
                                 const std::string& suffix = "") {
    std::vector<std::string> figures;
    for (const auto& band : bands.Of(section))
        figures.push_back(band.Text("txtBooked" + suffix) + " " +
                          band.Text("txtRevalued" + suffix) + " " + band.Text("txtGain" + suffix));
    return figures;
}

/// Two accounts in dollars, one of them in euros too. 0.02 × 1.3725 = 0.02745, 0.03 in each row.
const std::vector<ForeignRow> kSeveral{
    {1'200, 3, "100", "150"},     {1'060, 2, "1000", "1300"}, {1'060, 2, "-200", "-270.5"},
    {1'200, 2, "0.02", "0.0201"}, {1'200, 2, "0.02", "0.01"},
};

TEST(UnrealizedFiguresTest, AreTotalsByAccountByCurrencyAndForTheReport) {
    UnrealizedRun run;
    const auto bands = run(kSeveral);
    EXPECT_THAT(Figures(bands, "gfAccountType"),
                ElementsAre("150.00 147.00 -3.00", "1,029.50 1,098.00 68.50", "0.03 0.06 0.03"));
    EXPECT_THAT(bands.Texts("gfAccountType", "txtForeign"),
                ElementsAre("100.00", "800.00", "0.04"));
    EXPECT_THAT(Figures(bands, "gfCurrency", "Total"),
                ElementsAre("150.00 147.00 -3.00", "1,029.53 1,098.06 68.53"));
    EXPECT_THAT(bands.Texts("ReportFooter", "txtGainGrandTotal"), ElementsAre("65.53"));
    EXPECT_THAT(run.host->message_boxes, IsEmpty());
}

TEST(UnrealizedFiguresTest, RoundEachRowToTheCentAndKeepGainsExact) {
    UnrealizedRun run;
    const auto bands = run(kSeveral);
    const auto account = bands.Of("gfAccountType").at(2);
    EXPECT_EQ(account["txtBooked"].value, ControlValue(Currency::Parse("0.0301")));
    EXPECT_EQ(account["txtRevalued"].value, ControlValue(Currency::Parse("0.06")));
    EXPECT_EQ(account["txtGain"].value, ControlValue(Currency::Parse("0.0299")));
    EXPECT_EQ(bands.Of("ReportFooter").at(0)["txtGainGrandTotal"].value,
              ControlValue(Currency::Parse("65.5299")));
}

TEST(UnrealizedFiguresTest, StandUnderCurrencyAndAccountWithTheirDrillDownKey) {
    UnrealizedRun run;
    const auto bands = run(kSeveral);
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
    EXPECT_THAT(Figures(bands, "gfAccountType"), ElementsAre("1,300.000 1,372.500 72.500"));
    EXPECT_THAT(bands.Texts("ReportFooter", "txtGainGrandTotal"), ElementsAre("72.500"));
}

TEST(UnrealizedFiguresTest, AreAtTheBookedRateWhenNothingIsRevalued) {
    UnrealizedRun run;
    run.report->IReport_ReportDesigner()->Put("RatesPreset", true);
    EXPECT_THAT(Figures(run({{1'060, 2, "100", "130"}}), "gfAccountType"),
                ElementsAre("130.00 125.00 -5.00"));
}

TEST(UnrealizedFiguresTest, AreThoseBookedInACompanyOfOneCurrency) {
    UnrealizedRun run;
    run.host->company.currency_info.records.resize(1);
    const auto bands = run({{1'060, 2, "100", "130"}});
    EXPECT_FALSE(bands.Of("PageHeader").at(0)["txtExchangeRate"].visible);
    EXPECT_THAT(Figures(bands, "gfAccountType"), ElementsAre("130.00 130.00 0.00"));
}

TEST(UnrealizedFiguresTest, OfASecondRunStartAfresh) {
    UnrealizedRun run;
    const auto first = run(kSeveral);
    EXPECT_THAT(run({{1'065, 3, "1", "1"}}).Texts("ReportFooter", "txtGainGrandTotal"),
                ElementsAre("0.47"));
    EXPECT_EQ(run(kSeveral).bands, first.bands);
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

}  // namespace
}  // namespace varnel
