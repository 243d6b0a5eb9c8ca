#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/journal/journal_run.h"

namespace varnel::test {
namespace {

TEST(JournalPageTest, IsTheGeneralJournalOfThePeriod) {
    JournalRun run;
    run.host->texts = {{6173, "&General Journal"}, {3012, "From"}, {3013, "to"}, {2656, "&Debit"}};
    EXPECT_EQ(run.report->IReport_ReportTitle(), "General Journal");
    EXPECT_EQ(run.report->IReport_DateDisplayOptions(), DateDisplay::kFromTo);
    EXPECT_FALSE(run.report->IReport_NoHeaders());
    const auto header = run({}).Of("PageHeader").at(0);
    EXPECT_EQ(header.Text("hdrTitle"), "General Journal");
    EXPECT_EQ(header.Text("lblDateFromDateTo"), "From 2025-02-01 to 2025-03-31");
    EXPECT_EQ(header.Text("lblDebitCap"), "Debit");
    EXPECT_EQ(header.height, header["lblForeignCap"].box.Bottom());
}

TEST(JournalPageTest, TheNoteOnItemAdjustmentsHasABandInThatModeOnly) {
    JournalRun run;
    EXPECT_TRUE(run({}).Of("PageFooter").empty());
    run.host->company.settings["ItemAdjustGL"] = "True";
    run.host->company.item_adjustment_start = Date::ParseIso("2025-02-01");
    const auto footers = run({}).Of("PageFooter");
    ASSERT_EQ(footers.size(), 1u);
    EXPECT_EQ(footers[0].Text("lblWarningInvMaj"), "12802 Orvotech (date 2025-02-01)");
    EXPECT_TRUE(footers[0]["lblWarningInvMaj"].visible);
    run.host->company.settings["ItemAdjustGL"] = "False";
    EXPECT_TRUE(run({}).Of("PageFooter").empty());
}

TEST(JournalPageTest, SaysWhatItLeavesOutAndHowItIsSorted) {
    JournalRun run;
    run.FilterSegments("3");
    run.Filter("GLDet.DetAmnt > 5|GLAcct.GLAcctId");
    std::vector<std::string> texts;
    for (const auto& band : run({}).bands)
        if (band.depth == 1)
            texts = {band.Text("txtSegments"), band.Text("txtFilter"), band.Text("txtSortedBy")};
    EXPECT_THAT(texts, testing::ElementsAre("Shop", "GLDet.DetAmnt > 5", "GLAcct.GLAcctId"));
}

}  // namespace
}  // namespace varnel::test
