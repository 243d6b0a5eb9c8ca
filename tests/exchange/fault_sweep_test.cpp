#include "tests/support/fault_sweep.h"

#include "tests/exchange/realized_run.h"
#include "tests/exchange/unrealized_detail_run.h"
#include "tests/exchange/unrealized_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

// Each has run once before, over other amounts, so that leftovers would show.

auto Realized() {
    RunOver<RealizedRun, PaymentRow> run;
    run.rows = {Paid("7000"), Paid("70", 2)};
    run();
    run.rows = {Paid("1000"), Paid("400"), Paid("600", 2), Paid("150000", 2, 3)};
    return run;
}

auto Unrealized() {
    RunOver<UnrealizedRun, ForeignRow> run;
    run.rows = {{1'060, 2, "7000", "1"}};
    run();
    run.rows = {{1'065, 3, "100", "150"},
                {1'060, 2, "1000", "1300"},
                {1'060, 2, "-200", "-270"},
                {1'200, 2, "10", "13"}};
    return run;
}

auto UnrealizedDetail() {
    RunOver<DetailRun, ForeignLine> run;
    run.Forward({{"1", "1"}});
    run.rows = {Line("7000", "1")};
    run();
    run.Forward({{"1000", "1250"}, {"500", "735", 3}});
    run.rows = {Line("100", "130"), Line("-40", "-52"), Line("7", "9")};
    return run;
}

TEST(ExchangeFaultSweepTest, OfTheRealizedReportTellsEveryFailureAndShowsNoWrongFigure) {
    const auto right = SweepFaults(
        {"dsrRealizedExchProfitloss",
         {{"Detail", {"txtPmtDate", "txtExchangeRate", "txtPmtRate", "txtPaid", "txtGain"}},
          {"ghCurrency", {"txtCurrency"}},
          {"ghCurrPmtType", {"txtAccount"}},
          {"gfCurrPmtType", {"txtPaidTotal", "txtGainTotal"}},
          {"ReportFooter", {"txtGainGrandTotal"}}}},
        Realized);
    // 0.0225 on each dollar and yen.
    EXPECT_THAT(Shown(right, "gfCurrPmtType", {"txtPaidTotal", "txtGainTotal"}),
                ElementsAre("1,400.00|31.50", "600.00|-13.50", "150,000.00|-3,375.00"));
    EXPECT_THAT(right.Texts("ReportFooter", "txtGainGrandTotal"), ElementsAre("-3,357.00"));
}

TEST(ExchangeFaultSweepTest, OfTheUnrealizedReportTellsEveryFailureAndShowsNoWrongFigure) {
    const auto right = SweepFaults(
        {"dsrUnRealExchProfitloss",
         {{"gfAccountType", {"txtAccount", "txtForeign", "txtBooked", "txtRevalued", "txtGain"}},
          {"gfCurrency", {"txtBookedTotal", "txtRevaluedTotal", "txtGainTotal"}},
          {"ReportFooter", {"txtGainGrandTotal"}}}},
        Unrealized);
    // 147 - 150 + 1,098 - 1,030 + 13.73 - 13.
    EXPECT_THAT(right.Texts("gfAccountType", "txtGain"), ElementsAre("-3.00", "68.00", "0.73"));
    EXPECT_THAT(right.Texts("gfCurrency", "txtGainTotal"), ElementsAre("-3.00", "68.73"));
    EXPECT_THAT(right.Texts("ReportFooter", "txtGainGrandTotal"), ElementsAre("65.73"));
}

TEST(ExchangeFaultSweepTest, OfTheUnrealizedDetailTellsEveryFailureAndShowsNoWrongFigure) {
    Swept swept{"dsrUnRealExchProfitlossDetail", {}};
    const std::pair<const char*, const char*> kPlaces[] = {{"ghGLAcct", "txtForward"},
                                                           {"Detail", "txt"},
                                                           {"ReportFooter", "txtPeriod"},
                                                           {"ReportFooter", "txtClosing"}};
    for (const auto& [section, prefix] : kPlaces)
        for (const std::string figure : {"Foreign", "Home", "Revalued", "Gain"})
            swept.figures.push_back({section, {prefix + figure}});
    const auto right = SweepFaults(swept, UnrealizedDetail);
    EXPECT_EQ(FooterFigures(right, "Closing"), "1,067.00 1,337.00 1,464.46 127.46");
}

}  // namespace
}  // namespace varnel::test
