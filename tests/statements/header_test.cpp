#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/statements/statement_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

// What stands over the rows: titles, dates, rates, projects.

Date Day(const char* iso) { return Date::ParseIso(iso); }

StatementRun OfOneRow(StatementRun run) {
    run.chart = {{5'010, 5}};
    run.Post(5'010, "2025-02-10", "1");
    run.host->texts[5914] = "Rates &in {0}:";
    run.host->database.Answer(
        "ProjInfo", {{"InProjId", "ProjId", "Descr"}, {{7, "P7", "Shop"}, {9, "P9", "Mill"}}});
    return run;
}

/// Of the period and of the cumulative one.
std::vector<std::string> Captions(StatementRun& run) {
    return Shown(run(), "GroupHeader1", {"lblDatePeriod", "lblDateCul"});
}

TEST(StatementTitleTest, NamesTheReportAndWhetherItIsOfProjects) {
    StatementRun run = OfOneRow(IncomeRun());
    run.host->texts[6096] = "&Income &statement";
    run.host->texts[2098] = "by &project";
    EXPECT_EQ(run.report->IReport_ReportTitle(), "Income statement");
    run.Properties().Put("ProjIds", "7");
    EXPECT_EQ(run.report->IReport_ReportTitle(), "Income statement - by project");
    EXPECT_THAT(run().Texts("PageHeader", "hdrTitle"),
                ElementsAre("Income statement - by project"));
    EXPECT_EQ(SheetRun().report->IReport_ReportTitle(), "30003");
}

TEST(IncomePeriodTest, CumulativeDatesOfTheHostAreReachedByName) {
    StatementRun run = OfOneRow(IncomeRun());
    for (const char* name : {"CumulDateFrom", "CumulDateTo"})
        EXPECT_EQ(run.Properties().Get(name).ToDate(), Date());
    run.Properties().Put("CumulDateFrom", Day("2024-05-01"));
    run.Properties().Put("CumulDateTo", Day("2025-02-09"));
    EXPECT_EQ(run.Properties().Get("CumulDateFrom").ToDate(), Day("2024-05-01"));
    EXPECT_EQ(run.Properties().Get("CumulDateTo").ToDate(), Day("2025-02-09"));
    run.Post(5'010, "2024-05-01", "2");
    run.Post(5'010, "2024-04-30", "4");
    EXPECT_THAT(run.Rows(), ElementsAre("5010|1.00|2.00"));
    EXPECT_THAT(Captions(run),
                ElementsAre("2025-02-01 3012 2025-03-31|2024-05-01 3012 2025-02-09"));
}

TEST(IncomePeriodTest, WithoutThemTheYearIsFoundAnewByEachRun) {
    StatementRun run = OfOneRow(IncomeRun());
    EXPECT_THAT(Captions(run),
                ElementsAre("2025-02-01 3012 2025-03-31|2025-01-01 3012 2025-03-31"));
    for (const char* name : {"CumulDateFrom", "CumulDateTo"})
        EXPECT_EQ(run.Properties().Get(name).ToDate(), Date()) << "not written back";
    run.report->IReport_DateTo(Day("2024-12-31"));
    EXPECT_THAT(Captions(run),
                ElementsAre("2025-02-01 3012 2024-12-31|2024-01-01 3012 2024-12-31"));
}

TEST(IncomePeriodTest, BothPeriodsAreCaptionedByTheLimitsThatTheyHave) {
    struct Limits {
        Date from, to;
        const char* caption;
    };
    const Limits kCases[] = {{Day("2025-02-01"), Day("2025-03-31"), "2025-02-01 From 2025-03-31"},
                             {Day("2025-02-01"), kOpenEnd, "2025-02-01 From 2025-06-30"},
                             {kOpenStart, Day("2025-03-31"), "From 2025-03-31"},
                             {kOpenStart, kOpenEnd, "All dates"}};
    StatementRun run = OfOneRow(IncomeRun());
    run.host->texts[3012] = "&From";
    run.host->texts[1376] = "All &dates";
    for (const auto& period : kCases) {
        for (const auto& cumulative : kCases) {
            run.report->IReport_DateFrom(period.from);
            run.report->IReport_DateTo(period.to);
            run.Properties().Put("CumulDateFrom", cumulative.from);
            run.Properties().Put("CumulDateTo", cumulative.to);
            EXPECT_THAT(Captions(run),
                        ElementsAre(std::string(period.caption) + "|" + cumulative.caption));
        }
    }
}

TEST(SheetHeaderTest, TellsTheClosingDate) {
    StatementRun run = OfOneRow(SheetRun());
    const auto caption = [&] { return run().Texts("PageHeader", "lblDateFromDateTo"); };
    EXPECT_THAT(caption(), ElementsAre("1776 2025-03-31"));
    run.report->IReport_DateTo(kOpenEnd);
    EXPECT_THAT(caption(), ElementsAre("1376"));
}

TEST(StatementRatesTest, AreNotedWhereThereAreAnyForSeveralCurrencies) {
    for (auto* make : {IncomeRun, SheetRun}) {
        StatementRun run = OfOneRow(make());
        const char* section = make == IncomeRun ? "GroupHeader1" : "PageHeader";
        const auto note = [&] { return Shown(run(), section, {"txtExchangeRate"}).at(0); };
        EXPECT_EQ(note(), "");
        run.Revalue();
        EXPECT_EQ(note(), "Rates in CAD: USD 1.2345; EUR 1.5555");
        dynamic_cast<IExchangeRates&>(*run.report).IExchangeRates_Reevaluate(false);
        EXPECT_EQ(note(), "Rates in CAD: USD 1.2345; EUR 1.5555");
        run.host->company.currency_info.records.resize(1);
        EXPECT_EQ(note(), "");
    }
}

TEST(IncomeProjectsTest, AreListedByCodeAndName) {
    StatementRun run = OfOneRow(IncomeRun());
    run.host->texts[5861] = "&Projects:";
    const std::vector<std::string> list{"lblProjects", "fldProjects"};
    EXPECT_THAT(Shown(run(), "GroupHeader1", list), ElementsAre("|"));
    EXPECT_EQ(run.host->database.Commands().size(), 1u);
    run.Properties().Put("ProjIds", "7,9");
    EXPECT_THAT(Shown(run(), "GroupHeader1", list), ElementsAre("Projects:|P7 - Shop, P9 - Mill"));
    EXPECT_EQ(run.Command().text, "SELECT * FROM ProjInfo WHERE InProjId IN(7,9)");
    run.Properties().Put("ProjIds", "");
    EXPECT_THAT(Shown(run(), "GroupHeader1", list), ElementsAre("|")) << "again";
}

TEST(IncomeHeaderTest, TakesALineForProjectsAndOneForRates) {
    StatementRun run = OfOneRow(IncomeRun());
    const auto places = [&] {
        const auto header = run().Of("GroupHeader1").at(0);
        return std::vector<Twips>{header["txtExchangeRate"].box.top, header["lblPeriod"].box.top,
                                  header["lblDateCul"].box.top, header.height};
    };
    const auto neither = places();
    const auto lower = [&](Twips rates, Twips rest) {
        return std::vector<Twips>{neither[0] + rates, neither[1] + rest, neither[2] + rest,
                                  neither[3] + rest};
    };
    run.Revalue();
    EXPECT_EQ(places(), lower(0, 220));
    run.Properties().Put("ProjIds", "7");
    EXPECT_EQ(places(), lower(220, 440));
    dynamic_cast<IExchangeRates&>(*run.report).IExchangeRates_ExchangeRates(nullptr);
    EXPECT_EQ(places(), lower(220, 220));
}

}  // namespace
}  // namespace varnel::test
