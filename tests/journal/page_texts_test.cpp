#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/journal/journal_run.h"

namespace varnel {
namespace {

using test::Amount;
using test::JournalRun;

TEST(JournalPageTest, IsTheGeneralJournalOfThePeriod) {
    JournalRun run;
    run.host->texts = {{6173, "&General Journal"}, {3012, "From"}, {3013, "to"}, {2656, "&Debit"}};
    EXPECT_EQ(run.report->IReport_ReportTitle(), "General Journal");
    EXPECT_EQ(run.report->IReport_DateDisplayOptions(), DateDisplay::kFromTo);
    EXPECT_FALSE(run.report->IReport_NoHeaders());
    const auto header = run({}).Of("PageHeader").at(0);
    EXPECT_EQ(header.Text("hdrTitle"), "General Journal");
    EXPECT_EQ(header.Text("lblDateFromDateTo"), "From 2025-01-01 to 2025-03-31");
    EXPECT_EQ(header.Text("lblDebitCap"), "Debit");
}

TEST(JournalPageTest, AnOpenLimitIsAllDates) {
    JournalRun run;
    run.host->texts[1376] = "All dates";
    run.report->IReport_DateFrom(kOpenStart);
    EXPECT_EQ(run({}).Of("PageHeader").at(0).Text("lblDateFromDateTo"), "All dates");
}

TEST(JournalPageTest, CaptionsStandUnderTheHeaderBlockAndEndTheSection) {
    JournalRun run;
    const auto header = run({}).Of("PageHeader").at(0);
    const Twips top = header["StandardHeader"].box.Bottom() + 90;
    for (const char* caption : {"lblSeqNoCap", "lblDateCap", "lblAccountCap", "lblProjectCap",
                                "lblDebitCap", "lblCreditCap", "lblForeignCap"}) {
        EXPECT_EQ(header[caption].box.top, top) << caption;
        EXPECT_EQ(header.height, header[caption].box.Bottom()) << caption;
    }
}

TEST(JournalPageTest, SpeaksFrenchWhenTheHostDoes) {
    JournalRun run;
    run.host->texts = {{6173, "&Journal général"}, {3012, "Du"},     {3013, "au"},
                       {2656, "&Débit"},           {2657, "Crédit"}, {5860, "écritures"}};
    run.host->formats.decimal_mark = ",";
    run.host->formats.group_mark = "\u00A0";
    const auto bands = run({Amount("1234.5"), Amount("-1234.5")});
    const auto header = bands.Of("PageHeader").at(0);
    EXPECT_EQ(header.Text("hdrTitle"), "Journal général");
    EXPECT_EQ(header.Text("lblDateFromDateTo"), "Du 2025-01-01 au 2025-03-31");
    EXPECT_EQ(header.Text("lblDebitCap"), "Débit");
    EXPECT_EQ(header.Text("lblCreditCap"), "Crédit");
    EXPECT_EQ(bands.Of("Detail").at(0).Text("txtDebit"), "1\u00A0234,50");
    EXPECT_EQ(bands.Of("ReportFooter").at(0).Text("txtCount"), "1 écritures");
}

TEST(JournalPageTest, TheNoteOnItemAdjustmentsHasABandInThatModeOnly) {
    JournalRun run;
    EXPECT_TRUE(run({}).Of("PageFooter").empty());
    run.host->company.settings["ItemAdjustGL"] = "True";
    run.host->company.item_adjustment_start = Date::ParseIso("2025-02-01");
    const auto footers = run({}).Of("PageFooter");
    ASSERT_EQ(footers.size(), 1u);
    EXPECT_EQ(footers[0].Text("lblWarningInvMaj"), "12802 (2025-02-01)");
    EXPECT_TRUE(footers[0]["lblWarningInvMaj"].visible);
    run.host->company.settings["ItemAdjustGL"] = "False";
    EXPECT_TRUE(run({}).Of("PageFooter").empty());
}

TEST(JournalPageTest, SaysWhatItLeavesOutAndHowItIsSorted) {
    JournalRun run;
    auto& segments = dynamic_cast<ISegmentFilter&>(*run.report);
    segments.ISegmentFilter_SegmentFilterDisplay("East, West");
    auto& filter = dynamic_cast<IFilterableReport&>(*run.report);
    filter.IFilterableReport_Filter("GLDet.DetAmnt > 5|GLAcct.GLAcctId");
    std::vector<std::string> texts;
    for (const auto& band : run({}).bands)
        if (band.depth == 1)
            texts = {band.Text("txtSegments"), band.Text("txtFilter"), band.Text("txtSortedBy")};
    EXPECT_THAT(texts, testing::ElementsAre("East, West", "GLDet.DetAmnt > 5", "GLAcct.GLAcctId"));
}

}  // namespace
}  // namespace varnel
