#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "accounts/cgl_accts.h"
#include "framework/create_object.h"
#include "tests/accounts/account_rows.h"
#include "tests/support/error_of.h"
#include "tests/support/memory_host.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

class LoadTest : public testing::Test {
  protected:
    /// The one account that is loaded from this row.
    const CGLAcct& Load(const AccountRow& row) {
        host_->database.Answer("GLAcct", AccountRows({row}));
        accounts_.Init(host_, 0);
        return *accounts_.Item(1);
    }

    std::shared_ptr<MemoryHost> host_ = std::make_shared<MemoryHost>();
    CGLAccts accounts_;
};

TEST_F(LoadTest, EveryColumnReachesItsProperty) {
    const CGLAcct& account = Load({.id = 1043,
                                   .number = "1040-10",
                                   .description = "Bank, US dollars",
                                   .inactive = true,
                                   .note = "Main branch",
                                   .gifi = "1002",
                                   .currency_id = Currency::FromWhole(7)});
    EXPECT_EQ(account.InGLAcctId(), 1043);
    EXPECT_EQ(account.GLAcctId(), "1040-10");
    EXPECT_EQ(account.Descr(), "Bank, US dollars");
    EXPECT_TRUE(account.InActive());
    EXPECT_FALSE(account.ChqAcct());
    EXPECT_EQ(account.GroupType(), 2);
    EXPECT_EQ(account.Note().ToText(), "Main branch");
    EXPECT_EQ(account.GIFIAcctId(), "1002");
    EXPECT_EQ(account.ExCurrencyId(), 7);
    EXPECT_EQ(account.AcctType(), 0);
    EXPECT_FALSE(account.BqAcct());
}

TEST_F(LoadTest, NullsReadAsEmptyNoteGifiZeroAndNoCurrency) {
    const CGLAcct& account = Load({.id = 1, .cheque = true});
    EXPECT_TRUE(account.Note().Holds<std::string>());
    EXPECT_EQ(account.Note().ToText(), "");
    EXPECT_EQ(account.GIFIAcctId(), "0");
    EXPECT_EQ(account.ExCurrencyId(), 0);
    EXPECT_TRUE(account.ChqAcct());
    EXPECT_FALSE(account.InActive());
}

TEST_F(LoadTest, AnEmptyGifiCodeStaysEmptyAndNumbersReadAsText) {
    const CGLAcct& account = Load({.id = 1, .number = 1040, .gifi = ""});
    EXPECT_EQ(account.GIFIAcctId(), "");
    EXPECT_EQ(account.GLAcctId(), "1040");
}

TEST_F(LoadTest, AllAccountsAreAskedForOrThoseOfACurrency) {
    host_->database.Answer("GLAcct", AccountRows({}));
    accounts_.Init(host_, 0);
    accounts_.Init(host_, 7);
    const auto& commands = host_->database.Commands();
    ASSERT_EQ(commands.size(), 2u);
    EXPECT_EQ(commands[0]->text, kLoadAll);
    EXPECT_TRUE(commands[0]->parameters.empty());
    EXPECT_EQ(commands[1]->text, kLoadOneCurrency);
    ASSERT_EQ(commands[1]->parameters.size(), 1u);
    EXPECT_TRUE(commands[1]->parameters[0].Holds<std::int32_t>());
    EXPECT_EQ(commands[1]->parameters[0].ToInteger32(), 7);
}

TEST_F(LoadTest, AccountsKeepTheOrderOfTheRowsAndAnswerToTheirInternalIds) {
    host_->database.Answer("GLAcct", AccountRows({{.id = 1043, .description = "Bank"},
                                                  {.id = 7, .description = "Cash"},
                                                  {.id = 1, .description = "Land"}}));
    accounts_.Init(host_, 0);
    EXPECT_EQ(accounts_.Count(), 3);
    EXPECT_EQ(accounts_.Item("1043")->Descr(), "Bank");
    EXPECT_EQ(accounts_.Item("1")->Descr(), "Land");
    EXPECT_EQ(accounts_.Item(1)->Descr(), "Bank");
    std::vector<std::string> texts;
    for (const auto& account : accounts_) texts.push_back(account->Descr());
    EXPECT_THAT(texts, ElementsAre("Bank", "Cash", "Land"));
}

