#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/engine/micro_report.h"
#include "tests/trial/trial_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

using Lines = std::vector<std::string>;

Lines Accounts(const CollectedBands& bands) { return bands.Texts("ghAccount", "txtGLAcctId"); }

Lines Forwards(const CollectedBands& bands) {
    return Shown(bands, "ghForward", {"txtBalanceForward", "lblBalanceForwardType"});
}

Lines LedgerLines(const CollectedBands& bands) {
    return Shown(
        bands, "Detail",
        {"txtSeqNo", "txtDetDate", "txtDebit", "txtCredit", "txtBalance", "lblBalanceType"});
}

Lines Subtotals(const CollectedBands& bands) {
    return Shown(bands, "gfAccount",
                 {"txtDebitTotal", "txtCreditTotal", "txtBalanceTotal", "lblBalanceTotalType"});
}

Lines GrandTotals(const CollectedBands& bands) {
    return Shown(bands, "ReportFooter",
                 {"txtDebitGrandTotal", "txtCreditGrandTotal", "txtBalanceGrandTotal",
                  "lblBalanceGrandTotalType"});
}

// Balances are worked out for many companies: see properties_test.cpp.
TEST(LedgerByAccountTest, PrintsEveryLineAlsoOfZero) {
    TrialRun run = LedgerRun();
    run.chart = {{1'010}};
    run.Post(1'010, "2025-01-31", "50");
    run.Post(1'010, "2025-02-01", "-90");
    run.Post(1'010, "2025-02-02", "0");
    const auto bands = run();
    EXPECT_THAT(LedgerLines(bands),
                ElementsAre("2|2025-02-01||90.00|40.00|CT", "3|2025-02-02|||40.00|CT"));
    EXPECT_EQ(run().bands, bands.bands) << "run again";
}

/// Checks both boxes or neither; tells which the dialog showed and which were checked before.
std::string Choose(TrialRun& run, bool include_zero, bool remarks) {
    std::string seen;
    run.host->use_dialog = [&](Form& form) {
        for (const CheckBox* box : form.CheckBoxes())
            seen += box->visible ? (box->checked ? 'x' : 'o') : '-';
        form.CheckBoxes()[0]->checked = include_zero;
        form.CheckBoxes()[1]->checked = remarks;
        form.CloseBox();
    };
    dynamic_cast<IReportConfig&>(*run.report).IReportConfig_ShowConfigurationScreen();
    return seen;
}

TEST(LedgerByAccountOptionsTest, AreBothAskedForAndKept) {
    TrialRun run = LedgerRun();
    EXPECT_EQ(Choose(run, true, false), "oo");
    EXPECT_EQ(Choose(run, false, true), "xo");
    EXPECT_EQ(Choose(run, false, false), "ox");
}

TEST(LedgerByAccountOptionsTest, AccountsWithNothingAreThereOnRequestHeadingsNever) {
    TrialRun run = LedgerRun();
    run.chart = {{1'000}, {1'010}, {1'020}};
    for (int group_type = 1; group_type <= 7; ++group_type)
        run.chart.push_back({.id = 2'000 + group_type, .group_type = group_type});
    run.Post(1'010, "2025-01-15", "5");
    run.Post(1'020, "2025-02-15", "2");
    run.Post(1'020, "2025-02-16", "-2");
    EXPECT_THAT(Accounts(run()), ElementsAre("1010", "1020"));
    Choose(run, true, false);
    const auto bands = run();
    EXPECT_THAT(Accounts(bands), ElementsAre("1000", "1010", "1020", "2002", "2004", "2006"));
    EXPECT_EQ(Forwards(bands).at(0), "0.00|DT");
    EXPECT_EQ(Subtotals(bands).at(0), "0.00|0.00|0.00|DT");
    EXPECT_EQ(Subtotals(bands).size(), 6u);
    EXPECT_EQ(bands.Of("Detail").size(), 2u);
}

TEST(LedgerByAccountOptionsTest, RemarksStandUnderTheirLineOnRequest) {
    TrialRun run = LedgerRun();
    run.chart = {{1'010}};
    for (int i = 0; i < 3; ++i) run.Post(1'010, "2025-02-15", "1");
    run.remarks = {{1, "Paid late"}, {2, ""}};
    for (const auto& line : run().Of("Detail")) EXPECT_FALSE(line["txtRemarks"].visible);
    Choose(run, false, true);
    const auto bands = run();
    EXPECT_THAT(Shown(bands, "Detail", {"txtRemarks"}), ElementsAre("Paid late", "", ""));
    const auto lines = bands.Of("Detail");
    EXPECT_GE(lines[0].height, lines[0]["txtRemarks"].box.Bottom());
    EXPECT_LT(lines[1].height, lines[0].height);
    EXPECT_EQ(lines[2].height, lines[1].height);
}

TEST(LedgerByAccountTest, KeysLeadToTheAccountAndToTheDocumentOfALine) {
    TrialRun run = LedgerRun();
    run.chart = {{1'010}, {kRetainedEarnings, 3}};
    for (const auto& account : run.chart) run.Post(account.id, "2025-02-15", "1");
    Lines keys;
    for (const auto& band : run().bands)
        for (const char* control : {"txtGLAcctId", "txtBalanceForward", "txtDetDate"})
            if (band.controls.count(control) > 0) keys.push_back(band[control].tag);
    EXPECT_THAT(keys, ElementsAre("1010", "1010", "INV|101", "", "", "INV|102"));
}

TEST(LedgerByAccountTest, AnAmountThatCannotBeReadLeavesOnlyItsOwnTotalsBlank) {
    TrialRun run = LedgerRun();
    run.chart = {{1'010}, {1'020}};
    for (const char* amount : {"5", "6", "7"}) run.Post(1'010, "2025-02-10", amount);
    run.Post(1'020, "2025-02-12", "8");
    run.Prepare();
    auto rows = run.AccountsWithLines();
    const auto column = std::find(rows.columns.begin(), rows.columns.end(), "DetAmnt");
    rows.rows[1][static_cast<std::size_t>(column - rows.columns.begin())] = "6,00";
    run.host->database.Answer("LEFT JOIN GLDet ON", rows);
    const auto bands = Collect(*run.report->IReport_ReportDesigner());
    EXPECT_THAT(Shown(bands, "Detail", {"txtDebit", "txtBalance", "lblBalanceType"}),
                ElementsAre("5.00|5.00|DT", "||", "7.00||", "8.00|8.00|DT"));
    EXPECT_THAT(Subtotals(bands), ElementsAre("|||", "8.00|0.00|8.00|DT"));
    EXPECT_THAT(GrandTotals(bands), ElementsAre("|||"));
    ASSERT_EQ(run.host->message_boxes.size(), 1u);
    EXPECT_THAT(run.host->message_boxes[0], HasSubstr("\"6,00\" is not an amount"));
}

/// What stands after that label, as "36.00 DT"; nothing where it is not printed.
std::string Beside(const engine::Page& page, const std::string& label) {
    const auto texts = engine::TextsOf(page.content);
    const auto found = std::find(texts.begin(), texts.end(), label);
    return found == texts.end() ? "" : found[1] + " " + found[2];
}

TEST(LedgerByAccountPagesTest, TheBalanceIsCarriedFromPageToPageOfTheAccount) {
    TrialRun run = LedgerRun();
    run.host->texts = {{30053, "Carried"}, {30054, "Brought"}};
    run.chart = {{1'010}, {1'020}};
    for (int line = 0; line < 150; ++line) run.Post(1'010, "2025-02-10", "-1");
    run.Post(1'020, "2025-02-10", "7");
    run.Prepare();
    const auto pages =
        engine::PagesOf(*run.report->IReport_ReportDesigner(), engine::PageSetup::Letter());
    int carried = 0;
    for (std::size_t i = 1; i < pages.size(); ++i) {
        const std::string brought = Beside(pages[i], "Brought");
        EXPECT_EQ(Beside(pages[i - 1], "Carried"), brought);
        if (brought.empty()) continue;  // 1020 begins here.
        ++carried;
        const auto texts = engine::TextsOf(pages[i - 1].content);
        const auto balance = brought.substr(0, brought.find(' '));
        EXPECT_EQ(brought, balance + " CT");
        EXPECT_EQ(std::count(texts.begin(), texts.end(), balance), 2) << "the last line's";
    }
    EXPECT_EQ(carried, 2);
    EXPECT_EQ(Beside(pages.front(), "Brought"), "");
    EXPECT_EQ(Beside(pages.back(), "Carried"), "");
}

TEST(LedgerByAccountPagesTest, LongRemarksWrapUnderTheDescription) {
    const auto bottom = [](const std::string& remark) {
        TrialRun run = LedgerRun();
        Choose(run, false, true);
        run.chart = {{1'010}};
        run.Post(1'010, "2025-02-10", "1");
        run.remarks = {{1, remark.c_str()}};
        run.Prepare();
        const auto pages =
            engine::PagesOf(*run.report->IReport_ReportDesigner(), engine::PageSetup::Letter());
        Twips lowest = 0;
        for (const auto& item : pages.at(0).content.Items())
            if (pages[0].content.Text(item).starts_with("w")) lowest = item.box.Bottom();
        return lowest;
    };
    EXPECT_GT(bottom(std::string(200, 'w')), bottom("w"));
}

}  // namespace
}  // namespace varnel::test
