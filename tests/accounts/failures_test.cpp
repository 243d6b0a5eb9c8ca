#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "accounts/cgl_accts.h"
#include "tests/accounts/account_rows.h"
#include "tests/support/error_of.h"
#include "tests/support/memory_host.h"

namespace varnel::test {
namespace {

using testing::MatchesRegex;

/// Form B of each member that a failure went through, innermost first.
std::string Through(const std::string& description, std::initializer_list<const char*> members) {
    std::string pattern = description;
    for (const std::string member : members)
        pattern += " \\(Varnel\\.CGLAccts\\." + member + " component failure at line:[1-9][0-9]*";
    return pattern;
}

class AccountsFailureTest : public testing::Test {
  protected:
    AccountsFailureTest() { Answer({{.id = 5}, {.id = 6}}); }

    void Answer(const std::vector<AccountRow>& rows) {
        host_->database.Answer("GLAcct", AccountRows(rows));
    }
    void Init() { accounts_.Init(host_, 0); }

    std::shared_ptr<MemoryHost> host_ = std::make_shared<MemoryHost>();
    CGLAccts accounts_;
};

TEST_F(AccountsFailureTest, LoadingNeedsAnApplication) {
    std::string description;
    EXPECT_EQ(ErrorOf([&] { accounts_.Add(0); }, &description), error_number::kObjectNotSet);
    EXPECT_THAT(description, MatchesRegex(Through("There is no application to load accounts from; "
                                                  "give one to Init first",
                                                  {"Add"})));
    EXPECT_EQ(ErrorOf([&] { accounts_.Init(nullptr, 0); }), error_number::kObjectNotSet);
}

TEST_F(AccountsFailureTest, TheSameAccountAgainEndsTheLoadWhereItComes) {
    Init();
    Answer({{.id = 7}, {.id = 6}, {.id = 8}});
    std::string description;
    EXPECT_EQ(ErrorOf([&] { accounts_.Add(0); }, &description), error_number::kDuplicateKey);
    EXPECT_THAT(
        description,
        MatchesRegex(Through("The collection has an item with the key \"6\" already", {"Add"})));
    EXPECT_EQ(accounts_.Count(), 3);
    EXPECT_EQ(accounts_.Item(3)->InGLAcctId(), 7);
    EXPECT_EQ(ErrorOf([&] { accounts_.Item("8"); }), error_number::kInvalidArgument);
}

TEST_F(AccountsFailureTest, ACellThatCannotBeReadEndsTheLoadAndKeepsWhatWasLoaded) {
    for (const Variant& currency : {Variant("euro"), Variant(2.5), Variant(1e12)}) {
        Answer({{.id = 5}, {.id = 6, .currency_id = currency}});
        CGLAccts accounts;
        EXPECT_THAT(DescriptionOf([&] { accounts.Init(host_, 0); }),
                    MatchesRegex(Through("[^(]*", {"Add", "Init"})));
        EXPECT_EQ(accounts.Count(), 1);
    }
}

TEST_F(AccountsFailureTest, AMissingColumnMattersOnlyWhenThereAreRows) {
    host_->database.Answer("GLAcct", {{"InGLAcctId"}, {}});
    Init();
    host_->database.Answer("GLAcct", {{"InGLAcctId"}, {{5}}});
    EXPECT_EQ(ErrorOf([&] { accounts_.Add(0); }), error_number::kUnknownColumn);
    EXPECT_EQ(accounts_.Count(), 0);
}

TEST_F(AccountsFailureTest, UnknownItemsFailInTheNameOfTheMember) {
    Init();
    EXPECT_THAT(
        DescriptionOf([&] { accounts_.Item("1043"); }),
        MatchesRegex(Through("The collection has no item with the key \"1043\"", {"Item"})));
    EXPECT_THAT(DescriptionOf([&] { accounts_.Remove(0); }),
                MatchesRegex(Through("The collection has no item 0; it holds 2", {"Remove"})));
    EXPECT_EQ(ErrorOf([&] { accounts_.Remove(0); }), error_number::kSubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { accounts_.Remove("4"); }), error_number::kInvalidArgument);
}

TEST_F(AccountsFailureTest, WrongArgumentsFailInTheNameOfTheMemberOnce) {
    const auto call = [&](const char* member, std::vector<Variant> arguments) {
        return DescriptionOf([&] { accounts_.Call(member, arguments); });
    };
    const std::string missing = "The method takes more arguments than the 0 it was given";
    for (const char* member : {"Init", "Add", "Item", "Remove"})
        EXPECT_THAT(call(member, {}), MatchesRegex(Through(missing, {member})));
    const ObjectRef stranger = std::make_shared<CGLAcct>();
    EXPECT_THAT(call("Init", {stranger, 0}), MatchesRegex(Through("[^(]*CGLAcct", {"Init"})));
    EXPECT_THAT(call("Init", {ObjectRef(host_), "all"}),
                MatchesRegex(Through("[^(]*\"all\"", {"Init"})));
    EXPECT_THAT(call("Add", {"all"}), MatchesRegex(Through("[^(]*\"all\"", {"Add"})));
}

TEST_F(AccountsFailureTest, AMemberAnswersOnlyToWhatItIs) {
    const auto expect_unknown = [](const std::string& member, auto&& action) {
        EXPECT_EQ(DescriptionOf(action), "CGLAccts has no member \"" + member + "\"");
        EXPECT_EQ(ErrorOf(action), error_number::kUnknownMember);
    };
    expect_unknown("Clear", [&] { accounts_.Call("Clear", {}); });
    expect_unknown("Count", [&] { accounts_.Call("Count", {}); });
    expect_unknown("Count", [&] { accounts_.Put("Count", 1); });
    expect_unknown("Add", [&] { accounts_.Get("Add"); });
}

TEST_F(AccountsFailureTest, WhicheverCallOfTheHostFailsTheLoadTellsSoAndKeepsWhatItHas) {
    int k = 1;
    for (;; ++k) {
        auto host = std::make_shared<MemoryHost>();
        host->database.Answer("GLAcct", AccountRows({{.id = 5}, {.id = 6}}));
        host->calls.FailAt(k);
        CGLAccts accounts;
        const auto description = DescriptionOf([&] { accounts.Init(host, 7); });
        if (host->calls.Count() < k) break;
        EXPECT_THAT(description,
                    MatchesRegex(Through("Host call [0-9]+, [A-Za-z.]+, failed", {"Add", "Init"})));
        const auto& last = host->calls.Names().back();
        const int moves =
            static_cast<int>(std::count(host->calls.Names().begin(), host->calls.Names().end(),
                                        std::string("Recordset.MoveNext")));
        EXPECT_EQ(accounts.Count(), last == "Recordset.MoveNext" ? moves - 1 : moves) << last;
    }
    EXPECT_GT(k, 8);
}

}  // namespace
}  // namespace varnel::test
