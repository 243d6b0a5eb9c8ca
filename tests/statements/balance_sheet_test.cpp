#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/statements/statement_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

using Lines = std::vector<std::string>;

Lines Totals(const CollectedBands& bands) {
    return Shown(bands, "gfAcctType", {"lblTypeCap", "txtTypeTotal"});
}

std::string Closing(const CollectedBands& bands) {
    return Shown(bands, "ReportFooter", {"lblGTot", "txtTotalPassCap"}).at(0);
}

/// Assets of 100, owed 30, equity as given.
StatementRun SmallSheet(const char* equity) {
    StatementRun run = SheetRun();
    run.chart = {{1'010, 1}, {2'010, 2}, {3'010, 3}};
    run.Post(1'010, "2024-05-01", "100");
    run.Post(2'010, "2024-05-01", "-30");
    run.Post(3'010, "2024-05-01", equity);
    return run;
}

TEST(SheetSectionTest, AssetsStandAgainstLiabilitiesAndEquity) {
    StatementRun run = SmallSheet("-70");
    const auto bands = run();
    EXPECT_THAT(bands.Texts("ghAcctType", "lblAcctType"), ElementsAre("2666", "2668", "2670"));
    EXPECT_THAT(Totals(bands), ElementsAre("2667|100.00", "2669|30.00", "2671|70.00"));
    EXPECT_EQ(Closing(bands), "2672|100.00");
    std::vector<bool> ruled;
    for (const auto& band : bands.Of("gfAcctType")) {
        ruled.push_back(band["linTypeEnd"].visible);
        EXPECT_EQ(band["linTypeEnd2"].visible, ruled.back());
    }
    EXPECT_THAT(ruled, ElementsAre(true, false, false));
    EXPECT_EQ(run().bands, bands.bands) << "again";
}

// 30 is then what the difference begins with, and no part of the total.
TEST(SheetSectionTest, IsToldByTheCaptionOverIt) {
    StatementRun run = SmallSheet("-30");
    run.FilterSegments("3");
    EXPECT_EQ(Closing(run()), "8324|60.00");
    run.host->texts[2666] = "Accounts";
    run.host->texts[2668] = "Acc&ounts";
    const auto bands = run();
    EXPECT_THAT(Totals(bands), ElementsAre("2667|100.00", "2667|30.00", "2671|30.00"));
    EXPECT_EQ(Closing(bands), "2672|30.00");
}

struct Balanced {
    const char* equity;
    const char* segments;
    bool also_none;
    const char* closing;
};

TEST(SheetBalanceTest, IsDoubtedToTheCentUnderASegmentFilterOnly) {
    constexpr Balanced kCases[] = {{"-70.01", "", false, "2672|100.01"},
                                   {"-70", "3", false, "2672|100.00"},
                                   {"-70.01", "3", false, "8324|100.01"},
                                   {"-69.99", "3", true, "8324|99.99"},
                                   {"-69.99", "", true, "8324|99.99"}};
    for (const auto& tried : kCases) {
        StatementRun run = SmallSheet(tried.equity);
        run.FilterSegments(tried.segments, tried.also_none);
        EXPECT_EQ(Closing(run()), tried.closing);
    }
}

TEST(SheetBalanceTest, IsNotDoubtedForASectionThatIsNoneOfASheet) {
    StatementRun run = SmallSheet("-80");
    run.chart.insert(run.chart.begin() + 1, {9'010, 9});
    run.Post(9'010, "2024-05-01", "10");
    run.FilterSegments("3");
    EXPECT_EQ(Closing(run()), "2672|");
}

TEST(SheetBalanceTest, ADoubtDoesNotOutliveItsRun) {
    StatementRun run = SmallSheet("-69.99");
    run.FilterSegments("3");
    EXPECT_EQ(Closing(run()), "8324|99.99");
    run.Post(3'010, "2024-05-02", "-0.01");
    EXPECT_EQ(Closing(run()), "2672|100.00");
    run.chart.clear();
    EXPECT_EQ(Closing(run()), "2672|0.00");
}

/// 100 USD booked at 120 on 1200, worth 123.45, and 130 of equity for it and for 10 CAD.
StatementRun ForeignSheet() {
    StatementRun run = SheetRun();
    run.chart = {{1'010, 1, 2, 1}, {1'200, 1, 2, 2}, {3'010, 3}};
    run.Post(1'010, "2025-01-10", "10", "80");
    run.Post(1'200, "2025-01-10", "120", "100");
    run.Post(3'010, "2025-01-10", "-130");
    run.host->company.account_params["CustGLAR"] = 1'200;
    return run;
}

TEST(SheetAdjustmentTest, IsCarriedToEquityOnceAndShownOnlyWhereThereIsOne) {
    StatementRun run = ForeignSheet();
    const auto plain = run();
    EXPECT_THAT(plain.Of("GroupFooter1"), testing::IsEmpty());
    EXPECT_THAT(Totals(plain), ElementsAre("2667|130.00", "2671|130.00"));
    run.Revalue();
    const auto revalued = run();
    EXPECT_THAT(Rows(revalued), ElementsAre("1010|10.00", "1200|123.45", "3010|130.00"));
    EXPECT_THAT(Shown(revalued, "GroupFooter1", {"txtProfitLoos"}), ElementsAre("3.45"));
    EXPECT_THAT(Totals(revalued), ElementsAre("2667|133.45", "2671|133.45"));
    EXPECT_EQ(Closing(revalued), "2672|133.45");
    EXPECT_EQ(run().bands, revalued.bands) << "again";
    run.Post(1'200, "2025-01-11", "3.45");
    EXPECT_THAT(run().Of("GroupFooter1"), testing::IsEmpty()) << "booked at what it is worth";
}

}  // namespace
}  // namespace varnel::test
