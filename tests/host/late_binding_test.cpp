#include <gtest/gtest.h>

#include "host/surface.h"
#include "host/variant.h"
#include "tests/support/error_of.h"

namespace varnel::test {
namespace {

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
