// What every host answers alike about the same company.

#include "tests/company/host_small_company.h"

namespace varnel::company {
namespace {

class EveryHost : public testing::TestWithParam<HostKind> {
  protected:
    std::shared_ptr<Application> host_ = GetParam().make();
    Company& company_ = host_->CurrentContext().CurrentCompany();
    CurrencyInfo& currency_info_ = company_.GetCurrencyInfo();

    std::string Setting(std::string_view name) {
        return company_.GetSetting(name, "False", nullptr, -1);
    }
    std::string Shown(std::string_view amount) {
        std::string text;
        host_->GetFormats().AppendAmount(Amount(amount), text);
        return text;
    }
    std::string Shown(std::string_view amount, int decimals) {
        std::string text;
        host_->GetFormats().AppendAmount(Amount(amount), decimals, text);
        return text;
    }
    std::string Budget(std::int32_t account_id, std::string_view from, std::string_view to) {
        return company_.Budgets().GetAcctBudgetRange(account_id, Day(from), Day(to)).ToText();
    }
    static BalanceScope To(std::string_view date) { return {kOpenStart, Day(date), "", ""}; }
    std::string Stated(std::int32_t account_id, const BalanceScope& scope, Rates& rates) {
        return Text(company_.Balances().StatementBalance(account_id, scope, rates));
    }
    std::string Evaluated(std::int32_t currency_id, std::string_view foreign, Rates& rates) {
        return currency_info_
            .EvaluateValueWithExchangeRate(Rate::Parse("1.3"), currency_id, Amount(foreign), rates)
            .ToText();
    }
};
INSTANTIATE_TEST_SUITE_P(Hosts, EveryHost, testing::ValuesIn(kHostKinds), NameOf);

TEST_P(EveryHost, KnowsCompanyAndSession) {
    EXPECT_EQ(company_.Name(), "Small Company");
    EXPECT_EQ(host_->SessionDate(), Day("2025-04-30"));
    EXPECT_TRUE(company_.UsesProjects());
    EXPECT_EQ(company_.ItemAdjustmentStart(), Day("2024-07-01"));
}

TEST_P(EveryHost, ReadsATextAndShowsAMissingOneAsItsNumber) {
    EXPECT_EQ(host_->GetText(2656), "Debit");
    EXPECT_EQ(host_->GetText(31999), "31999");
}

TEST_P(EveryHost, GivesTheDefaultOfASettingThatIsNotSet) {
    EXPECT_EQ(Setting("UseAccountNumbers"), "True");
    EXPECT_EQ(Setting("NoSuchSetting"), "False");
    EXPECT_EQ(Setting("Unset"), "False");
}

TEST_P(EveryHost, GivesNoAccountForARoleThatNobodyHas) {
    EXPECT_EQ(company_.GetGLAccountParam("GLRtainEarn", kCompanySection), 30);
    EXPECT_EQ(company_.GetGLAccountParam("CustGLAR", kCompanySection), 0);
}

TEST_P(EveryHost, FindsTheFiscalYear) {
    EXPECT_EQ(company_.FiscalYearStart(Day("2025-06-30")), Day("2025-01-01")) << "inside";
    EXPECT_EQ(company_.FiscalYearStart(Day("2025-01-01")), Day("2025-01-01")) << "its first day";
    EXPECT_EQ(company_.FiscalYearStart(Day("2024-12-31")), Day("2023-07-01")) << "in the gap";
    EXPECT_EQ(company_.FiscalYearStart(Day("2023-06-30")), Day("2023-01-01")) << "before the first";
    EXPECT_EQ(company_.FiscalYearStart(kOpenEnd), Day("2025-01-01")) << "open end";
}

TEST_P(EveryHost, TellsAPeriodThatBeginsBeforeItsFiscalYear) {
    EXPECT_TRUE(company_.PeriodTest(Day("2024-12-31"), Day("2025-03-31")));
    EXPECT_FALSE(company_.PeriodTest(Day("2025-01-01"), Day("2025-03-31")));
}

TEST_P(EveryHost, RoundsHalfAwayFromZero) {
    EXPECT_EQ(currency_info_.Round(Amount("2.005"), 2), Amount("2.01"));
    EXPECT_EQ(currency_info_.Round(Amount("-2.005"), 2), Amount("-2.01"));
    EXPECT_EQ(currency_info_.Round(Amount("2.0049"), 2), Amount("2"));
    EXPECT_EQ(currency_info_.RoundProduct(Amount("0.05"), Rate::Parse("1.1"), 2), Amount("0.06"));
    EXPECT_EQ(currency_info_.RoundProduct(Amount("-0.05"), Rate::Parse("1.1"), 2), Amount("-0.06"));
}

TEST_P(EveryHost, ShowsAmountsRoundedGroupedAndWithoutASignForNothing) {
    EXPECT_EQ(Shown("1234.5"), "1,234.50");
    EXPECT_EQ(Shown("-1234567.895"), "-1,234,567.90");
    EXPECT_EQ(Shown("-123"), "-123.00");
    EXPECT_EQ(Shown("0.005"), "0.01");
    EXPECT_EQ(Shown("-0.005"), "-0.01");
    EXPECT_EQ(Shown("0"), "0.00");
    EXPECT_EQ(Shown("-0.0049"), "0.00");
    EXPECT_EQ(Shown("999.5", 0), "1,000");
    EXPECT_EQ(Shown("0.0505", 3), "0.051");
}

TEST_P(EveryHost, ShowsAnAmountWithTheDecimalsOfItsCurrency) {
    std::string text = "= ";
    currency_info_.FormatWorldCurrency(Amount("1234.5"), 4, text);
    EXPECT_EQ(text, "= 1,235");
    EXPECT_NE(ErrorOf([&] { currency_info_.FormatWorldCurrency({}, 3, text); }), "");
}

TEST_P(EveryHost, FillsTheLatestRatesOnOrBeforeTheDate) {
    Rates rates;
    currency_info_.ConfigureExchangeRates(rates, Day("2025-01-30"), true, {});
    EXPECT_EQ(rates.rates->Item("2"), Rate::Parse("1.4"));
    EXPECT_TRUE(rates.reevaluate);
    EXPECT_EQ(rates.date, "2025-01-30");
    currency_info_.ConfigureExchangeRates(rates, Day("2025-01-31"), true, {});
    EXPECT_EQ(rates.rates->Item("2"), Rate::Parse("1.45255"));
    EXPECT_EQ(currency_info_.GetCurrencies().GetCurrenciesLegend(rates), "JPY 0.0095; USD 1.45255");
}

TEST_P(EveryHost, NamesCurrencyAndDateOfARateThatIsMissing) {
    Rates rates;
    currency_info_.ConfigureExchangeRates(rates, Day("2025-01-09"), true, {});
    EXPECT_EQ(Evaluated(2, "100", rates), "140.0000") << "other rates are there";
    EXPECT_THAT(ErrorOf([&] { Evaluated(4, "100", rates); }),
                testing::AllOf(testing::HasSubstr("JPY"), testing::HasSubstr("2025-01-09")));
}

TEST_P(EveryHost, EvaluatesAtTheRateOfTheDayOnlyWhenRevaluing) {
    Rates rates;
    currency_info_.ConfigureExchangeRates(rates, Day("2025-01-31"), true, {});
    EXPECT_EQ(Evaluated(2, "-10.01", rates), "-14.5400") << "-14.5400255";
    EXPECT_EQ(Evaluated(1, "-10.01", rates), "-10.0100") << "home currency";
    rates.reevaluate = false;
    EXPECT_EQ(Evaluated(2, "-10.01", rates), "-13.0100") << "the booked rate, to the cent";
}

TEST_P(EveryHost, ListsControlAccountsOnce) {
    EXPECT_EQ(currency_info_.GetCurrencies().GetAllARAPGLAccountUsed(), "12,20,21");
    EXPECT_EQ(company_.Accounts().OtherRevaluedAccountIds(), "-1");
}

TEST_P(EveryHost, GivesAnAccountItsOwnCurrencyOrTheHomeCurrency) {
    EXPECT_EQ(company_.Accounts().CurrencyOf(11), 2);
    EXPECT_EQ(company_.Accounts().CurrencyOf(10), 1);
    EXPECT_EQ(company_.Accounts().CurrencyOf(20), 1);
    EXPECT_NE(ErrorOf([&] { company_.Accounts().CurrencyOf(99); }), "");
}

TEST_P(EveryHost, ClassesAccountTypes) {
    EXPECT_EQ(company_.GetAccountTypes().Class(5), AccountTypes::kIncomeStatementClass);
    EXPECT_NE(company_.GetAccountTypes().Class(3), AccountTypes::kIncomeStatementClass);
    EXPECT_THAT(ErrorOf([&] { company_.GetAccountTypes().Class(77); }), testing::HasSubstr("77"));
}

// 310 over 31 days is 10 a day, 100 over 28 days 3.571428…
TEST_P(EveryHost, ProratesABudgetThatTheRangeCuts) {
    EXPECT_EQ(Budget(50, "2025-01-01", "2025-02-28"), "410.0000");
    EXPECT_EQ(Budget(50, "2025-01-16", "2025-02-14"), "210.0000") << "160 + 50";
    EXPECT_EQ(Budget(50, "2025-02-01", "2025-02-03"), "10.7100") << "10.714285…";
    EXPECT_EQ(Budget(40, "2025-02-01", "2025-02-03"), "-10.7100");
    EXPECT_EQ(Budget(50, "2025-01-31", "2025-02-01"), "13.5700") << "10 + 3.571428…";
    EXPECT_EQ(Budget(40, "2025-06-01", "2025-06-01"), "-0.0100") << "-0.005, away from zero";
    EXPECT_EQ(Budget(10, "2025-02-01", "2025-02-01"), "0.0000") << "0.0024666… twice";
    EXPECT_EQ(Budget(10, "2025-01-30", "2025-02-02"), "0.0100") << "0.0074 twice";
    EXPECT_EQ(Budget(50, "2025-03-01", "2025-03-31"), "0.0000") << "outside";
    EXPECT_EQ(Budget(99, "2025-01-01", "2025-12-31"), "0.0000") << "no budget";
}

struct BalanceCase {
    std::int32_t account_id;
    BalanceScope scope;
    const char *home, *foreign;
};

TEST_P(EveryHost, SumsTheLinesOfAScope) {
    const Date start = Day("2025-01-01"), end = Day("2025-12-31");
    const std::string first = "(GLDet.ExSegmentId IN (1))";
    const std::string others = "(GLDet.ExSegmentId IN (2) OR GLDet.ExSegmentId IS NULL)";
    const BalanceCase cases[] = {
        {10, {}, "499.65", "0.00"},
        {11, {}, "106.80", "80.00"},
        {-1, {}, "0.00", "-20.00"},
        {-1, {start, Day("2025-02-20"), first, ""}, "0.00", "0.00"},
        {30, {}, "0.00", "0.00"},
        {10, {start, kOpenEnd, "", ""}, "-200.25", "0.00"},
        {10, {kOpenStart, start, "", ""}, "699.90", "0.00"},
        {11, {start, Day("2025-03-31"), "", ""}, "106.80", "80.00"},
        {11, {Day("2025-01-15"), Day("2025-01-15"), "", ""}, "135.00", "100.00"},
        {11, {start, Day("2025-03-30"), "", ""}, "135.00", "100.00"},
        {10, {kOpenStart, kOpenEnd, first, ""}, "1000.00", "0.00"},
        {11, {start, end, first, ""}, "135.00", "100.00"},
        {10, {kOpenStart, kOpenEnd, others, ""}, "-500.35", "0.00"},
        {11, {kOpenStart, kOpenEnd, "", "7"}, "106.80", "80.00"},
        {10, {start, end, "", "7,8"}, "-200.25", "0.00"},
        {11, {start, end, first, "7"}, "135.00", "100.00"},
    };
    for (const auto& [account_id, scope, home, foreign] : cases) {
        SCOPED_TRACE(std::to_string(account_id) + " " + scope.from.ToIso() + " " +
                     scope.to.ToIso() + scope.segment_clause + scope.project_ids);
        EXPECT_EQ(Text(company_.Balances().AccountBalance(account_id, scope, false)), home);
        EXPECT_EQ(Text(company_.Balances().AccountBalance(account_id, scope, true)), foreign);
    }
}

// The dates of the scope are those of the report and make no difference.
TEST_P(EveryHost, SumsEarningsStrictlyBeforeADate) {
    const BalanceScope year{Day("2025-01-01"), Day("2025-12-31"), "", ""};
    auto& balances = company_.Balances();
    EXPECT_EQ(Text(balances.EarningsBefore(Day("2025-01-01"), year)), "-699.90");
    EXPECT_EQ(Text(balances.EarningsBefore(Day("2025-02-20"), year)), "-834.90");
    EXPECT_EQ(Text(balances.EarningsBefore(Day("2025-02-21"), year)), "-634.65");
    EXPECT_EQ(Text(balances.EarningsBefore(Day("2024-03-10"), year)), "0.00");
    const BalanceScope project{kOpenStart, kOpenEnd, "", "7"};
    EXPECT_EQ(Text(balances.EarningsBefore(kOpenEnd, project)), "-135.00");
}

// US dollars at 1.45255: the bank's 80 are worth 116.20, 9.40 above what is booked. The receivables
// stay as booked.
TEST_P(EveryHost, StatesBalancesSoThatTheBalanceSheetBalances) {
    struct {
        std::int32_t account_id;
        const char *booked, *revalued;
    } const cases[] = {
        {10, "499.65", "499.65"}, {11, "106.80", "116.20"},     {12, "140.00", "140.00"},
        {20, "28.20", "28.20"},   {21, "0.00", "0.00"},         {30, "-699.90", "-699.90"},
        {33, "-74.75", "-84.15"}, {40, "-1275.00", "-1275.00"},
    };
    Rates rates;
    currency_info_.ConfigureExchangeRates(rates, Day("2025-04-30"), true, {});
    for (const auto& [account_id, booked, revalued] : cases) {
        SCOPED_TRACE(account_id);
        rates.reevaluate = false;
        EXPECT_EQ(Stated(account_id, To("2025-04-30"), rates), booked);
        rates.reevaluate = true;
        EXPECT_EQ(Stated(account_id, To("2025-04-30"), rates), revalued);
    }
}

TEST_P(EveryHost, DividesEarningsAtTheFiscalYearOfTheLastDate) {
    Rates booked;
    EXPECT_EQ(Stated(30, To("2024-12-31"), booked), "0.00") << "the year began on 2023-07-01";
    EXPECT_EQ(Stated(33, To("2024-12-31"), booked), "-699.90");
    EXPECT_EQ(Stated(30, To("2025-01-01"), booked), "-699.90");
    EXPECT_EQ(Stated(33, To("2025-01-01"), booked), "0.00");
    EXPECT_EQ(Stated(33, To("2025-01-15"), booked), "-135.00") << "its last day included";
    EXPECT_EQ(Stated(33, {Day("2025-04-01"), Day("2025-04-30"), "", ""}, booked), "-74.75")
        << "from the start of the year, whatever the first date";
}

// Of project 7: 80 dollars and the payables; of segment 1: 100 dollars, bank, and both years'
// sales.
TEST_P(EveryHost, StatesBalancesOfProjectsAndSegments) {
    Rates rates;
    currency_info_.ConfigureExchangeRates(rates, Day("2025-04-30"), true, {});
    const BalanceScope project{kOpenStart, Day("2025-04-30"), "", "7"};
    EXPECT_EQ(Stated(11, project, rates), "116.20");
    EXPECT_EQ(Stated(30, project, rates), "0.00");
    EXPECT_EQ(Stated(33, project, rates), "-144.40") << "135.00 and 9.40";
    const BalanceScope segment{kOpenStart, Day("2025-04-30"), "(GLDet.ExSegmentId IN (1))", ""};
    EXPECT_EQ(Stated(11, segment, rates), "145.26") << "145.255";
    EXPECT_EQ(Stated(30, segment, rates), "-1000.00");
    EXPECT_EQ(Stated(33, segment, rates), "-145.26") << "135.00 and 10.26";
}

TEST_P(EveryHost, StatesNoForeignBalanceWithoutItsRate) {
    Rates rates;
    currency_info_.ConfigureExchangeRates(rates, Day("2024-12-30"), true, {});
    for (const std::int32_t account_id : {11, 33})
        EXPECT_THAT(ErrorOf([&] { Stated(account_id, To("2025-04-30"), rates); }),
                    testing::AllOf(testing::HasSubstr("USD"), testing::HasSubstr("2024-12-30")));
    EXPECT_EQ(Stated(12, To("2025-04-30"), rates), "140.00") << "needs none";
    EXPECT_EQ(Stated(11, To("2025-01-14"), rates), "0.00") << "nothing to revalue yet";
    EXPECT_EQ(Stated(33, To("2025-01-14"), rates), "0.00");
}

}  // namespace
}  // namespace varnel::company
