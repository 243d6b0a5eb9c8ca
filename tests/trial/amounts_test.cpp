#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/trial/trial_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

// Amounts of accounts, in the summary and in the GIFI report.

using Lines = std::vector<std::string>;

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

TEST(GifiTest, WithoutAccountNumbersTheDescriptionStandsAlone) {
    TrialRun run = GifiRun();
    run.host->company.settings["UseAccountNumbers"] = "False";
    run.chart = {{1'010}};
    run.Post(1'010, "2025-03-01", "1");
    EXPECT_THAT(GifiLines(run), ElementsAre("Account 1010|1.00"));
}

}  // namespace
}  // namespace varnel::test
