#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/exchange/realized_run.h"

namespace varnel {
namespace {

using test::CollectedBand;
using test::CollectedBands;
using test::Paid;
using test::PaymentRow;
using test::RealizedRun;
using testing::ElementsAre;

/// "paid/gain" of each group's footer.
std::vector<std::string> GroupTotals(const CollectedBands& bands) {
    std::vector<std::string> totals;
    for (const auto& band : bands.Of("gfCurrPmtType"))
        totals.push_back(band.Text("txtPaidTotal") + "/" + band.Text("txtGainTotal"));
    return totals;
}

PaymentRow Deposited(std::int32_t account_id) {
    PaymentRow row = Paid("1000", 3);
    row.account_id = account_id;
    return row;
}

TEST(RealizedPageTest, IsTheRealizedGainOrLossOfThePeriod) {
    RealizedRun run;
    run.host->texts = {{30012, "Realized &Gain"}, {3012, "From"}, {3013, "to"}, {30037, "Paid"}};
    EXPECT_EQ(run.report->IReport_ReportTitle(), "Realized Gain");
    EXPECT_EQ(run.report->IReport_DateDisplayOptions(), DateDisplay::kFromTo);
    EXPECT_FALSE(run.report->IReport_NoHeaders());
    const auto header = run({}).Of("PageHeader").at(0);
    EXPECT_EQ(header.Text("hdrTitle"), "Realized Gain");
    EXPECT_EQ(header.Text("lblDateFromDateTo"), "From 2025-01-01 to 2025-03-31");
    EXPECT_EQ(header.Text("lblPaidCap"), "Paid");
    EXPECT_EQ(header["lblGainCap"].box.top, header["StandardHeader"].box.Bottom() + 90);
    EXPECT_EQ(header.height, header["lblGainCap"].box.Bottom());
}

TEST(RealizedDetailTest, ShowsThePaymentWithItsRatesInTheCurrencyOfTheInvoice) {
    RealizedRun run;
    auto row = Paid("980");
    row.discount = Currency::FromWhole(20);
    row.payment_rate = "1.372512";
    const auto line = run({row}).Of("Detail").at(0);
    EXPECT_EQ(line.Text("txtPmtDate"), "2025-01-15");
    EXPECT_EQ(line["txtPmtDate"].value, ControlValue(Date::ParseIso("2025-01-15")));
    EXPECT_EQ(line.Text("txtName"), "Harbour Lane");
    EXPECT_EQ(line.Text("txtInvoiId"), "F100");
    EXPECT_EQ(line.Text("txtChqNo"), "1207");
    EXPECT_EQ(line.Text("txtExchangeRate"), "1.3500");
    EXPECT_EQ(line.Text("txtPmtRate"), "1.3725");
    EXPECT_EQ(line["txtPmtRate"].value, ControlValue(Rate::Parse("1.3725")));
    EXPECT_EQ(line.Text("txtPaid"), "1,000.00");
    EXPECT_EQ(line["txtPaid"].value, ControlValue(Currency::FromWhole(1'000)));
    EXPECT_EQ(line.Text("txtCurrencyCode"), "USD");
    // The rate to four decimals: 1000 x 1.3725 = 1372.50; 1372.50 - (27.00 + 1323.00).
    EXPECT_EQ(line.Text("txtGain"), "22.50");
    EXPECT_EQ(line["txtGain"].value, ControlValue(Currency::Parse("22.50")));
}

TEST(RealizedDetailTest, NullsCountAsZeroAndADateThatIsMissingIsBlank) {
    RealizedRun run;
    auto empty = Paid("0");
    empty.amount = empty.discount = empty.invoice_rate = empty.payment_rate = empty.date =
        Variant::Null{};
    const auto line = run({Paid("1000"), empty}).Of("Detail").at(1);
    EXPECT_EQ(line.Text("txtPaid"), "0.00");
    EXPECT_EQ(line.Text("txtExchangeRate"), "0.0000");
    EXPECT_EQ(line.Text("txtGain"), "0.00");
    EXPECT_EQ(line.Text("txtPmtDate"), "");
    EXPECT_EQ(line["txtPmtDate"].value, ControlValue());
    EXPECT_TRUE(run.host->message_boxes.empty());
}

TEST(RealizedDetailTest, PaidHasTheDecimalsOfTheCurrencyAndEverythingElseTwo) {
    RealizedRun run;
    auto yen = Paid("150000", 1, 3);
    yen.invoice_rate = "0.0091";
    yen.payment_rate = "0.0094";  // 150,000 x 0.0003.
    const auto bands = run({yen});
    EXPECT_THAT(bands.Texts("Detail", "txtPaid"), ElementsAre("150,000"));
    EXPECT_THAT(bands.Texts("Detail", "txtGain"), ElementsAre("45.00"));
    EXPECT_THAT(GroupTotals(bands), ElementsAre("150,000.00/45.00"));
}

TEST(RealizedDetailTest, OpensInvoiceAndPayment) {
    RealizedRun run;
    auto bill = Paid("1", 2);
    bill.source = "PUR";
    bill.invoice_key = "B7";
    bill.payment_key = 10;
    const auto lines = run({Paid("1"), bill, Paid("1", 3), Paid("1", 8)}).Of("Detail");
    for (const char* control : {"txtName", "txtInvoiId", "txtExchangeRate"}) {
        EXPECT_EQ(lines.at(0)[control].tag, "INV|71") << control;
        EXPECT_EQ(lines.at(1)[control].tag, "PUR|B7") << control;
    }
    for (const char* control : {"txtPmtDate", "txtChqNo", "txtPmtRate", "txtPaid"}) {
        EXPECT_EQ(lines.at(0)[control].tag, "PMT|9") << control;
        EXPECT_EQ(lines.at(1)[control].tag, "CDI|10") << control;
        EXPECT_EQ(lines.at(2)[control].tag, "DEP|9") << control;
        EXPECT_EQ(lines.at(3)[control].tag, "") << control;
    }
}

TEST(RealizedCurrencyTest, IsCaptionedWhereTheCompanyUsesForeignCurrencies) {
    RealizedRun run;
    const auto bands = run({Paid("1"), Paid("1", 2), Paid("1", 1, 3)});
    EXPECT_THAT(bands.Texts("ghCurrency", "txtCurrency"),
                ElementsAre("Currency USD", "Currency JPY"));
    run.host->company.currency_info.records.resize(1);
    EXPECT_TRUE(run({Paid("1", 1, 1)}).Of("ghCurrency").empty());
}

struct AccountCase {
    PaymentRow row;
    const char *text, *key;
};

void PrintTo(const AccountCase& tried, std::ostream* out) {
    *out << "type " << tried.row.type << ", currency " << tried.row.currency_id;
}

class RealizedAccountTest : public testing::TestWithParam<AccountCase> {};

TEST_P(RealizedAccountTest, IsTheControlAccountOfTheKindOfPayment) {
    RealizedRun run;
    const auto header = run({GetParam().row}).Of("ghCurrPmtType").at(0);
    EXPECT_EQ(header.Text("txtAccount"), GetParam().text);
    EXPECT_EQ(header["txtAccount"].tag, GetParam().key);
    EXPECT_TRUE(run.host->message_boxes.empty());
}

// Currency 1 is the home currency; 3 has no accounts of its own.
INSTANTIATE_TEST_SUITE_P(
    Kinds, RealizedAccountTest,
    testing::Values(AccountCase{Paid("1", 1, 2), "1201 - Receivables USD", "ACC|1201"},
                    AccountCase{Paid("1", 2, 2), "2101 - Payables USD", "ACC|2101"},
                    AccountCase{Paid("1", 1, 1), "1200 - Receivables", "ACC|1200"},
                    AccountCase{Paid("1", 2, 1), "2100 - Payables", "ACC|2100"},
                    AccountCase{Paid("1", 1, 3), "", ""}, AccountCase{Paid("1", 2, 3), "", ""},
                    AccountCase{Deposited(1'060), "1060 - Bank", "ACC|1060"},
                    AccountCase{Paid("1", 3), "", ""}, AccountCase{Paid("1", 4), "", ""},
                    AccountCase{Paid("1", 0), "", ""}));

TEST(RealizedAccountsTest, AreTheCompanysOwnInACompanyOfOneCurrency) {
    RealizedRun run;
    run.host->company.currency_info.records.resize(2);
    run.host->company.currency_info.records.erase(
        run.host->company.currency_info.records.begin());  // One currency is left: USD, foreign.
    EXPECT_THAT(run({Paid("1"), Paid("1", 2)}).Texts("ghCurrPmtType", "txtAccount"),
                ElementsAre("1200 - Receivables", "2100 - Payables"));
}

TEST(RealizedAccountsTest, AreShownByNameWhereTheCompanyUsesNoNumbers) {
    RealizedRun run;
    run.host->company.settings.clear();
    EXPECT_THAT(run({Paid("1")}).Texts("ghCurrPmtType", "txtAccount"),
                ElementsAre("Receivables USD"));
}

TEST(RealizedAccountsTest, OfDepositsIsThatOfTheFirstOfTheGroup) {
    RealizedRun run;
    const auto bands = run({Deposited(1'060), Deposited(1'201), Paid("1", 4)});
    EXPECT_THAT(bands.Texts("ghCurrPmtType", "txtAccount"), ElementsAre("1060 - Bank", ""));
    EXPECT_EQ(bands.Of("ghCurrPmtType").at(1)["txtAccount"].tag, "");
}

// 22.50 on each 1000 paid by a customer, -22.50 on each cheque.
std::vector<PaymentRow> ThreeGroups() {
    return {Paid("1000"), Paid("2000"), Paid("4000", 2), Paid("500", 1, 3)};
}

TEST(RealizedTotalsTest, StandUnderEachKindOfPaymentAndBeginAgain) {
    RealizedRun run;
    const auto bands = run(ThreeGroups());
    EXPECT_THAT(GroupTotals(bands),
                ElementsAre("3,000.00/67.50", "4,000.00/-90.00", "500.00/11.25"));
    EXPECT_THAT(bands.Texts("ReportFooter", "txtGainGrandTotal"), ElementsAre("-11.25"));
    const auto footer = bands.Of("gfCurrPmtType").at(1);
    EXPECT_EQ(footer["txtPaidTotal"].value, ControlValue(Currency::FromWhole(4'000)));
    EXPECT_EQ(footer["txtGainTotal"].value, ControlValue(Currency::FromWhole(-90)));
}

TEST(RealizedTotalsTest, OtherKindsCountAsPaidAndGainNothing) {
    RealizedRun run;
    const auto bands = run({Paid("1000"), Paid("70", 9)});
    EXPECT_THAT(GroupTotals(bands), ElementsAre("1,000.00/22.50", "70.00/0.00"));
    EXPECT_THAT(bands.Texts("ReportFooter", "txtGainGrandTotal"), ElementsAre("22.50"));
}

TEST(RealizedTotalsTest, BandsStandInReadingOrder) {
    RealizedRun run;
    std::vector<std::string> order;
    for (const auto& band : run(ThreeGroups()).bands)
        if (band.depth == 0 && band.section.starts_with("g")) order.push_back(band.section);
    EXPECT_THAT(order, ElementsAre("ghCurrency", "ghCurrPmtType", "gfCurrPmtType", "ghCurrPmtType",
                                   "gfCurrPmtType", "gfCurrency", "ghCurrency", "ghCurrPmtType",
                                   "gfCurrPmtType", "gfCurrency"));
}

TEST(RealizedTotalsTest, ASecondRunStartsAfreshAndWithoutRowsTheTotalIsZero) {
    RealizedRun run;
    const auto first = run(ThreeGroups());
    const auto none = run({});
    EXPECT_TRUE(none.Of("ghCurrency").empty() && none.Of("Detail").empty());
    EXPECT_THAT(none.Texts("ReportFooter", "txtGainGrandTotal"), ElementsAre("0.00"));
    EXPECT_EQ(run(ThreeGroups()).bands, first.bands);
    EXPECT_TRUE(run.host->message_boxes.empty());
}

}  // namespace
}  // namespace varnel
