#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/statements/statement_run.h"
#include "tests/support/collected_rows.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Revenue 100 after 50, an account without amounts, expenses 40 after 20.
StatementRun Posted(StatementRun run) {
    run.chart = {{4'000, 4, 1}, {4'010, 4}, {4'020, 4}, {4'090, 4, 3}, {5'010, 5}};
    run.Post(4'010, "2025-02-10", "-100");
    run.Post(4'010, "2025-01-10", "-50");
    run.Post(5'010, "2025-02-10", "40");
    run.Post(5'010, "2025-01-10", "20");
    run.Post(4'010, "2024-02-10", "-80");
    return run;
}

TEST(ComparableStatementTest, TheIncomeStatementGivesItsAccountsAndResultsAsTheyPrint) {
    StatementRun run = Posted(IncomeRun());
    const auto sink = std::make_shared<CollectedRows>();
    run.Properties().Put("IComparableReport_ComparableReportGen", ObjectRef(sink));
    run();
    EXPECT_THAT(sink->told,
                ElementsAre("4010: account=4010|description=Account 4010|period=100.0000|"
                            "cumulative=150.0000|PurgeIncl=False",
                            "5010: account=5010|description=Account 5010|period=40.0000|"
                            "cumulative=60.0000|PurgeIncl=False",
                            "Result|5: account=|description=2679|period=60.0000|"
                            "cumulative=90.0000|PurgeIncl=False"));
    sink->told.clear();
    sink->failing = 1;
    const auto bands = run();
    EXPECT_EQ(bands.Texts("Detail", "txtTotal").back(), "40.00");
    EXPECT_THAT(run.host->message_boxes, SizeIs(1));
}

/// Sets all that a host can set.
void TellAll(StatementRun& run) {
    run.FilterSegments("3", true);
    run.Revalue();
    run.IncludeZeroBalances();
    run.Filter("GLAcct.GLAcctId > '1'");
    run.report->IReport_DisplayForeignCurrency(true);
    run.Properties().Put("ProjIds", "0");
    run.Properties().Put("CumulDateFrom", Date::ParseIso("2024-07-01"));
    run.Properties().Put("CumulDateTo", Date::ParseIso("2025-02-28"));
    run.host->database.Answer("ProjInfo", {{"ProjId", "Descr"}, {{"P7", "Shop"}}});
}

TEST(ComparativeFormTest, PrintsAsAComparativeReportThatWasToldTheSame) {
    StatementRun by_hand = Posted(ComparativeIncomeRun());
    TellAll(by_hand);
    const auto expected = by_hand().bands;
    StatementRun run = Posted(IncomeRun());
    TellAll(run);
    run.Prepare();
    const auto form = run.Properties().Call("ComparativeForm", {}).ToObject();
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->ObjectName(), "dsrComparativeIncomeStatement");
    run.report.reset();
    EXPECT_EQ(Collect(dynamic_cast<BandedReport&>(*form)).bands, expected);
    EXPECT_THAT(run.host->message_boxes, IsEmpty());
}

TEST(SpreadsheetTest, EachStatementNamesItsTemplate) {
    struct Template {
        StatementRun run;
        const char *plain, *by_project;
    };
    Template kCases[] = {
        {IncomeRun(), "IncomeStatement", "IncomeStatementProject"},
        {ComparativeIncomeRun(), "ComparativeIncomeStatement", "ComparativeIncomeStatement"},
        {BudgetRun(), "ComparativeIncomeStatementBudget", "ComparativeIncomeStatementBudget"},
        {SheetRun(), "BalanceSheet", nullptr},
        {ComparativeSheetRun(), "ComparativeBalanceSheet", nullptr}};
    for (auto& [run, plain, by_project] : kCases) {
        auto& add_in = dynamic_cast<IExcelAddInExport&>(*run.report);
        EXPECT_EQ(add_in.IExcelAddInExport_ExcelAddInTemplate(), plain);
        EXPECT_EQ(add_in.IExcelAddInExport_ProjectIds(), "");
        if (by_project == nullptr) continue;
        run.Properties().Put("ProjIds", "3,7");
        EXPECT_EQ(add_in.IExcelAddInExport_ExcelAddInTemplate(), by_project);
        EXPECT_EQ(add_in.IExcelAddInExport_ProjectIds(), "3,7");
    }
}

TEST(SpreadsheetTest, AProjectIsKnownByItsCodeAndAnUnknownOneByNothing) {
    StatementRun run = IncomeRun();
    const auto code_of = [&](std::int32_t id) {
        const Variant arguments[] = {id};
        return run.Properties().Call("GetExcelAddInProject", arguments).ToText();
    };
    run.host->database.Answer("InProjId = 7", {{"InProjId", "ProjId"}, {{7, "P7"}}});
    run.host->database.Answer("InProjId = 8", {{"InProjId", "ProjId"}, {}});
    EXPECT_EQ(code_of(7), "P7");
    EXPECT_EQ(run.Command().text, "SELECT * FROM ProjInfo WHERE InProjId = 7");
    EXPECT_EQ(code_of(8), "");
    EXPECT_THAT(run.host->message_boxes, IsEmpty());
    run.host->calls.FailAt(run.host->calls.Count() + 1);
    EXPECT_EQ(code_of(7), "");
    EXPECT_THAT(run.host->message_boxes, SizeIs(1));
}

}  // namespace
}  // namespace varnel::test
