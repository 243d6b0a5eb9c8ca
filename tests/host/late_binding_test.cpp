#include <gtest/gtest.h>

#include <memory>

#include "host/member_table.h"
#include "host/surface.h"
#include "tests/support/error_of.h"

namespace varnel::test {
namespace {

/// A class with one member of each sort.
class Counter : public Object {
  public:
    std::string_view ObjectName() const override { return "Counter"; }
    Variant Get(std::string_view name) override;
    void Put(std::string_view name, const Variant& value) override;
    Variant Call(std::string_view name, std::span<const Variant> arguments) override;

    std::int32_t count = 0;
};

constexpr Member<Counter> kMembers[] = {
    {"Count", [](Counter& c) -> Variant { return c.count; },
     [](Counter& c, const Variant& v) { c.count = v.ToInteger32(); }},
    {"IsZero", [](Counter& c) -> Variant { return c.count == 0; }},
    {"Add", nullptr, nullptr,
     [](Counter& c, std::span<const Variant> arguments) -> Variant {
         for (const auto& argument : arguments) c.count += argument.ToInteger32();
         return c.count;
     }},
};

Variant Counter::Get(std::string_view name) { return GetMember<Counter>(kMembers, *this, name); }

void Counter::Put(std::string_view name, const Variant& value) {
    PutMember<Counter>(kMembers, *this, name, value);
}

Variant Counter::Call(std::string_view name, std::span<const Variant> arguments) {
    return CallMember<Counter>(kMembers, *this, name, arguments);
}

TEST(LateBindingTest, MembersAreReachedByNameWhateverTheCase) {
    Counter counter;
    counter.Put("COUNT", "5");
    EXPECT_EQ(counter.Get("count").ToInteger32(), 5);
    const Variant arguments[] = {std::int16_t{2}, 3};
    EXPECT_EQ(counter.Call("aDD", arguments).ToInteger32(), 10);
    EXPECT_FALSE(counter.Get("iszero").ToBool());
}

TEST(LateBindingTest, WhatAMemberDoesNotOfferIsError438NamingObjectAndMember) {
    Counter counter;
    const auto expect_unknown = [](const std::string& member, auto&& action) {
        std::string description;
        EXPECT_EQ(ErrorOf(action, &description), error_number::kUnknownMember);
        EXPECT_EQ(description, "Counter has no member \"" + member + "\"");
    };
    expect_unknown("Total", [&] { counter.Get("Total"); });
    expect_unknown("Total", [&] { counter.Put("Total", 1); });
    expect_unknown("Total", [&] { counter.Call("Total", {}); });
    expect_unknown("IsZero", [&] { counter.Put("IsZero", true); });
    expect_unknown("Add", [&] { counter.Get("Add"); });
    expect_unknown("Count", [&] { counter.Call("Count", {}); });
}

TEST(LateBindingTest, AnObjectThatOffersNothingSaysSo) {
    class Silent : public Object {};
    Silent silent;
    EXPECT_EQ(DescriptionOf([&] { silent.Get("Anything"); }), "Object has no member \"Anything\"");
    EXPECT_EQ(ErrorOf([&] { silent.Put("Anything", 1); }), error_number::kUnknownMember);
    EXPECT_EQ(ErrorOf([&] { silent.Call("Anything", {}); }), error_number::kUnknownMember);
}

TEST(LateBindingTest, OnlyLettersOfTheAlphabetFoldTheirCase) {
    EXPECT_TRUE(SameName("txtDebit", "TXTDEBIT"));
    EXPECT_FALSE(SameName("txtDebit", "txtDebit2"));
    EXPECT_FALSE(SameName("a[", "a{"));
    EXPECT_FALSE(SameName("\xC3\x89", "\xC3\xA9"));
}

class ControlMembersTest : public testing::Test {
  protected:
    ControlLayout layout_{.name = "lblType", .box = {10, 20, 30, 40}, .text = "as designed"};
    Control control_{layout_};
};

TEST_F(ControlMembersTest, CaptionAndTextAreTheSame) {
    EXPECT_EQ(control_.Get("Caption").ToText(), "as designed");
    control_.Put("Caption", std::int16_t{7});
    EXPECT_EQ(control_.Get("Text").ToText(), "7");
    control_.Put("text", "else");
    EXPECT_EQ(control_.Get("CAPTION").ToText(), "else");
    EXPECT_EQ(control_.Text(), "else");
}

TEST_F(ControlMembersTest, GeometryTagAndVisibilityReachTheLiveControl) {
    control_.Put("Left", 1);
    control_.Put("Top", 2);
    control_.Put("Width", 3);
    control_.Put("Height", "4");
    EXPECT_EQ(control_.Place(), (Box{1, 2, 3, 4}));
    control_.SetPlace({5, 6, 7, 8});
    EXPECT_EQ(control_.Get("Left").ToInteger32(), 5);
    EXPECT_EQ(control_.Get("Top").ToInteger32(), 6);
    EXPECT_EQ(control_.Get("Width").ToInteger32(), 7);
    EXPECT_EQ(control_.Get("Height").ToInteger32(), 8);
    control_.Put("Tag", "GJ|12");
    control_.Put("Visible", "False");
    EXPECT_EQ(control_.Tag(), "GJ|12");
    EXPECT_FALSE(control_.Visible());
    EXPECT_EQ(ErrorOf([&] { control_.Put("Left", "wide"); }), error_number::kTypeMismatch);
}

TEST_F(ControlMembersTest, TheNameIsReadOnly) {
    EXPECT_EQ(control_.Get("Name").ToText(), "lblType");
    EXPECT_EQ(DescriptionOf([&] { control_.Put("Name", "other"); }),
              "lblType has no member \"Name\"");
    EXPECT_EQ(DescriptionOf([&] { control_.Get("Colour"); }), "lblType has no member \"Colour\"");
}

TEST_F(ControlMembersTest, ANewTextDropsTheValueBehindTheFormerOne) {
    control_.SetValue(Currency::FromWhole(5), "5.00");
    EXPECT_EQ(control_.Value(), ControlValue(Currency::FromWhole(5)));
    control_.Put("Text", "five");
    EXPECT_EQ(control_.Value(), ControlValue());
}

}  // namespace
}  // namespace varnel::test
