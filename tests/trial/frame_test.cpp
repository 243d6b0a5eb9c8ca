#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/trial/trial_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

// What the trial balances share: adjusting line, totals, header, options; and the GIFI report's
// header.

TrialRun PlainDetailRun() { return DetailRun(); }

class TrialBalanceTest : public testing::TestWithParam<TrialRun (*)()> {
  protected:
    TrialRun run = GetParam()();
};

INSTANTIATE_TEST_SUITE_P(Both, TrialBalanceTest, testing::Values(SummaryRun, PlainDetailRun));

TEST_P(TrialBalanceTest, WithoutItsAdjustingLineTheFooterIsLower) {
    run.host->texts[8571] = "Others";
    run.chart = {{1'010}};
    run.Post(1'010, "2025-02-15", "5");
    const auto plain = run().Of("ReportFooter").at(0);
    run.FilterSegments("3");
    const auto adjusted = run().Of("ReportFooter").at(0);
    EXPECT_FALSE(plain["txtDescrAdj"].visible);
    EXPECT_TRUE(adjusted["txtDescrAdj"].visible);
    EXPECT_EQ(adjusted.Text("txtDescrAdj"), "Others");
    const Twips line = adjusted["linDebitGrandTotal"].box.top - adjusted["txtDescrAdj"].box.top;
    EXPECT_EQ(adjusted.height - plain.height, line);
    for (const char* total : {"linDebitGrandTotal", "lblGrTotal", "txtCreditGrandTotal"})
        EXPECT_EQ(adjusted[total].box.top - plain[total].box.top, line) << total;
}

TEST_P(TrialBalanceTest, TheDialogOpensWithTheChoiceOfTheTimeBefore) {
    run.IncludeZeroBalances();
    std::vector<bool> visible;
    bool checked = false;
    run.host->use_dialog = [&](Form& form) {
        for (const CheckBox* box : form.CheckBoxes()) visible.push_back(box->visible);
        checked = form.CheckBoxes()[0]->checked;
        form.CloseBox();
    };
    dynamic_cast<IReportConfig&>(*run.report).IReportConfig_ShowConfigurationScreen();
    EXPECT_TRUE(checked);
    EXPECT_THAT(visible, ElementsAre(true, false));
}

TEST_P(TrialBalanceTest, ThePeriodIsCaptionedTheOtherWayRound) {
    const auto caption = [&] { return run().Of("PageHeader").at(0).Text("lblDateFromDateTo"); };
    EXPECT_EQ(caption(), "3013 2025-02-01 3012 2025-03-31");
    run.report->IReport_DateFrom(kOpenStart);
    EXPECT_EQ(caption(), "3013 1899-12-31 3012 2025-03-31");
    run.report->IReport_DateTo(kOpenEnd);
    EXPECT_EQ(caption(), "1376");
}

TEST(TrialHeaderTest, RatesAreNotedWhenTheyRevalueInGifiWheneverThereAreAny) {
    const auto note = [](TrialRun& run) {
        return Shown(run(), "PageHeader", {"txtExchangeRate"}).at(0);
    };
    constexpr const char* kNote = "Rates: USD 1.2345; EUR 1.5555";
    for (auto* make : {SummaryRun, PlainDetailRun, GifiRun}) {
        TrialRun run = make();
        run.host->texts[5914] = "Rates: {0}";
        EXPECT_EQ(note(run), "");
        run.Revalue();
        EXPECT_EQ(note(run), kNote);
        dynamic_cast<IExchangeRates&>(*run.report).IExchangeRates_Reevaluate(false);
        EXPECT_EQ(note(run), make == GifiRun ? kNote : "");
        run.Revalue();
        run.host->company.currency_info.records.resize(1);
        EXPECT_EQ(note(run), "");
    }
}

TEST(TrialFooterTest, ItemAdjustmentsAreNotedInThatModeOnly) {
    for (auto* make : {SummaryRun, PlainDetailRun, GifiRun, LedgerRun}) {
        TrialRun run = make();
        run.chart = {{1'010}};
        run.Post(1'010, "2025-02-15", "5");
        run.host->company.settings["ItemAdjustGL"] = "True";
        run.host->company.item_adjustment_start = run.to;
        EXPECT_THAT(Shown(run(), "PageFooter", {"lblWarningInvMaj"}),
                    ElementsAre("12802 Orvotech (date 2025-03-31)"));
        run.host->company.settings["ItemAdjustGL"] = "False";
        EXPECT_THAT(Shown(run(), "PageFooter", {"lblWarningInvMaj"}), testing::Each(std::string()));
    }
}

TEST(TrialHeaderTest, TheDetailsAdjustingBlockReadsLikeAnAccount) {
    TrialRun run = DetailRun();
    run.chart = {{1'010}};
    run.Post(1'010, "2025-01-15", "2");
    run.Post(1'010, "2025-02-15", "5");
    run.FilterSegments("3");
    EXPECT_THAT(Shown(run(), "ReportFooter",
                      {"txtDetDescAdj", "txtCreditAdj", "txtBalanceAdj", "lblBalanceTypeAdj",
                       "txtDebitTotalAdj", "txtCreditTotalAdj", "txtBalanceTotalAdj",
                       "lblBalanceTotalTypeAdj", "txtBalanceGrandTotal"}),
                ElementsAre("Shop|5.00|5.00|CT||5.00|5.00|CT|2.00"));
}

}  // namespace
}  // namespace varnel::test
