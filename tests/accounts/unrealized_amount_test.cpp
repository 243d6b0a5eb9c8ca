#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "accounts/cgl_acct_helper.h"
#include "framework/create_object.h"
#include "tests/support/error_of.h"
#include "tests/support/memory_host.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;
using testing::MatchesRegex;

#define ROWS                                                                            \
    "SELECT GLAcct.InGLAcctId, GLDet.ExCurrencyId, GLDet.DetDate,        GLDet.SeqNo, " \
    "GLDet.DetDesc, GLDet.ExChangeRate, SUM(ForeignAmnt) As AcctBalForeign,        "    \
    "SUM(DetAmnt) As AcctBalHome, GLDet.ExProjId, WorldCurrency.CurrencyCode, "         \
    "WorldCurrency.Descr FROM (GLAcct INNER JOIN GLDet ON GLAcct.InGLAcctId = "         \
    "GLDet.ExAcctId) LEFT JOIN WorldCurrency on GLDet.ExCurrencyID = "                  \
    "WorldCurrency.InCurrencyId WHERE ((ChqAcct<>0 AND GLAcct.ExCurrencyId <> ?) OR "   \
    "InGLAcctId IN ( 1200,2100 )) AND GLDet.ExCurrencyId <> ? AND GLDet.DetDate <= ? "
#define GROUPED                                                                          \
    " GROUP BY GLAcct.InGLAcctId, WorldCurrency.CurrencyCode, WorldCurrency.Descr,     " \
    "   GLDet.ExCurrencyId, GLDet.DetDate, GLDet.SeqNo, GLDet.ExChangeRate, "            \
    "GLDet.DetDesc, GLDet.ExProjId"

class UnrealizedAmountTest : public testing::Test {
  protected:
    UnrealizedAmountTest() {
        auto& info = host->company.currency_info;
        info.records.push_back({.id = 2, .code = "USD", .description = "US dollar"});
        info.control_account_ids = "1200,2100";
        rates->Set(2, Rate::Parse("1.3725"));
        Answer({{2, "0.02", "0.0201"}, {2, "0.02", "0.01"}, {2, "-100", "-130"}});
        helper.Init(host);
    }
    struct Balance {
        std::int32_t currency_id;
        const char* foreign;
        const char* home;
    };
    void Answer(const std::vector<Balance>& balances) {
        RowSet rows{{"ExCurrencyId", "ExChangeRate", "AcctBalForeign", "AcctBalHome"}, {}};
        for (const auto& balance : balances)
            rows.rows.push_back({balance.currency_id, "1.25", Currency::Parse(balance.foreign),
                                 Currency::Parse(balance.home)});
        host->database.Answer("SUM(ForeignAmnt)", rows);
    }
    std::string Amount(bool reevaluate = true, const std::string& projects = "") {
        return helper.GetPLUnrealOnExchangeRateAmount(end, reevaluate, rates, projects).ToText();
    }

    const Date end = Date::ParseIso("2025-03-31");
    std::shared_ptr<MemoryHost> host = std::make_shared<MemoryHost>();
    std::shared_ptr<RateCollection> rates = std::make_shared<RateCollection>();
    CGLAcctHelper helper;
};

// 0.03 + 0.03 - 137.25, less 0.0301 - 130.
TEST_F(UnrealizedAmountTest, IsWhatBalancesAreWorthRowByRowLessWhatWasBooked) {
    EXPECT_EQ(Amount(), "-7.2201");
}

TEST_F(UnrealizedAmountTest, IsZeroWhenNothingIsRevaluedAndInACompanyOfOneCurrency) {
    EXPECT_EQ(Amount(false), "0.0000");
    EXPECT_TRUE(host->database.Commands().empty());
    host->company.currency_info.records.pop_back();
    rates = nullptr;
    EXPECT_EQ(Amount(), "0.0000");
}

TEST_F(UnrealizedAmountTest, AsksForAllProjectsOrThoseOfTheList) {
    Amount();
    Amount(true, "3,8");
    const auto& commands = host->database.Commands();
    EXPECT_EQ(commands.at(0)->text, ROWS GROUPED);
    EXPECT_EQ(commands.at(1)->text, ROWS " AND ExProjId IN ( 3,8 ) " GROUPED);
    EXPECT_THAT(commands[1]->calls,
                ElementsAre("timeout 0", "connection memory", "text", "parameter 1", "parameter 1",
                            "parameter 2025-03-31", "execute -1"));
    EXPECT_TRUE(commands[1]->parameters.back().Holds<Date>());
}

TEST_F(UnrealizedAmountTest, IsReachedByNameOnTheClassThatHostsCreate) {
    const auto made = CreateObject("Varnel.CGLAcctHelper");
    const Variant application[] = {ObjectRef(host)};
    made->Call("Init", application);
    const Variant arguments[] = {end, true, ObjectRef(rates), "3"};
    const auto amount = made->Call("GetPLUnrealOnExchangeRateAmount", arguments);
    EXPECT_TRUE(amount.Holds<Currency>());
    EXPECT_EQ(amount.ToCurrency().ToText(), "-7.2201");
    EXPECT_THAT(host->database.Commands().at(0)->text, testing::HasSubstr("IN ( 3 )"));
}

TEST_F(UnrealizedAmountTest, IsThatOfTheRunningHostWithoutOneOfItsOwn) {
    helper = {};
    EXPECT_EQ(ErrorOf([&] { Amount(); }), error_number::kObjectNotSet);
    SetRunningHost(host);
    EXPECT_EQ(Amount(), "-7.2201");
    SetRunningHost({});
}

constexpr const char* kFormB =
    " \\(Varnel\\.CGLAcctHelper\\.GetPLUnrealOnExchangeRateAmount component failure at line:"
    "[1-9][0-9]*";

TEST_F(UnrealizedAmountTest, FailsInFormBWhereARateOrTheRatesAreMissing) {
    Answer({{2, "1", "1"}, {3, "1", "1"}});
    EXPECT_THAT(DescriptionOf([&] { Amount(); }), MatchesRegex(std::string(".*3.*") + kFormB));
    EXPECT_EQ(ErrorOf([&] { Amount(); }), error_number::kInvalidArgument);
    rates = nullptr;
    EXPECT_THAT(DescriptionOf([&] { Amount(); }),
                MatchesRegex(std::string("There are no exchange rates.*") + kFormB));
}

TEST_F(UnrealizedAmountTest, FailsInFormBForArgumentsThatAreMissingOrOfAnotherType) {
    const auto call = [&](std::vector<Variant> arguments) {
        return DescriptionOf([&] { helper.Call("GetPLUnrealOnExchangeRateAmount", arguments); });
    };
    EXPECT_THAT(
        call({end, true, ObjectRef(rates)}),
        MatchesRegex(std::string("The method takes more arguments than the 3 it was given") +
                     kFormB));
    EXPECT_THAT(call({end, true, ObjectRef(host), ""}), MatchesRegex(std::string(".*") + kFormB));
}

TEST_F(UnrealizedAmountTest, FailsInFormBWhateverHostCallFails) {
    const int before = host->calls.Count();
    Amount();
    const int calls = host->calls.Count() - before;
    ASSERT_GT(calls, 10);
    for (int k = 1; k <= calls; ++k) {
        host->calls.FailAt(host->calls.Count() + k);
        EXPECT_THAT(DescriptionOf([&] { Amount(); }),
                    MatchesRegex(std::string("Host call [0-9]+, .*, failed") + kFormB))
            << k;
    }
}

}  // namespace
}  // namespace varnel::test
