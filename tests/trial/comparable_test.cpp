#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/collected_rows.h"
#include "tests/trial/trial_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

std::shared_ptr<CollectedRows> CompareWith(TrialRun& run) {
    const auto sink = std::make_shared<CollectedRows>();
    dynamic_cast<IComparableReport&>(*run.report).IComparableReport_ComparableReportGen(sink);
    return sink;
}

/// 1010: 50 before, 90 and -40 in the period. 1020: nothing. 1030: 100 USD at 130.
TrialRun Posted(TrialRun run) {
    run.chart = {{1'010}, {1'020}, {1'030, 1, 2}};
    run.Post(1'010, "2025-01-31", "50");
    run.Post(1'010, "2025-02-01", "90");
    run.Post(1'010, "2025-02-02", "-140");
    run.Post(1'030, "2025-02-03", "-130", "-100", 2);
    run.report->IReport_DisplayForeignCurrency(true);
    return run;
}

TEST(ComparableTrialTest, TheSummaryGivesARowForEachAccountItPrints) {
    TrialRun run = Posted(SummaryRun());
    run.Post(1'020, "2025-02-04", "7.5");
    const auto sink = CompareWith(run);
    const auto bands = run();
    EXPECT_THAT(bands.Texts("Detail", "txtAcctId"), ElementsAre("1020", "1030"));
    const auto rows = ElementsAre(
        "1020: account=1020|description=Account 1020|debit=7.5000|credit=|PurgeIncl=False",
        "1030: account=1030|description=Account 1030|foreign=-100.0000|currency=USD|debit=|"
        "credit=130.0000|PurgeIncl=False");
    EXPECT_THAT(sink->told, rows);
    sink->told.clear();
    run();
    EXPECT_THAT(sink->told, rows) << "again";
}

TEST(ComparableTrialTest, TheDetailGivesAGroupForEachAccountItPrintsWithForwardAndLines) {
    TrialRun run = Posted(DetailRun());
    run.host->company.settings["PurgeIncl"] = "True";
    const auto sink = CompareWith(run);
    run();
    EXPECT_THAT(
        sink->told,
        ElementsAre("begin 1010 1010 Account 1010", "forward: forward=50.0000|PurgeIncl=True",
                    "2: entry=2|source=INV|date=2025-02-01|description=Sale|debit=90.0000|"
                    "credit=|PurgeIncl=True",
                    "3: entry=3|source=INV|date=2025-02-02|description=Sale|debit=|"
                    "credit=140.0000|PurgeIncl=True",
                    "end", "begin 1030 1030 Account 1030", "forward: forward=0.0000|PurgeIncl=True",
                    "4: entry=4|source=INV|date=2025-02-03|description=Sale|"
                    "foreign=-100.0000|currency=USD|debit=|credit=130.0000|PurgeIncl=True",
                    "end"));
}

TEST(ComparableTrialTest, LinesOfAnAccountWithoutAForwardHaveAGroupToo) {
    TrialRun plain = Posted(DetailRun()), run = Posted(DetailRun());
    CompareWith(plain);
    const auto sink = CompareWith(run);
    plain();
    const auto& names = plain.host->calls.Names();
    const auto forward = std::find(names.begin(), names.end(), "AccountBalance") - names.begin();
    run.host->calls.FailAt(static_cast<int>(forward) + 1);
    run();
    EXPECT_THAT(run.host->message_boxes, ElementsAre(HasSubstr("AccountBalance, failed")));
    EXPECT_THAT(sink->told, ElementsAre("begin 1010 1010 Account 1010", StartsWith("2:"),
                                        StartsWith("3:"), "end", StartsWith("begin 1030"),
                                        StartsWith("forward:"), StartsWith("4:"), "end"));
}

// Wherever it fails: at the begin or end of a group, at a row.
TEST(ComparableTrialTest, ASinkThatFailsIsToldOnceAndSpoilsNoPage) {
    for (TrialRun (*make)() :
         {+[] { return Posted(SummaryRun()); }, +[] { return Posted(DetailRun()); }}) {
        TrialRun plain = make();
        const auto right = plain().bands;
        for (int k = 1;; ++k) {
            TrialRun run = make();
            const auto sink = CompareWith(run);
            sink->failing = k;
            EXPECT_EQ(run().bands, right) << k;
            if (static_cast<int>(sink->told.size()) < k) break;
            EXPECT_THAT(run.host->message_boxes, ElementsAre(HasSubstr("The sink is full"))) << k;
        }
    }
}

TEST(ComparableTrialTest, OnlyTheSummaryFillsASpreadsheetTemplate) {
    const TrialRun summary = SummaryRun();
    Object& report = dynamic_cast<Object&>(*summary.report);
    EXPECT_EQ(report.Get("IExcelAddInExport_ExcelAddInTemplate").ToText(), "TrialBalance");
    EXPECT_EQ(report.Get("IExcelAddInExport_ProjectIds").ToText(), "");
    EXPECT_EQ(dynamic_cast<IExcelAddInExport*>(DetailRun().report.get()), nullptr);
}

}  // namespace
}  // namespace varnel::test
