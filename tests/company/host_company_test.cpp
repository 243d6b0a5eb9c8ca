// What the host over a database does beyond what every host does.

#include <functional>

#include "tests/company/host_small_company.h"

namespace varnel::company {
namespace {

using testing::AllOf;
using testing::HasSubstr;

std::string OpeningError(const std::string& script) {
    const CompanyFile file(kSmallCompany + script);
    return ErrorOf([&] { OpenCompany(file.Path()); });
}

TEST(OpenCompany, NamesASettingThatCannotBeRead) {
    EXPECT_THAT(OpeningError("UPDATE CompanySetting SET SettingValue = '30/04/2025' "
                             "WHERE SettingName = 'SessionDate';"),
                AllOf(HasSubstr("SessionDate"), HasSubstr("30/04/2025")));
    EXPECT_THAT(OpeningError("INSERT INTO CompanySetting VALUES ('Language', 'xx');"),
                HasSubstr("\"xx\""));
}

TEST(OpenCompany, NeedsAHomeCurrencyThatThereIs) {
    for (const char* script :
         {"DELETE FROM CompanySetting WHERE SettingName = 'HomeCurrencyId';",
          "UPDATE CompanySetting SET SettingValue = '3' WHERE SettingName = 'HomeCurrencyId';",
          "UPDATE CompanySetting SET SettingValue = 'CAD' WHERE SettingName = 'HomeCurrencyId';",
          "DELETE FROM WorldCurrency;"}) {
        const CompanyFile file(std::string(kSmallCompany) + script);
        EXPECT_THAT(ErrorOf([&] { OpenCompany(file.Path()); }),
                    AllOf(HasSubstr("HomeCurrencyId"), HasSubstr(file.Path())))
            << script;
    }
}

TEST(OpenCompany, EndsItsQueriesWhenItIsCancelled) {
    const CompanyFile file(kSmallCompany);
    bool cancelled = false;
    HostOptions options;
    options.cancelled = [&] { return cancelled; };
    const auto host = OpenCompany(file.Path(), options);
    cancelled = true;
    EXPECT_THAT(ErrorOf([&] {
                    host->NewFilterTool()->ResolveAccounts(
                        "(WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n)"
                        " SELECT max(x) FROM n) > 0");
                }),
                HasSubstr("cancelled"));
}

TEST(OpenCompany, TakesOptionsBeforeSettings) {
    const CompanyFile file(std::string(kSmallCompany) +
                           "INSERT INTO CompanySetting VALUES ('Language', 'fr-CA');");
    EXPECT_EQ(OpenCompany(file.Path())->GetText(2656), "Débit");
    const auto host = OpenCompany(
        file.Path(), {.language = "en-CA", .session_date = Day("2024-01-31"), .database_type = 0});
    EXPECT_EQ(host->GetText(2656), "Debit");
    EXPECT_EQ(host->SessionDate(), Day("2024-01-31"));
    EXPECT_EQ(host->Database().DatabaseType(), 0);
}

class SmallCompany : public testing::Test {
  protected:
    static std::shared_ptr<CompanyHost> Open(const std::string& script,
                                             const std::string& language = "en-CA") {
        const CompanyFile file(kSmallCompany + script);
        return OpenCompany(file.Path(), {.language = language});  // The open file stays readable.
    }
};

TEST_F(SmallCompany, IsOfOneCurrencyWhenItSaysSo) {
    const auto host = Open("INSERT INTO CompanySetting VALUES ('UseForeignCurrency', 'False');");
    auto& info = host->CurrentCompany().GetCurrencyInfo();
    Rates rates;
    info.ConfigureExchangeRates(rates, Day("1990-01-01"), true, {});
    EXPECT_FALSE(rates.reevaluate);
    EXPECT_EQ(info.EvaluateValueWithExchangeRate(Rate::Parse("2"), 2, Amount("5"), rates),
              Amount("5"));
}

TEST_F(SmallCompany, KeepsGivenRatesWhenItsTableIsNotWanted) {
    const auto host = Open("");
    auto& info = host->CurrentCompany().GetCurrencyInfo();
    Rates rates;
    rates.rates = std::make_shared<RateCollection>();
    rates.rates->Set("2", Rate::Parse("1.5"));
    info.ConfigureExchangeRates(rates, Day("2025-03-31"), false, {});
    EXPECT_EQ(rates.rates->Item("2"), Rate::Parse("1.5"));
    EXPECT_EQ(rates.rates->Item("4"), Rate::Parse("0.0095"));
}

TEST_F(SmallCompany, TakesRatesThatAreGivenBeforeThoseOfItsTable) {
    const CompanyFile file(kSmallCompany);
    HostOptions options;
    options.rates = {ParseGivenRate("usd=1.3725"), ParseGivenRate("JPY 0.01")};
    const auto host = OpenCompany(file.Path(), options);
    auto& info = host->CurrentCompany().GetCurrencyInfo();
    Rates rates;
    const std::string twice[] = {"JPY=1", "JPY=2"};
    EXPECT_THAT(ErrorOf([&] { info.ConfigureExchangeRates(rates, kOpenEnd, true, twice); }),
                HasSubstr("JPY is given twice"));
    const std::string filter[] = {"JPY = 0.0125", ""};
    info.ConfigureExchangeRates(rates, Day("2025-03-31"), true, filter);
    EXPECT_EQ(info.GetCurrencies().GetCurrenciesLegend(rates), "JPY 0.0125; USD 1.3725");
    info.ConfigureExchangeRates(rates, Day("1990-01-01"), true, {});
    EXPECT_EQ(info.GetCurrencies().GetCurrenciesLegend(rates), "JPY 0.0100; USD 1.3725");
}

TEST_F(SmallCompany, RefusesRatesThatItCannotTake) {
    const CompanyFile file(kSmallCompany);
    const auto error = [&](std::vector<GivenRate> rates) {
        HostOptions options;
        options.rates = std::move(rates);
        return ErrorOf([&] { OpenCompany(file.Path(), options); });
    };
    const Rate rate = Rate::Parse("1.5");
    EXPECT_THAT(error({{"GBP", rate}}), AllOf(HasSubstr("GBP"), HasSubstr("CAD, JPY, USD")));
    EXPECT_THAT(error({{"CAD", rate}}), HasSubstr("own currency"));
    EXPECT_THAT(error({{"USD", rate}, {"usd", rate}}), HasSubstr("twice"));
    for (const char* text : {"", "USD", "=1.2", "USD=", "USD=0", "USD=-1", "USD=1,3725", "USD 1 2"})
        EXPECT_THAT(ErrorOf([&] { ParseGivenRate(text); }),
                    HasSubstr("\"" + std::string(text) + "\" is no exchange rate"));
}

TEST_F(SmallCompany, DatesTheRatesOfAnOpenEndByTheNewest) {
    Rates rates;
    Open("")->CurrentCompany().GetCurrencyInfo().ConfigureExchangeRates(rates, kOpenEnd, true, {});
    EXPECT_EQ(rates.date, "2025-01-31");
}

TEST_F(SmallCompany, WritesTheRatesOfTheLegendInItsLanguage) {
    const auto host = Open("", "fr-CA");
    auto& info = host->CurrentCompany().GetCurrencyInfo();
    Rates rates;
    info.ConfigureExchangeRates(rates, Day("2025-01-15"), true, {});
    EXPECT_EQ(info.GetCurrencies().GetCurrenciesLegend(rates), "JPY 0,0095; USD 1,4000");
}

TEST_F(SmallCompany, HasNoControlAccountsWhenNothingHasThatRole) {
    const auto host = Open(
        "DELETE FROM GLAccountParam; UPDATE WorldCurrency SET "
        "ARGLAccountId = NULL, APGLAccountId = 0;");
    auto& company = host->CurrentCompany();
    EXPECT_EQ(company.GetCurrencyInfo().GetCurrencies().GetAllARAPGLAccountUsed(), "-1");
    EXPECT_EQ(company.GetCurrencyInfo().UnrealizedGainLossAcctId(), 0);
}

TEST_F(SmallCompany, RevaluesTheAccountsOfASection) {
    const auto host = Open(
        "INSERT INTO GLAccountParam VALUES ('Revalued', 'Loan', 21), "
        "('Revalued', 'Deposit', 12);");
    EXPECT_EQ(host->CurrentCompany().Accounts().OtherRevaluedAccountIds(), "12,21");
}

TEST_F(SmallCompany, PostsNoInventoryAdjustmentsWhenTheyAreOff) {
    const auto host = Open(
        "UPDATE CompanySetting SET SettingValue = '0' "
        "WHERE SettingName = 'ItemAdjustGL';");
    EXPECT_EQ(host->CurrentCompany().ItemAdjustmentStart(), std::nullopt);
}

TEST_F(SmallCompany, CaptionsTheSectionsOfStatements) {
    const auto host = Open("", "fr-CA");
    auto& types = host->CurrentCompany().GetAccountTypes();
    EXPECT_EQ(types.Caption(1, 0), "Actif");
    EXPECT_EQ(types.Caption(4, 0), "Produits");
    EXPECT_EQ(types.Caption(9, 0), "Autres éléments") << "no type of its own";
    EXPECT_EQ(types.Caption(6, 0), "Sundry") << "in the company's own words";
    EXPECT_THAT(ErrorOf([&] { types.Caption(77, 0); }), HasSubstr("77"));
    EXPECT_EQ(types.AdditionalIncomeTypes(), "6");
}

TEST_F(SmallCompany, HasNoAdditionalIncomeTypesWhenNoneIsMarked) {
    const auto host = Open("UPDATE AcctTypeInfo SET AdditionalIncome = 0;");
    EXPECT_EQ(host->CurrentCompany().GetAccountTypes().AdditionalIncomeTypes(), "-1");
}

TEST_F(SmallCompany, RefusesABudgetThatEndsBeforeItBegins) {
    const auto host = Open("INSERT INTO AcctBudget VALUES (9, 40, '2025-05-31', '2025-05-01', 1);");
    const auto ask = [&](std::int32_t account_id) {
        host->CurrentCompany().Budgets().GetAcctBudgetRange(account_id, kOpenStart, kOpenEnd);
    };
    EXPECT_THAT(ErrorOf([&] { ask(40); }), AllOf(HasSubstr("40"), HasSubstr("2025-05-31")));
    EXPECT_NO_THROW(ask(50)) << "the others have theirs";
}

// The line is that of the report's statement that asked, which the host does not know.
TEST_F(SmallCompany, RaisesErrorsWithoutALine) {
    const auto host = Open(
        "UPDATE CompanySetting SET SettingValue = 'soon' "
        "WHERE SettingName = 'ItemAdjustStartDate';");
    auto& company = host->CurrentCompany();
    const std::function<void()> failures[] = {
        [&] { company.GetCurrencyInfo().GetCurrencies().Item(77); },
        [&] { company.GetAccountTypes().Class(77); },
        [&] { company.Accounts().CurrencyOf(99); },
        [&] { company.ItemAdjustmentStart(); },
    };
    for (const auto& fail : failures) {
        try {
            fail();
            ADD_FAILURE() << "no error";
        } catch (const Error& error) {
            EXPECT_EQ(error.Line(), 0U) << error.what();
        }
    }
}

TEST_F(SmallCompany, ListsItsReconciliations) {
    const auto host = Open("");
    const auto rows = host->CurrentCompany().Reconciliations().OpenRecords();
    const Column id = rows->GetColumns().At("ID");
    const Column date = rows->GetColumns().At("BankConcilDate");
    EXPECT_EQ(rows->Current().Integer(id), 1);
    EXPECT_EQ(rows->Current().Day(date), Day("2024-12-31"));
    rows->MoveNext();
    EXPECT_EQ(rows->Current().Integer(id), 3);
    rows->MoveNext();
    EXPECT_TRUE(rows->AtEnd());
}

}  // namespace
}  // namespace varnel::company