TEST_F(LoadTest, AnAccountWithoutInternalIdHasNoKey) {
    const AccountRow nameless{.id = Variant::Null{}};
    host_->database.Answer("GLAcct", AccountRows({nameless, nameless}));
    accounts_.Init(host_, 0);
    EXPECT_EQ(accounts_.Count(), 2);
    EXPECT_EQ(ErrorOf([&] { accounts_.Item("0"); }), error_number::kInvalidArgument);
}

TEST_F(LoadTest, TheRowSetIsKeptOnItsFirstRowUntilTheNextLoad) {
    EXPECT_EQ(accounts_.GLAcctRs(), nullptr);
    host_->database.Answer("GLAcct", AccountRows({{.id = 5}, {.id = 6}}));
    accounts_.Init(host_, 0);
    const auto rows = accounts_.GLAcctRs();
    ASSERT_FALSE(rows->AtEnd());
    EXPECT_EQ(rows->Current().Integer(rows->GetColumns().At("InGLAcctId")), 5);
    host_->database.Answer("GLAcct", AccountRows({}));
    accounts_.Add(3);
    EXPECT_NE(accounts_.GLAcctRs(), rows);
    EXPECT_TRUE(accounts_.GLAcctRs()->AtEnd());
}

TEST_F(LoadTest, LoadsAppendAndAnEmptyTableAddsNothing) {
    host_->database.Answer("GLAcct", AccountRows({}));
    accounts_.Init(host_, 0);
    EXPECT_EQ(accounts_.Count(), 0);
    host_->database.Answer("GLAcct", AccountRows({{.id = 5}}));
    EXPECT_EQ(accounts_.Add(2), nullptr);
    host_->database.Answer("GLAcct", AccountRows({{.id = 4}}));
    accounts_.Add(3);
    EXPECT_EQ(accounts_.Count(), 2);
    EXPECT_EQ(accounts_.Item(2)->InGLAcctId(), 4);
}

TEST_F(LoadTest, HostsUseThemLateBound) {
    host_->database.Answer("GLAcct", AccountRows({{.id = 8}, {.id = 9}}));
    const ObjectRef accounts = CreateObject("Varnel.CGLAccts");
    const auto call = [&](const char* name, std::vector<Variant> arguments) {
        return accounts->Call(name, arguments);
    };
    call("Init", {ObjectRef(host_), 0});
    EXPECT_EQ(accounts->Get("Count").ToInteger32(), 2);
    EXPECT_EQ(call("Item", {"9"}).ToObject()->Get("InGLAcctId").ToInteger32(), 9);
    call("Remove", {1});
    EXPECT_EQ(call("Item", {1}).ToObject()->Get("InGLAcctId").ToInteger32(), 9);
    for (const auto& it : {accounts->Get("NewEnum"), accounts->Call("NewEnum", {})}) {
        EXPECT_NE(it.ToObject()->Call("Next", {}).ToObject(), nullptr);
        EXPECT_EQ(it.ToObject()->Call("Next", {}).ToObject(), nullptr);
    }
    EXPECT_NE(std::dynamic_pointer_cast<Recordset>(accounts->Get("GLAcctRs").ToObject()), nullptr);
    host_->database.Answer("GLAcct", AccountRows({}));
    EXPECT_EQ(call("Add", {4}).ToObject(), nullptr);
    EXPECT_EQ(host_->database.Commands()[1]->parameters[0].ToInteger32(), 4);
}

}  // namespace
}  // namespace varnel::test
