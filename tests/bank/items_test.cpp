#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/bank/bank_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

const Variant kNull = Variant::Null{};

// What the two reconciliations share.
class ReconciliationTest : public testing::TestWithParam<bool> {
  protected:
    ~ReconciliationTest() override { EXPECT_EQ(run.host->message_boxes.size(), told); }
    BankRun run{GetParam()};
    std::size_t told = 0;
};

INSTANTIATE_TEST_SUITE_P(Both, ReconciliationTest, testing::Bool(),
                         [](const auto& tried) { return tried.param ? "current" : "saved"; });

TEST_P(ReconciliationTest, AnItemShowsItsAbsoluteAmountAndTheKeyOfItsDocument) {
    run.items = {{3, Money("-1234.5"), kNull, Day("2025-02-17")}, {4, Money("20"), Money("9")}};
    const auto bands = run();
    EXPECT_THAT(Shown(bands, "Detail", {"txtDetDate", "txtDetRef", "txtDetDesc", "txtAmount"}),
                ElementsAre("2025-02-17|R1|Item 1|1,234.50", "2025-02-10|R2|Item 2|20.00"));
    const auto first = bands.Of("Detail")[0];
    for (const char* control : {"txtDetDate", "txtDetRef", "txtDetDesc", "txtAmount"})
        EXPECT_EQ(first[control].tag, "INV|1") << control;
    EXPECT_EQ(first["txtAmount"].value, ControlValue(Currency::Parse("1234.5")));
    EXPECT_EQ(first["txtDetDate"].value, ControlValue(Date::ParseIso("2025-02-17")));
}

TEST_P(ReconciliationTest, ReferenceAndDescriptionMayBeNumbersAndDates) {
    run.items = {{3, Money("-1")}};
    const std::pair<Variant, const char*> kNotes[] = {
        {5195, "5195"}, {Money("12.5"), "12.5"}, {Day("2025-01-31"), "2025-01-31"}, {kNull, ""}};
    for (const auto& [note, shown] : kNotes) {
        run.note = note;
        EXPECT_THAT(Shown(run(), "Detail", {"txtDetRef", "txtDetDesc"}),
                    ElementsAre(std::string(shown) + "|" + shown));
    }
}

TEST_P(ReconciliationTest, AForeignAccountShowsForeignAmountsInItsOwnCurrency) {
    run.Properties().Put("ExConcilAcctId", kYenBank);
    run.items = {{3, Money("-12.34"), Money("-1200")},
                 {3, Money("-5.67"), Money("-34")},
                 {4, Money("8"), Money("777")}};
    const auto bands = run();
    EXPECT_THAT(bands.Texts("Detail", "txtAmount"), ElementsAre("1,200", "34", "777"));
    EXPECT_THAT(bands.Texts("gfTransactionType", "txtGroupTotal"), ElementsAre("1,234", "777"));
    EXPECT_THAT(bands.Texts("ReportFooter", "txtDif"), ElementsAre("0"));
    EXPECT_THAT(bands.Texts("PageHeader", "txtCurrency"), ElementsAre("JPY"));
}

TEST_P(ReconciliationTest, AnAmountOfNothingIsBlankAndWhatTheRowBeforeShowedIsGone) {
    run.Properties().Put("ExConcilAcctId", kYenBank);
    run.items = {{3, Money("-5"), Money("-50")},
                 {3, Money("-4"), kNull, kNull},
                 {3, Money("-3"), Money("0")}};
    const auto bands = run();
    EXPECT_THAT(Shown(bands, "Detail", {"txtDetDate", "txtAmount"}),
                ElementsAre("2025-02-10|50", "|", "2025-02-10|"));
    EXPECT_THAT(bands.Texts("gfTransactionType", "txtGroupTotal"), ElementsAre("50"));
    EXPECT_EQ(bands.Of("Detail")[1]["txtAmount"].value, ControlValue());
}

