#include "host/variant.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "tests/support/error_of.h"

namespace varnel::test {
namespace {

const Date kDay = Date::ParseIso("2025-03-31");
const Currency kAmount = Currency::Parse("1234.50");

struct ConversionCase {
    const char* name;
    Variant value;
    // What each accessor gives, as text; "-" is error 13 and "6" error 6.
    const char* truth;
    const char* integer;
    const char* amount;
    const char* date;
    const char* text;
};

template <class Read>
std::string Outcome(Read&& read) {
    std::string outcome;
    switch (ErrorOf([&] { outcome = read(); })) {
        case 0:
            return outcome;
        case error_number::kTypeMismatch:
            return "-";
        case error_number::kOverflow:
            return "6";
        default:
            return "another error";
    }
}

const ConversionCase kConversions[] = {
    {"empty", Variant(), "False", "0", "0", "1899-12-30", ""},
    {"null", Variant::Null{}, "-", "-", "-", "-", "-"},
    {"true", true, "True", "-1", "-1", "1899-12-29", "True"},
    {"false", false, "False", "0", "0", "1899-12-30", "False"},
    {"int16", std::int16_t{1}, "True", "1", "1", "1899-12-31", "1"},
    {"int32", 2'958'465, "True", "2958465", "2958465", "9999-12-31", "2958465"},
    {"whole double", 42.0, "True", "42", "42", "1900-02-10", "42"},
    {"fraction", 0.5, "True", "-", "0.5", "-", "0.5"},
    {"large double", 3e9, "True", "6", "3000000000", "6", "3000000000"},
    {"huge double", 1e300, "True", "-", "6", "-", "1e+300"},
    {"amount", kAmount, "True", "-", "1234.5", "-", "1234.5"},
    {"whole amount", Currency::Parse("12.00"), "True", "12", "12", "1900-01-11", "12"},
    {"date", kDay, "-", "-", "-", "2025-03-31", "2025-03-31"},
    {"digits", "1234", "True", "1234", "1234", "-", "1234"},
    {"decimals", "12.5", "-", "-", "12.5", "-", "12.5"},
    {"minus one", "-1", "True", "-1", "-1", "-", "-1"},
    {"zero", "0", "False", "0", "0", "-", "0"},
    {"TRUE", "TRUE", "True", "-", "-", "-", "TRUE"},
    {"False", "False", "False", "-", "-", "-", "False"},
    {"no text", "", "False", "-", "-", "-", ""},
    {"iso", "2025-03-31", "-", "-", "-", "2025-03-31", "2025-03-31"},
    {"word", "maybe", "-", "-", "-", "-", "maybe"},
    {"object", ObjectRef(), "-", "-", "-", "-", "-"}};

TEST(VariantTest, GivesTheValueOrAnErrorNeverAGuess) {
    for (const auto& [name, value, truth, integer, amount, date, text] : kConversions) {
        SCOPED_TRACE(name);
        const Variant& tried = value;
        EXPECT_EQ(Outcome([&] { return std::string(tried.ToBool() ? "True" : "False"); }), truth);
        EXPECT_EQ(Outcome([&] { return std::to_string(tried.ToInteger32()); }), integer);
        EXPECT_EQ(Outcome([&] { return tried.ToCurrency().ToText(0); }), amount);
        EXPECT_EQ(Outcome([&] { return tried.ToDate().ToIso(); }), date);
        EXPECT_EQ(Outcome([&] { return tried.ToText(); }), text);
    }
}

TEST(VariantTest, SixteenBitsAreTheirOwnLimit) {
    EXPECT_EQ(Variant(32'767).ToInteger16(), 32'767);
    EXPECT_EQ(Variant("-32768").ToInteger16(), -32'768);
    EXPECT_EQ(DescriptionOf([] { (void)Variant(32'768).ToInteger16(); }),
              "32768 does not fit in a 16-bit integer");
    EXPECT_EQ(ErrorOf([] { (void)Variant("2147483648").ToInteger32(); }), error_number::kOverflow);
}

TEST(VariantTest, NumbersReadAsBinaryOnlyWhenAskedFor) {
    EXPECT_DOUBLE_EQ(Variant(kAmount).ToDouble(), 1234.5);
    EXPECT_DOUBLE_EQ(Variant("2.5e3").ToDouble(), 2500);
    EXPECT_DOUBLE_EQ(Variant(std::int16_t{-7}).ToDouble(), -7);
    EXPECT_EQ(ErrorOf([] { (void)Variant("2.5 ").ToDouble(); }), error_number::kTypeMismatch);
    EXPECT_EQ(ErrorOf([] { (void)Variant(kDay).ToDouble(); }), error_number::kTypeMismatch);
}

TEST(VariantTest, MismatchMessagesSayWhatIsNeededAndWhatIsHeld) {
    EXPECT_EQ(DescriptionOf([] { (void)Variant("maybe").ToBool(); }),
              "A value is needed that reads as True or False, not this text \"maybe\"");
    EXPECT_EQ(DescriptionOf([] { (void)Variant(Variant::Null{}).ToInteger32(); }),
              "A value is needed that reads as a 32-bit integer, not this null");
}

TEST(VariantTest, AReferenceMayBeEmpty) {
    EXPECT_EQ(Variant(ObjectRef()).ToObject(), nullptr);
    EXPECT_EQ(Variant().ToObject(), nullptr);
    EXPECT_EQ(ErrorOf([] { (void)Variant("text").ToObject(); }), error_number::kTypeMismatch);
}

}  // namespace
}  // namespace varnel::test
