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

constexpr ForeignCase kConditions[] = {{true, true, true, true},
                                       {false, true, true, false},
                                       {true, false, true, false},
                                       {true, true, false, false}};

TEST(ForeignAmountsTest, AreShownWhenAllThreeConditionsHold) {
    for (const auto& [several_currencies, flag, foreign_line, shown] : kConditions) {
        JournalRun run;
        if (!several_currencies) run.host->company.currency_info.records.resize(1);
        run.report->IReport_DisplayForeignCurrency(flag);
        const auto line =
            run({foreign_line ? InDollars("135", "100") : Amount("135")}).Of("Detail").at(0);
        EXPECT_EQ(line["txtForeign"].visible, shown);
        EXPECT_EQ(line["txtForeignCode"].visible, shown);
        EXPECT_EQ(line.Text("txtDebit"), "135.00");
        EXPECT_THAT(run.host->message_boxes, testing::IsEmpty());
        if (!shown) continue;
        EXPECT_EQ(line.Text("txtForeign"), "100.00");
        EXPECT_EQ(line.Text("txtForeignCode"), "USD");
        EXPECT_EQ(line["txtForeign"].value, ControlValue(Currency::FromWhole(100)));
    }
}

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
    constexpr const char* kColumns[] = {"txtAccount", "txtProject", "txtDebit", "txtCredit",
                                        "txtForeign"};
    for (std::size_t i = 1; i < std::size(kColumns); ++i)
        EXPECT_EQ(PlaceOf(bands, "Detail", kColumns[i]).left -
                      PlaceOf(bands, "Detail", kColumns[i - 1]).Right(),
                  60)
            << kColumns[i];
    EXPECT_GT(PlaceOf(bands, "Detail", "txtAccount").width, 0);
    constexpr std::tuple<const char*, const char*, const char*> kUnder[] = {
        {"PageHeader", "lblDebitCap", "txtDebit"},
        {"PageHeader", "lblCreditCap", "txtCredit"},
        {"PageHeader", "lblForeignCap", "txtForeign"},
        {"gfSeqNo", "txtDebitTotal", "txtDebit"},
        {"gfSeqNo", "txtCreditTotal", "txtCredit"},
        {"ReportFooter", "txtDebitGrandTotal", "txtDebit"},
        {"ReportFooter", "txtCreditGrandTotal", "txtCredit"}};
    for (const auto& [section, control, column] : kUnder)
        EXPECT_EQ(PlaceOf(bands, section, control).Right(),
                  PlaceOf(bands, "Detail", column).Right())
            << control;
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
