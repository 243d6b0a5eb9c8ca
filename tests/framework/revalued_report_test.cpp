#include "framework/revalued_report.h"

#include <gtest/gtest.h>

#include "framework/exchange_rates_note.h"
#include "framework/standard_header.h"
#include "tests/support/error_of.h"
#include "tests/support/memory_host.h"

namespace varnel::framework {
namespace {

using test::ErrorOf;

struct Rates final : MemberParts, RevaluedReport {
    Rates() : RevaluedReport(static_cast<MemberParts&>(*this)) {}
};

LedgerBalance Balance(std::int32_t currency_id, const char* foreign, const char* home) {
    return {.currency_id = currency_id,
            .booked_rate = Rate::Parse("1.25"),
            .foreign = Currency::Parse(foreign),
            .home = Currency::Parse(home)};
}

class Revaluing : public testing::Test {
  protected:
    Revaluing() {
        info.records.push_back({.id = 2, .code = "USD", .description = "US dollar"});
        rates.IExchangeRates_ExchangeRates(std::make_shared<RateCollection>());
        rates.IExchangeRates_ExchangeRates()->Set("2", Rate::Parse("1.3725"));
        rates.IExchangeRates_Reevaluate(true);
    }
    /// "revalued gain"
    static std::string Text(const Revaluation& r) {
        return r.revalued.ToText() + " " + r.gain.ToText();
    }
    std::string Evaluated(const LedgerBalance& balance) {
        return Text(Revaluer(info, rates).Evaluate(balance));
    }

    test::MemoryHost host;
    test::MemoryCurrencyInfo& info = host.company.currency_info;
    Rates rates;
};

TEST_F(Revaluing, RoundsOnceToTheCentAndKeepsTheGainExact) {
    EXPECT_EQ(Evaluated(Balance(2, "100.01", "130.1234")), "137.2600 7.1366");
    EXPECT_EQ(Evaluated(Balance(2, "-100.01", "-130.1234")), "-137.2600 -7.1366");
    rates.IExchangeRates_ExchangeRates()->Set("2", Rate::Parse("1.3736"));
    EXPECT_EQ(Evaluated(Balance(2, "3.6", "0")), "4.9400 4.9400") << "4.94496, not 4.9450";
}

TEST_F(Revaluing, TakesTheBookedRateWhenItIsOff) {
    rates.IExchangeRates_Reevaluate(false);
    EXPECT_EQ(Evaluated(Balance(2, "100", "130")), "125.0000 -5.0000");
}

TEST_F(Revaluing, LeavesHomeCurrencyAndACompanyOfOneCurrencyAsBooked) {
    EXPECT_EQ(Evaluated(Balance(1, "77", "80")), "80.0000 0.0000");
    info.records.pop_back();
    EXPECT_EQ(Evaluated(Balance(2, "77", "80")), "80.0000 0.0000");
}

TEST_F(Revaluing, TakesTheKeyedRateWhetherItIsOnOrOff) {
    rates.IExchangeRates_Reevaluate(false);
    const auto* given = rates.IExchangeRates_ExchangeRates().get();
    EXPECT_EQ(Text(EvaluateAtKeyedRate(info, given, "31 March", Balance(2, "10", "13"))),
              "13.7300 0.7300");
    info.records.push_back({.id = 3, .code = "EUR", .description = "Euro"});
    EXPECT_EQ(test::DescriptionOf(
                  [&] { EvaluateAtKeyedRate(info, given, "31 March", Balance(3, "10", "13")); }),
              "There is no exchange rate for EUR at 31 March; enter one or give one");
    EXPECT_EQ(ErrorOf([&] { EvaluateAtKeyedRate(info, nullptr, "", Balance(2, "10", "13")); }),
              error_number::kObjectNotSet);
}

const Layout kLayout{
    .name = "dsrTried",
    .sections = {{.name = "PageHeader",
                  .kind = SectionKind::kPageHeader,
                  .controls = PageHeaderControlsWithRates({{.name = "lblFirst",
                                                            .kind = ControlKind::kLabel,
                                                            .box = {0, 0, 500, 270},
                                                            .caption = 1912}})},
                 {.name = "Detail"}}};

TEST_F(Revaluing, ShowsItsRatesUnderThePeriodOnlyWhereThereAreSeveralCurrencies) {
    host.texts[5914] = "Exchange &rates ({0})";
    Surface surface(kLayout);
    Section& header = surface.SectionAt("PageHeader");
    ShowExchangeRatesNote(host, surface, rates);
    ReplacePageHeaderControls(header);
    EXPECT_EQ(surface.At("txtExchangeRate").Text(), "Exchange rates (USD 1.3725)");
    EXPECT_EQ(surface.At("lblFirst").Place().top, 1'210);

    info.records.pop_back();
    ShowExchangeRatesNote(host, surface, rates);
    ReplacePageHeaderControls(header);
    EXPECT_FALSE(surface.At("txtExchangeRate").Visible());
    EXPECT_EQ(surface.At("lblFirst").Place().top, 990);
}

}  // namespace
}  // namespace varnel::framework