TEST_P(ReconciliationTest, GroupsHaveTheirCaptionsAndTotals) {
    for (const auto& [text, caption] : std::map<std::int16_t, const char*>{
             {3043, "Dep"}, {3044, "Chq"}, {3045, "Open dep"}, {3046, "Open chq"}})
        run.host->texts[text] = caption;
    run.IncludeReconciled();
    run.items = {{1, Money("-2")},    {1, Money("-1")}, {2, Money("4")},
                 {3, Money("-8.25")}, {4, Money("16")}, {4, Money("32.5")}};
    for (const char* which : {"first run", "second run"}) {
        const auto bands = run();
        EXPECT_THAT(bands.Texts("ghTransactionType", "lblTransactionType"),
                    ElementsAre("Chq", "Dep", "Open chq", "Open dep"))
            << which;
        EXPECT_THAT(Shown(bands, "gfTransactionType", {"lblGroupTotal", "txtGroupTotal"}),
                    ElementsAre("30026|3.00", "30026|4.00", "30026|8.25", "30026|48.50"))
            << which;
    }
}

TEST_P(ReconciliationTest, TheSummaryShowsTheFiguresThatTheHostSetAndTheAdjustedBalance) {
    run.host->texts[3045] = "Open deposits";
    run.host->texts[3046] = "Open cheques";
    run.SetFigures({"1000", "200.5", "30.25", "1111", "-59.25"});
    run.items = {{3, Money("-7")}};
    const auto bands = run();
    const auto line = [&](const char* label, const char* amount) {
        return Shown(bands, "ReportFooter", {label, amount}).at(0);
    };
    EXPECT_EQ(line("lblEndBal", "txtEndBal"), "30020|1,000.00");
    EXPECT_EQ(line("lblDepCirc", "txtDepCirc"), "Open deposits: |200.50");
    EXPECT_EQ(line("lblChqCirc", "txtChqCirc"), "Open cheques: |30.25");
    EXPECT_EQ(line("lblAdjustedBal", "txtAdjustedBal"), "30021|1,170.25");
    EXPECT_EQ(line("lblGLBal", "txtGLBal"), "30022|1,111.00");
    EXPECT_EQ(line("lblDif", "txtDif"), "30023|-59.25");
}

TEST_P(ReconciliationTest, TheHeaderShowsTitleAccountAndDateAsTheHostSetThem) {
    EXPECT_EQ(run.report->IReport_ReportTitle(), GetParam() ? "30009" : "30008");
    EXPECT_EQ(run.report->IReport_DateDisplayOptions(), DateDisplay::kNone);
    run.Properties().Put("concdate", Day("2025-02-28"));
    EXPECT_THAT(
        Shown(run(), "PageHeader",
              {"hdrTitle", "lblConcilAcct", "txtConcilAcctId", "lblConcDate", "txtConcDate"}),
        ElementsAre(run.report->IReport_ReportTitle() + "|30025|1010-00|30024|2025-02-28"));
    EXPECT_EQ(run.Properties().Get("ConcilAcctId").ToText(), "1010-00");
    EXPECT_THAT(run().Texts("PageHeader", "txtCurrency"), ElementsAre("CAD"));
    run.host->company.currency_info.records.resize(1);
    EXPECT_THAT(run().Texts("PageHeader", "txtCurrency"), ElementsAre(""));
    EXPECT_EQ(run.Properties().Get("ExConcilAcctId").ToInteger32(), kBank);
    EXPECT_EQ(run.Properties().Get("ConcDate").ToDate(), Date::ParseIso("2025-02-28"));
}

TEST_P(ReconciliationTest, ACustomFilterTakesNothingAway) {
    run.items = {{3, Money("-7")}, {4, Money("8")}};
    const CollectedBands all = run();
    run.Filter("DetAmnt > 0|DetAmnt");
    EXPECT_EQ(run().bands, all.bands);
}

TEST_P(ReconciliationTest, AnUnknownAccountIsToldOnceAndNothingIsListed) {
    run.Properties().Put("ExConcilAcctId", kYenBank);
    run.SetFigures({"5.5", "0", "0", "5.5", "0"});
    run.items = {{3, Money("-7"), Money("-700")}, {4, Money("8"), Money("800")}};
    run();
    run.Properties().Put("ExConcilAcctId", 77);
    const auto bands = run();
    EXPECT_TRUE(bands.Of("Detail").empty());
    EXPECT_THAT(Shown(bands, "ReportFooter", {"txtEndBal", "txtAdjustedBal"}), ElementsAre("|"));
    told = 1;
}

}  // namespace
}  // namespace varnel::test
