#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "accounts/cgl_acct.h"
#include "framework/create_object.h"
#include "tests/support/error_of.h"

namespace varnel::test {
namespace {

using testing::MatchesRegex;

/// A property with a value that it keeps and, where there is one, a value that it cannot read.
struct Property {
    const char* name;
    Variant kept;
    const char* type_name;
    const char* new_text;
    Variant unreadable;
};

const Property kProperties[] = {
    {"ExCurrencyId", 3, "32-bit integer", "0", "three"},
    {"GIFIAcctId", "1001", "text", "", Variant::Null{}},
    {"GroupType", 2, "32-bit integer", "0", 2.5},
    {"ChqAcct", true, "Boolean", "False", "perhaps"},
    {"InActive", true, "Boolean", "False", Variant::Null{}},
    {"Descr", "Petty cash", "text", "", Variant::Null{}},
    {"GLAcctId", "1040", "text", "", Variant::Null{}},
    {"InGLAcctId", 1043, "32-bit integer", "0", 1e10},
};

TEST(AccountTest, ANewOneIsEmptyAndKeepsWhatEachPropertyIsGiven) {
    for (const auto& property : kProperties) {
        const ObjectRef account = CreateObject("Varnel.CGLAcct");
        EXPECT_EQ(account->Get(property.name).ToText(), property.new_text) << property.name;
        EXPECT_STREQ(account->Get(property.name).TypeName(), property.type_name) << property.name;
        account->Put(property.name, property.kept);
        for (const auto& other : kProperties) {
            const bool same = &other == &property;
            EXPECT_EQ(account->Get(other.name).ToText(),
                      same ? property.kept.ToText() : other.new_text)
                << other.name;
        }
    }
}

TEST(AccountTest, AValueThatCannotBeReadRaisesTheErrorWithTheNameOfTheProperty) {
    CGLAcct account;
    const auto expect = [&](const std::string& name, const Variant& value) {
        const std::string description = DescriptionOf([&] { account.Put(name, value); });
        EXPECT_THAT(description, MatchesRegex("[^(]* \\(Varnel\\.CGLAcct\\." + name +
                                              " component failure at line:[1-9][0-9]*"));
    };
    for (const auto& property : kProperties) expect(property.name, property.unreadable);
    expect("AcctType", "asset");
    expect("BqAcct", "perhaps");
    EXPECT_EQ(ErrorOf([&] { account.Put("InGLAcctId", 1e10); }), error_number::kOverflow);
    EXPECT_EQ(ErrorOf([&] { account.Put("BqAcct", "perhaps"); }), error_number::kTypeMismatch);
}

TEST(AccountTest, NamesIgnoreCaseAndFailuresShowTheSpellingOfTheProperty) {
    CGLAcct account;
    account.Put("glacctid", "1040");
    EXPECT_EQ(account.GLAcctId(), "1040");
    EXPECT_THAT(DescriptionOf([&] { account.Put("INACTIVE", "perhaps"); }),
                testing::HasSubstr(" (Varnel.CGLAcct.InActive component failure at line:"));
}

TEST(AccountTest, TypeAndBankFlagAreHollow) {
    CGLAcct account;
    account.SetAcctType(4);
    account.SetBqAcct(true);
    account.Put("AcctType", 5);
    account.Put("BqAcct", true);
    EXPECT_EQ(account.AcctType(), 0);
    EXPECT_FALSE(account.BqAcct());
    EXPECT_EQ(account.Get("AcctType").ToText(), "0");
    EXPECT_EQ(account.Get("BqAcct").ToText(), "False");
}

TEST(AccountTest, TheNoteKeepsAnyValueAndReferencesToObjects) {
    CGLAcct account;
    EXPECT_TRUE(account.Get("Note").IsEmpty());
    account.Put("Note", Date::ParseIso("2025-01-31"));
    EXPECT_TRUE(account.Get("Note").Holds<Date>());
    const auto object = std::make_shared<CGLAcct>();
    account.Put("Note", ObjectRef(object));
    EXPECT_EQ(account.Get("Note").ToObject(), object);
    EXPECT_EQ(account.Note().ToObject(), object);
}

TEST(AccountTest, AnUnknownPropertyIsAnErrorOfTheObject) {
    CGLAcct account;
    EXPECT_EQ(DescriptionOf([&] { account.Get("Balance"); }), "CGLAcct has no member \"Balance\"");
    EXPECT_EQ(ErrorOf([&] { account.Put("Balance", 1); }), error_number::kUnknownMember);
}

}  // namespace
}  // namespace varnel::test
