#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/statements/statement_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

// Rows of the chart.

struct ChartLine {
    std::int32_t group_type;
    int depth;
    bool bold;
};

// What subtotals come to is worked out for many charts: see properties_test.cpp.
constexpr ChartLine kChart[] = {{3, 0, true},  {7, 0, true},  // A block of the second level.
                                {1, 1, false},                // One of the first level in it.
                                {2, 2, false}, {4, 2, false}, {0, 2, false}, {8, 2, false},
                                {3, 1, false}, {6, 1, false}, {5, 0, true},  {2, 0, false}};

StatementRun ChartRun() {
    StatementRun run = IncomeRun();
    run.IncludeZeroBalances();
    std::int32_t id = 5'100;
    for (const auto& line : kChart) run.chart.push_back({++id, 5, line.group_type});
    return run;
}

TEST(StatementRowTest, StandsInByItsDepthAndSubtotalsUnderARule) {
    const auto rows = ChartRun()().Of("Detail");
    ASSERT_EQ(rows.size(), std::size(kChart));
    const Twips right = rows[0]["txtDescr"].box.Right();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        SCOPED_TRACE("row " + std::to_string(i));
        const bool subtotal = kChart[i].group_type == 3 || kChart[i].group_type == 5;
        EXPECT_EQ(rows[i]["txtDescr"].box.left, 240 * kChart[i].depth);
        EXPECT_EQ(rows[i]["txtDescr"].box.Right(), right);
        for (const char* name : {"txtDescr", "txtTotal", "txtTotalCul"})
            EXPECT_EQ(rows[i][name].bold, kChart[i].bold) << name;
        for (const char* name : {"linTotal", "linTotalCul"})
            EXPECT_EQ(rows[i][name].visible, subtotal) << name;
        EXPECT_EQ(rows[i].height > 270, subtotal) << rows[i].height;
    }
}

TEST(StatementRowTest, OfTheBalanceSheetIsRuledOverSubtotalsAndBeginsEachSectionAtTheMargin) {
    StatementRun run = SheetRun();
    run.chart = {{1'090, 1, 5}, {1'100, 1, 7}, {1'110, 1, 1}, {1'120}, {2'010, 2}};
    run.Post(1'120, "2020-01-01", "12");
    run.Post(2'010, "2020-01-01", "12");
    const auto rows = run().Of("Detail");
    ASSERT_EQ(rows.size(), 5u);
    EXPECT_TRUE(rows[0]["lblLine"].visible);
    EXPECT_FALSE(rows[3]["lblLine"].visible);
    EXPECT_EQ(rows[3]["txtDescr"].box.left, 480);
    EXPECT_EQ(rows[4]["txtDescr"].box.left, 0);
}

TEST(StatementRowTest, AddsUpRoundedAmounts) {
    StatementRun run = IncomeRun();
    run.chart = {{4'010, 4}, {4'020, 4}, {4'030, 4}, {4'040, 4}, {4'090, 4, 3}};
    for (const std::int32_t id : {4'010, 4'020, 4'030}) run.Post(id, "2025-02-10", "-0.005");
    run.Post(4'040, "2025-02-10", "0.004");
    const auto bands = run();
    EXPECT_THAT(Rows(bands), ElementsAre("4010|0.01|0.01", "4020|0.01|0.01", "4030|0.01|0.01",
                                         "4040|0.00|0.00", "4090|0.03|0.03"));
    EXPECT_THAT(Shown(bands, "gfAcctType", {"txtTypeTotal"}), ElementsAre("0.03"));
}

TEST(StatementOptionTest, TheDialogOpensWithTheChoiceOfTheTimeBefore) {
    for (auto* make : {IncomeRun, SheetRun}) {
        StatementRun run = make();
        run.IncludeZeroBalances();
        bool checked = false;
        run.host->use_dialog = [&](Form& form) {
            checked = form.CheckBoxes()[0]->checked;
            form.CloseBox();
        };
        dynamic_cast<IReportConfig&>(*run.report).IReportConfig_ShowConfigurationScreen();
        EXPECT_TRUE(checked);
    }
}

TEST(StatementRowTest, APostingRowWithoutAnAccountAsksForNoBalance) {
    for (auto* make : {IncomeRun, SheetRun}) {
        StatementRun run = make();
        run.chart = {{0, make == IncomeRun ? 4 : 1}};
        EXPECT_THAT(run.Rows(), testing::IsEmpty());
        run.IncludeZeroBalances();
        const auto bands = run();
        EXPECT_THAT(Shown(bands, "Detail", {"txtTotal"}), ElementsAre("0.00"));
        EXPECT_EQ(bands.Of("Detail")[0]["txtTotal"].tag, "");
        EXPECT_EQ(std::ranges::count(run.host->calls.Names(), "StatementBalance"), 0);
        EXPECT_THAT(run.host->message_boxes, testing::IsEmpty());
    }
}

}  // namespace
}  // namespace varnel::test
