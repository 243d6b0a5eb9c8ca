#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/journal/journal_run.h"

namespace varnel::test {
namespace {

JournalLine InDollars(const char* home, const char* foreign) {
    auto line = Amount(home);
    line.currency_id = 2;
    line.currency_code = "USD";
    line.foreign = Currency::Parse(foreign);
    return line;
}

struct ForeignCase {
    bool several_currencies;
    bool flag;
    bool foreign_line;
    bool shown;
};

class ForeignAmountTest : public testing::TestWithParam<ForeignCase> {};

TEST_P(ForeignAmountTest, IsShownWhenAllThreeConditionsHold) {
    const auto& [several_currencies, flag, foreign_line, shown] = GetParam();
    JournalRun run;
    if (!several_currencies) run.host->company.currency_info.records.resize(1);
    run.report->IReport_DisplayForeignCurrency(flag);
    const auto bands = run({foreign_line ? InDollars("135", "100") : Amount("135")});
    const auto line = bands.Of("Detail").at(0);
    EXPECT_EQ(line["txtForeign"].visible, shown);
    EXPECT_EQ(line["txtForeignCode"].visible, shown);
    if (shown) {
        EXPECT_EQ(line.Text("txtForeign"), "100.00");
        EXPECT_EQ(line.Text("txtForeignCode"), "USD");
        EXPECT_EQ(line["txtForeign"].value, ControlValue(Currency::FromWhole(100)));
    }
    EXPECT_EQ(line.Text("txtDebit"), "135.00");
    EXPECT_THAT(run.host->message_boxes, testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Conditions, ForeignAmountTest,
                         testing::Values(ForeignCase{true, true, true, true},
                                         ForeignCase{false, true, true, false},
                                         ForeignCase{true, false, true, false},
                                         ForeignCase{true, true, false, false},
                                         ForeignCase{false, false, false, false}));

TEST(ForeignAmountsTest, AreInTheFormatOfTheLinesOwnCurrency) {
    JournalRun run;
    run.host->company.currency_info.records[1].decimals = 0;
    run.report->IReport_DisplayForeignCurrency(true);
    const auto bands = run({InDollars("-135", "-1500"), Amount("135"), InDollars("5", "4")});
    const auto lines = bands.Of("Detail");
    EXPECT_EQ(lines[0].Text("txtForeign"), "-1,500");
    EXPECT_EQ(lines[0].Text("txtCredit"), "135.00");
    EXPECT_FALSE(lines[1]["txtForeign"].visible);
    EXPECT_EQ(lines[2].Text("txtForeign"), "4");
    EXPECT_TRUE(lines[2]["txtForeign"].visible);
}

Box PlaceOf(const CollectedBands& bands, const char* section, const char* control) {
    return bands.Of(section).at(0)[control].box;
}

TEST(ForeignAmountsTest, MakeTheAmountColumnsMoveKeepingGapsOf60Twips) {
    JournalRun run;
    run.report->IReport_DisplayForeignCurrency(true);
    const auto bands = run({InDollars("135", "100")});
    const Box foreign = PlaceOf(bands, "Detail", "txtForeign");
    const Box credit = PlaceOf(bands, "Detail", "txtCredit");
    const Box debit = PlaceOf(bands, "Detail", "txtDebit");
    const Box project = PlaceOf(bands, "Detail", "txtProject");
    const Box account = PlaceOf(bands, "Detail", "txtAccount");
    EXPECT_EQ(foreign.left - credit.Right(), 60);
    EXPECT_EQ(credit.left - debit.Right(), 60);
    EXPECT_EQ(debit.left - project.Right(), 60);
    EXPECT_EQ(project.left - account.Right(), 60);
    EXPECT_GT(account.width, 0);

    const struct {
        const char* section;
        const char* debit;
        const char* credit;
    } rows[] = {{"PageHeader", "lblDebitCap", "lblCreditCap"},
                {"gfSeqNo", "txtDebitTotal", "txtCreditTotal"},
                {"ReportFooter", "txtDebitGrandTotal", "txtCreditGrandTotal"}};
    for (const auto& row : rows) {
        EXPECT_EQ(PlaceOf(bands, row.section, row.debit).Right(), debit.Right()) << row.section;
        EXPECT_EQ(PlaceOf(bands, row.section, row.credit).Right(), credit.Right()) << row.section;
    }
    EXPECT_EQ(PlaceOf(bands, "PageHeader", "lblForeignCap").Right(), foreign.Right());
    EXPECT_TRUE(bands.Of("PageHeader").at(0)["lblForeignCap"].visible);
}

TEST(ForeignAmountsTest, LeaveTheColumnsWhereTheyWereInARunWithoutThem) {
    JournalRun run;
    const std::vector lines{InDollars("135", "100")};
    const auto plain = run(lines);
    run.report->IReport_DisplayForeignCurrency(true);
    const auto moved = run(lines);
    const auto moved_again = run(lines);
    run.report->IReport_DisplayForeignCurrency(false);
    EXPECT_EQ(run(lines).bands, plain.bands);
    EXPECT_EQ(moved_again.bands, moved.bands);
    EXPECT_LT(PlaceOf(moved, "Detail", "txtDebit").left, PlaceOf(plain, "Detail", "txtDebit").left);
    EXPECT_FALSE(plain.Of("PageHeader").at(0)["lblForeignCap"].visible);
}

}  // namespace
}  // namespace varnel::test
