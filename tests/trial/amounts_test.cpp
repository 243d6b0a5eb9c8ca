#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/trial/trial_run.h"

namespace varnel {
namespace {

using test::GifiRun;
using test::kCurrentEarnings;
using test::kRetainedEarnings;
using test::kUnrealized;
using test::Shown;
using test::SummaryRun;
using test::TrialRun;
using testing::ElementsAre;

// Amounts of accounts, in the summary and in the GIFI report.

using Lines = std::vector<std::string>;

Lines SummaryLines(TrialRun& run) {
    return Shown(run(), "Detail", {"txtAcctId", "txtDebit", "txtCredit"});
}

Lines GifiLines(TrialRun& run) { return Shown(run(), "Detail", {"txtDescr", "txtAmount"}); }

/// 1010 against income of four moments: 100 and 20 in the year before, 3 before the period, 0.50 in
/// it.
void PostIncome(TrialRun& run) {
    run.chart = {{1'010}, {kRetainedEarnings, 3}, {4'000, 4}};
    const std::pair<const char*, const char*> sales[] = {
        {"2024-03-01", "100"}, {"2024-07-01", "20"}, {"2025-01-10", "3"}, {"2025-03-15", "0.5"}};
    for (const auto& [date, amount] : sales) {
        run.Post(1'010, date, amount);
        run.Post(4'000, date, (std::string("-") + amount).c_str());
    }
    run.Post(kRetainedEarnings, "2024-05-01", "-7");
    run.Post(1'010, "2024-05-01", "7");
    run.Post(1'010, "2025-04-01", "1000");  // After the period.
}

TEST(TrialAmountTest, OfGifiAlwaysCountsFromTheYearThatWasAskedForWithTheDate) {
    TrialRun run = GifiRun();
    PostIncome(run);
    run.report->IReport_DateFrom(Date::ParseIso("2024-06-01"));
    run.host->company.fiscal_year_starts = {Date::ParseIso("2025-03-01")};
    EXPECT_THAT(GifiLines(run),
                ElementsAre("1010 - Account 1010|130.50", "3100 - Account 3100|-127.00",
                            "4000 - Account 4000|-3.50"));
}

TEST(TrialAmountTest, AYearThatCouldNotBeAskedForWithTheDateIsAskedForAtTheStart) {
    TrialRun run = GifiRun();
    PostIncome(run);
    run.report->IReport_Application(nullptr);
    run.report->IReport_DateTo(run.to);
    run.report->IReport_Application(run.host);
    EXPECT_EQ(GifiLines(run).back(), "4000 - Account 4000|-3.50");
}

/// 1030 has 100 USD booked at 130, 1040 10 EUR booked at 15; 6000 stands behind the unrealized
/// account.
void PostForeign(TrialRun& run) {
    run.chart = {{1'030, 1, 2}, {1'040, 1, 3}, {kUnrealized, 5}, {6'000, 1, 2}};
    run.Post(1'030, "2025-01-10", "130", "100", 2);
    run.Post(1'040, "2025-02-10", "15", "10", 3);
    run.Post(kUnrealized, "2025-02-11", "-7");
    run.Post(6'000, "2025-02-11", "1", "2", 2);
}

TEST(TrialAmountTest, RevaluedAccountsAreToTheCentAndTheUnrealizedOneCarriesThoseBeforeIt) {
    TrialRun run = SummaryRun();
    PostForeign(run);
    EXPECT_THAT(SummaryLines(run),
                ElementsAre("1030|130.00|", "1040|15.00|", "5900||7.00", "6000|1.00|"));
    run.Revalue();
    // 123.45 - 130 + 15.56 - 15 = -5.99; 6000 comes too late.
    const Lines revalued{"1030|123.45|", "1040|15.56|", "5900|5.99|", "6000|2.47|"};
    EXPECT_EQ(SummaryLines(run), revalued);
    EXPECT_EQ(SummaryLines(run), revalued) << "again";
}

TEST(TrialAmountTest, OfGifiDependsOnTheOrderOfCodes) {
    TrialRun run = GifiRun();
    PostForeign(run);
    run.Revalue();
    run.chart = {{1'040, 1, 3}, {kUnrealized, 5}, {1'030, 1, 2}};
    EXPECT_THAT(GifiLines(run),
                ElementsAre("1040 - Account 1040|15.56", "5900 - Account 5900|-0.56",
                            "1030 - Account 1030|123.45"));
}

TEST(TrialAmountTest, KeysLeadToTheAccountButFromEarnings) {
    for (TrialRun run : {SummaryRun(), GifiRun()}) {
        run.chart = {{1'010}, {kRetainedEarnings, 3}, {kCurrentEarnings, 3}, {kUnrealized, 5}};
        for (const auto& account : run.chart) run.Post(account.id, "2025-03-01", "1");
        std::vector<std::string> keys;
        for (const auto& band : run().Of("Detail")) {
            keys.push_back(band["txtDescr"].tag);
            for (const char* name : {"txtAcctId", "txtDebit", "txtCredit", "txtAmount"})
                EXPECT_TRUE(band.controls.count(name) == 0 || band[name].tag == keys.back());
        }
        EXPECT_THAT(keys, ElementsAre("1010", "", "", "GLUnrealized|5900"));
    }
}

// The summary's own.

TEST(SummaryTest, ShowsForeignBalancesWithTheirCode) {
    TrialRun run = SummaryRun();
    run.chart = {{1'010}, {1'030, 1, 2}, {1'031, 1, 2}, {1'040, 1, 1}, {kRetainedEarnings, 3, 2}};
    run.Post(1'030, "2025-03-01", "1600", "1234", 2);
    for (const std::int32_t account : {1'010, 1'031, 1'040}) run.Post(account, "2025-03-01", "5");
    run.Post(kRetainedEarnings, "2025-03-01", "5", "4", 2);
    const std::vector<std::string> columns{"txtAcctId", "txtCurrency", "txtCurrencyCode"};
    EXPECT_EQ(Shown(run(), "Detail", columns).at(1), "1030||") << "not asked for";
    run.report->IReport_DisplayForeignCurrency(true);
    EXPECT_THAT(Shown(run(), "Detail", columns),
                ElementsAre("1010||", "1030|1,234.00 USD|USD", "1031||", "1040||", "3100||"));
}

struct ColumnCase {
    bool numbers, foreign;
    Twips left, right;
};

TEST(SummaryTest, TheDescriptionTakesTheRoomThatOtherColumnsLeave) {
    constexpr ColumnCase kCases[] = {
        {true, false, 1'260, 7'700}, {true, true, 1'260, 5'760}, {false, true, 0, 5'760}};
    TrialRun run = SummaryRun();
    run.chart = {{1'010}};
    run.Post(1'010, "2025-03-01", "5");
    for (const auto& tried : kCases) {
        run.host->company.settings["UseAccountNumbers"] = tried.numbers ? "True" : "False";
        run.report->IReport_DisplayForeignCurrency(tried.foreign);
        const auto bands = run();
        const auto header = bands.Of("PageHeader").at(0);
        const auto line = bands.Of("Detail").at(0);
        for (const Box& box : {line["txtDescr"].box, header["lblDescrCap"].box}) {
            EXPECT_EQ(box.left, tried.left);
            EXPECT_EQ(box.Right(), tried.right);
        }
        EXPECT_EQ(line["txtAcctId"].visible, tried.numbers);
        EXPECT_EQ(header["lblCodeCap"].visible, tried.numbers);
        EXPECT_EQ(header["lblCurrency"].visible, tried.foreign);
    }
}

// The GIFI report's own.

TEST(GifiTest, ACodeOfZerosPrintsItsTotalAndCounts) {
    TrialRun run = GifiRun();
    run.host->texts[7630] = "codes";
    run.chart = {{1'010, 1, 0, false, "100"},
                 {1'020, 1, 0, false, "100"},
                 {1'030, 1, 0, false, "100"},
                 {1'040, 1, 0, false, "200"}};
    run.Post(1'010, "2025-03-01", "-1500");
    run.Post(1'030, "2025-03-01", "0.25");
    const auto bands = run();
    EXPECT_THAT(Shown(bands, "ghGIFI", {"txtGIFIAcctId"}), ElementsAre("100", "200"));
    EXPECT_THAT(Shown(bands, "Detail", {"txtDescr", "txtAmount"}),
                ElementsAre("1010 - Account 1010|-1,500.00", "1030 - Account 1030|0.25"));
    EXPECT_THAT(Shown(bands, "gfGIFI", {"txtTotal"}), ElementsAre("-1,499.75", "0.00"));
    EXPECT_THAT(bands.Texts("ReportFooter", "txtCount"), ElementsAre("2 codes"));
}

TEST(GifiTest, WithoutAccountNumbersTheDescriptionStandsAlone) {
    TrialRun run = GifiRun();
    run.host->company.settings["UseAccountNumbers"] = "False";
    run.chart = {{1'010}};
    run.Post(1'010, "2025-03-01", "1");
    EXPECT_THAT(GifiLines(run), ElementsAre("Account 1010|1.00"));
}

}  // namespace
}  // namespace varnel
