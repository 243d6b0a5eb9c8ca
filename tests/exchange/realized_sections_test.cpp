#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/exchange/realized_run.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

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
    EXPECT_EQ(header.Text("lblDateFromDateTo"), "From 2025-02-01 to 2025-03-31");
    EXPECT_EQ(header.Text("lblPaidCap"), "Paid");
    EXPECT_EQ(header["lblGainCap"].box.top, header["StandardHeader"].box.Bottom() + 90);
    EXPECT_EQ(header.height, header["lblGainCap"].box.Bottom());
}

TEST(RealizedDetailTest, NullsCountAsZeroAndADateThatIsMissingIsBlank) {
    RealizedRun run;
    auto empty = Paid("0");
    empty.amount = empty.discount = empty.invoice_rate = empty.payment_rate = empty.date =
        Variant::Null{};
    const auto bands = run({Paid("1000"), empty});
    EXPECT_EQ(bands.Of("Detail").at(0).Text("txtPmtDate"), "2025-01-15");
    const auto line = bands.Of("Detail").at(1);
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
    EXPECT_THAT(bands.Texts("gfCurrPmtType", "txtPaidTotal"), ElementsAre("150,000.00"));
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

// Currency 1 is the home currency; 3 has no accounts of its own.
TEST(RealizedAccountsTest, AreTheControlAccountsOfTheKindOfPayment) {
    const struct {
        PaymentRow row;
        const char *text, *key;
    } cases[] = {{Paid("1", 1, 2), "1201 - Receivables USD", "ACC|1201"},
                 {Paid("1", 2, 2), "2101 - Payables USD", "ACC|2101"},
                 {Paid("1", 1, 1), "1200 - Receivables", "ACC|1200"},
                 {Paid("1", 2, 1), "2100 - Payables", "ACC|2100"},
                 {Paid("1", 1, 3), "", ""},
                 {Paid("1", 2, 3), "", ""},
                 {Deposited(1'060), "1060 - Bank", "ACC|1060"},
                 {Paid("1", 3), "", ""},
                 {Paid("1", 4), "", ""}};
    RealizedRun run;
    for (const auto& [row, text, key] : cases) {
        SCOPED_TRACE("type " + std::to_string(row.type) + " of " + std::to_string(row.currency_id));
        const auto header = run({row}).Of("ghCurrPmtType").at(0);
        EXPECT_EQ(header.Text("txtAccount"), text);
        EXPECT_EQ(header["txtAccount"].tag, key);
    }
    EXPECT_TRUE(run.host->message_boxes.empty());
}

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

TEST(RealizedTotalsTest, WithoutRowsAreAZero) {
    RealizedRun run;
    const auto bands = run({});
    EXPECT_TRUE(bands.Of("ghCurrency").empty() && bands.Of("Detail").empty());
    EXPECT_THAT(bands.Texts("ReportFooter", "txtGainGrandTotal"), ElementsAre("0.00"));
    EXPECT_TRUE(run.host->message_boxes.empty());
}

testing::Matcher<std::string> FormA(const std::string& description, const std::string& procedure) {
    return testing::MatchesRegex(description + "\r\nin Varnel\\.dsrRealizedExchProfitloss\\." +
                                 procedure + " at line [1-9][0-9]*");
}

TEST(RealizedFailureTest, AnUnknownCurrencyCostsATextAndNoTotal) {
    RealizedRun run;
    const auto bands = run({Paid("1000", 3, 99)});
    EXPECT_THAT(run.host->message_boxes,
                ElementsAre(FormA("There is no currency 99", "Detail_Format")));
    EXPECT_THAT(bands.Texts("Detail", "txtPaid"), ElementsAre(""));
    EXPECT_THAT(bands.Texts("Detail", "txtGain"), ElementsAre("22.50"));
    EXPECT_THAT(bands.Texts("gfCurrPmtType", "txtPaidTotal"), ElementsAre("1,000.00"));
    EXPECT_THAT(bands.Texts("ReportFooter", "txtGainGrandTotal"), ElementsAre("22.50"));
}

TEST(RealizedFailureTest, AnAmountThatCannotBeReadLeavesTheTotalsItBelongsToBlank) {
    RealizedRun run;
    auto unreadable = Paid("0");
    unreadable.amount = "12,50";
    const auto bands = run({Paid("1000"), unreadable, Paid("2000"), Paid("400", 2)});
    EXPECT_THAT(run.host->message_boxes,
                ElementsAre(FormA("\"12,50\" is not an amount.*", "Detail_Format")));
    EXPECT_THAT(bands.Texts("Detail", "txtPaid"),
                ElementsAre("1,000.00", "", "2,000.00", "400.00"));
    EXPECT_THAT(bands.Texts("Detail", "txtGain"), ElementsAre("22.50", "", "45.00", "-9.00"));
    EXPECT_THAT(bands.Texts("gfCurrPmtType", "txtPaidTotal"), ElementsAre("", "400.00"));
    EXPECT_THAT(bands.Texts("gfCurrPmtType", "txtGainTotal"), ElementsAre("", "-9.00"));
    EXPECT_THAT(bands.Texts("ReportFooter", "txtGainGrandTotal"), ElementsAre(""));
}

TEST(RealizedFailureTest, AnAccountThatTheChartDoesNotHaveIsBlankWithoutAKey) {
    RealizedRun run;
    auto deposit = Paid("1000", 3);
    deposit.account_id = 5;
    const auto bands = run({Paid("1000"), deposit});
    EXPECT_THAT(run.host->message_boxes, ElementsAre(FormA(".*", "ghCurrPmtType_Format")));
    EXPECT_EQ(bands.Of("ghCurrPmtType").at(1)["txtAccount"].text, "");
    EXPECT_EQ(bands.Of("ghCurrPmtType").at(1)["txtAccount"].tag, "");
    EXPECT_THAT(bands.Texts("gfCurrPmtType", "txtGainTotal"), ElementsAre("22.50", "22.50"));
}

}  // namespace
}  // namespace varnel::test
