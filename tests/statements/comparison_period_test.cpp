#include "reports/statements/comparison_period.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/statements/statement_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

Date Day(const char* iso) { return Date::ParseIso(iso); }

struct Compared {
    const char* name;
    const char *from, *to;
    std::vector<std::pair<Date, Date>> years;
    const char *expected_from, *expected_to;
};

// Other fiscal years are tried on many companies: see comparative_properties_test.cpp.
const Compared kCases[] = {
    {"no fiscal years", "2025-02-01", "2025-03-31", {}, "2024-02-01", "2024-03-31"},
    {"a leap day", "2024-02-29", "2024-02-29", {}, "2023-03-01", "2023-03-01"},
    {"before a leap day", "2025-02-28", "2025-02-28", {}, "2024-02-28", "2024-02-28"},
    {"open limits", "1899-12-31", "9999-12-31", {}, "1898-12-31", "9998-12-31"},
    {"open limits, cut",
     "1899-12-31",
     "9999-12-31",
     {{Day("2023-01-01"), Day("2023-12-31")}, {Day("2024-01-01"), Day("2024-12-31")}},
     "2023-01-01",
     "2024-12-31"},
};

TEST(ComparisonPeriodTest, IsTheYearBeforeWithinTheFiscalYearsThere) {
    for (const auto& tried : kCases) {
        StatementRun run = ComparativeIncomeRun();
        run.HaveFiscalYears(tried.years);
        const auto period = reports::PeriodOfLastYear(*run.host, {Day(tried.from), Day(tried.to)});
        EXPECT_EQ(period.from, Day(tried.expected_from)) << tried.name;
        EXPECT_EQ(period.to, Day(tried.expected_to)) << tried.name;
    }
}

TEST(ComparisonPeriodTest, IsAskedInExactlyTheseWords) {
    StatementRun run = ComparativeIncomeRun();
    reports::PeriodOfLastYear(*run.host, {Day("2024-02-29"), Day("2025-03-31")});
    EXPECT_EQ(
        run.Command().text,
        "SELECT FiscalYearDet.BegDate, FiscalYearDet.EndDate FROM FiscalYearDet WHERE "
        "FiscalYearDet.BegDate BETWEEN ? AND ? OR FiscalYearDet.EndDate BETWEEN ? AND ? OR "
        "(FiscalYearDet.BegDate < ? AND FiscalYearDet.EndDate > ?) ORDER BY FiscalYearDet.EndDate");
    std::vector<std::string> days;
    for (const auto& parameter : run.Command().parameters)
        days.push_back(parameter.ToDate().ToIso());
    EXPECT_THAT(days, ElementsAre("2023-03-01", "2024-03-31", "2023-03-01", "2024-03-31",
                                  "2023-03-01", "2024-03-31"));
}

/// Of a report that cannot read the fiscal years; the message names the procedure.
CollectedBands WithoutFiscalYears(StatementRun run, std::int32_t type) {
    run.chart = {{10, type}};
    for (const char* day : {"2025-02-10", "2024-02-10"}) run.Post(10, day, "5");
    run.host->database.Answer("FiscalYearDet", {{"BegDate"}, {{Day("2024-01-01")}}});
    auto bands = run();
    EXPECT_THAT(run.host->message_boxes,
                ElementsAre(testing::ContainsRegex(
                    "\r\nin Varnel\\.dsrComparative[A-Za-z]+\\.SetComparativeDateFromDateTo at ")));
    return bands;
}

TEST(ComparisonPeriodTest, ThatCannotBeWorkedOutLeavesTheComparisonBlank) {
    const auto income = WithoutFiscalYears(ComparativeIncomeRun(), 5);
    EXPECT_THAT(Rows(income), ElementsAre("10|5.00|5.00|||"));
    EXPECT_THAT(Shown(income, "gfAcctType",
                      {"txtTypeTotal", "txtTypeTotalComp", "txtTypeTotalDoll", "lblTypeTotalDiff",
                       "txtTotalPassCapCul", "txtTotalPassCapComp", "lblTotalPassCapDiff"}),
                ElementsAre("5.00||||-5.00||"));
    EXPECT_THAT(income.Texts("GroupHeader1", "lblDatePeriodComp"), ElementsAre(""));
    const auto sheet = WithoutFiscalYears(ComparativeSheetRun(), 2);
    EXPECT_THAT(Rows(sheet), ElementsAre("10|-10.00|||"));
    EXPECT_THAT(Shown(sheet, "ReportFooter",
                      {"txtTotalPassCap", "txtTotalPassCapComp", "txtTotalPassCapDoll",
                       "lblTotalPassCapDiff"}),
                ElementsAre("-10.00|||"));
    EXPECT_THAT(sheet.Texts("PageHeader", "lblDateComp"), ElementsAre(""));
}

/// Makes the last call of that name fail in the next run, which asks as the one before.
void FailLast(StatementRun& run, const std::string& name) {
    run();
    const auto first = static_cast<std::ptrdiff_t>(run.host->calls.Names().size());
    run();
    const auto& names = run.host->calls.Names();
    const auto last = std::find(names.rbegin(), names.rend(), name);
    run.host->calls.FailAt(run.host->calls.Count() + static_cast<int>(names.rend() - last - first));
}

TEST(ComparisonTest, OfOneAccountThatCannotBeHadLeavesItsOtherAmounts) {
    struct Failing {
        StatementRun (*make)();
        std::int32_t type;
        const char *call, *row;
    };
    constexpr Failing kFailing[] = {
        {ComparativeIncomeRun, 5, "StatementBalance", "10|5.00|5.00|||"},
        {BudgetRun, 5, "GetAcctBudgetRange", "10|5.00|5.00|||"},
        {ComparativeSheetRun, 1, "StatementBalance", "10|10.00|||"}};
    for (const auto& tried : kFailing) {
        StatementRun run = tried.make();
        run.chart = {{10, tried.type}};
        for (const char* day : {"2025-02-10", "2024-02-10"}) run.Post(10, day, "5");
        FailLast(run, tried.call);
        EXPECT_THAT(run.Rows(), ElementsAre(tried.row)) << tried.call;
        EXPECT_EQ(run.host->message_boxes.size(), 1u);
    }
}

}  // namespace
}  // namespace varnel::test
