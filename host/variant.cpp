#include "host/variant.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "host/decimal.h"
#include "host/error.h"

namespace varnel {

namespace {

// Day number of 0100-01-01: no host counts days before it.
constexpr std::int64_t kEarliestDay = -657'434;

template <class T>
T NarrowTo(std::int64_t value) {
    if (value < std::numeric_limits<T>::min() || value > std::numeric_limits<T>::max())
        throw Error(error_number::kOverflow, "Varnel",
                    std::to_string(value) + " does not fit in a " + std::to_string(8 * sizeof(T)) +
                        "-bit integer");
    return static_cast<T>(value);
}

}  // namespace

const char* Variant::TypeName() const {
    static constexpr const char* kNames[] = {
        "empty",  "null",   "Boolean", "16-bit integer", "32-bit integer",
        "double", "amount", "date",    "text",           "object"};
    return kNames[value_.index()];
}

void Variant::Mismatch(const char* wanted) const {
    std::string held = TypeName();
    if (const auto* text = std::get_if<std::string>(&value_)) held += " \"" + *text + "\"";
    throw Error(error_number::kTypeMismatch, "Varnel",
                "A value is needed that reads as " + std::string(wanted) + ", not this " + held);
}

std::int64_t Variant::ToInteger(const char* wanted) const {
    if (IsEmpty()) return 0;
    if (const auto* truth = std::get_if<bool>(&value_)) return *truth ? -1 : 0;
    if (const auto* number = std::get_if<std::int16_t>(&value_)) return *number;
    if (const auto* number = std::get_if<std::int32_t>(&value_)) return *number;
    if (const auto* number = std::get_if<double>(&value_))
        if (*number == std::floor(*number) && std::abs(*number) < 9e15)
            return static_cast<std::int64_t>(*number);
    if (const auto* amount = std::get_if<Currency>(&value_))
        if (amount->Scaled() % Currency::kScale == 0) return amount->Scaled() / Currency::kScale;
    if (const auto* text = std::get_if<std::string>(&value_)) {
        std::int64_t number = 0;
        if (decimal::Parse(*text, 0, number) && text->find('.') == std::string::npos) return number;
    }
    Mismatch(wanted);
}

bool Variant::ToBool() const {
    if (const auto* text = std::get_if<std::string>(&value_)) {
        if (SameName(*text, "true")) return true;
        if (SameName(*text, "false") || text->empty()) return false;
    }
    if (const auto* number = std::get_if<double>(&value_)) return *number != 0;
    if (const auto* amount = std::get_if<Currency>(&value_)) return !amount->IsZero();
    return ToInteger("True or False") != 0;
}

std::int16_t Variant::ToInteger16() const {
    return NarrowTo<std::int16_t>(ToInteger("a 16-bit integer"));
}

std::int32_t Variant::ToInteger32() const {
    return NarrowTo<std::int32_t>(ToInteger("a 32-bit integer"));
}

double Variant::ToDouble() const {
    if (const auto* number = std::get_if<double>(&value_)) return *number;
    if (const auto* amount = std::get_if<Currency>(&value_)) return amount->ToDouble();
    if (const auto* text = std::get_if<std::string>(&value_)) {
        double number = 0;
        const auto* end = text->data() + text->size();
        const auto parsed = std::from_chars(text->data(), end, number);
        if (parsed.ec == std::errc{} && parsed.ptr == end) return number;
    }
    return static_cast<double>(ToInteger("a number"));
}

Currency Variant::ToCurrency() const {
    if (const auto* amount = std::get_if<Currency>(&value_)) return *amount;
    if (const auto* number = std::get_if<double>(&value_)) return Currency::FromDouble(*number);
    if (const auto* text = std::get_if<std::string>(&value_)) return Currency::Parse(*text);
    return Currency::FromWhole(ToInteger("an amount"));
}

Date Variant::ToDate() const {
    if (const auto* date = std::get_if<Date>(&value_)) return *date;
    if (const auto* text = std::get_if<std::string>(&value_)) return Date::ParseIso(*text);
    const auto day = ToInteger("a date");
    if (day < kEarliestDay || day > kOpenEnd.DayNumber())
        throw Error(error_number::kOverflow, "Varnel",
                    std::to_string(day) + " is no day number between the years 100 and 9999");
    return Date::FromDayNumber(static_cast<std::int32_t>(day));
}

std::string Variant::ToText() const {
    if (IsEmpty()) return {};
    if (const auto* text = std::get_if<std::string>(&value_)) return *text;
    if (const auto* truth = std::get_if<bool>(&value_)) return *truth ? "True" : "False";
    if (const auto* date = std::get_if<Date>(&value_)) return date->ToIso();
    if (const auto* amount = std::get_if<Currency>(&value_)) return amount->ToText(0);
    if (const auto* number = std::get_if<double>(&value_)) {
        std::string text;
        decimal::AppendDouble(*number, text);
        return text;
    }
    return std::to_string(ToInteger("text"));
}

ObjectRef Variant::ToObject() const {
    if (const auto* object = std::get_if<ObjectRef>(&value_)) return *object;
    if (IsEmpty()) return nullptr;
    Mismatch("an object reference");
}

}  // namespace varnel
