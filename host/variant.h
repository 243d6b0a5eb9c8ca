#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "host/currency.h"
#include "host/date.h"
#include "host/object.h"

namespace varnel {

/// A value whose type is known at run time: what late-bound members, query parameters and message
/// arguments carry.
///
/// The accessors convert as the reader asks, exactly or not at all: error 13 (type mismatch) when
/// the value has no such reading, error 6 when it does not fit. Null has none: ask `IsNull` first.
/// Empty reads as 0, "" or False. Text is UTF-8.
class Variant {
  public:
    struct Null {};

    Variant() = default;
    Variant(Null) : value_(Null{}) {}
    Variant(bool value) : value_(value) {}
    Variant(std::int16_t value) : value_(value) {}
    Variant(std::int32_t value) : value_(value) {}
    Variant(double value) : value_(value) {}
    Variant(Currency value) : value_(value) {}
    Variant(Date value) : value_(value) {}
    Variant(std::string value) : value_(std::move(value)) {}
    Variant(std::string_view value) : value_(std::string(value)) {}
    Variant(const char* value) : value_(std::string(value)) {}
    Variant(ObjectRef value) : value_(std::move(value)) {}

    template <class T>
    bool Holds() const {
        return std::holds_alternative<T>(value_);
    }
    bool IsEmpty() const { return Holds<std::monostate>(); }
    bool IsNull() const { return Holds<Null>(); }

    /// True for any non-zero number and for the texts "True" and "-1", in any case. The text
    /// "False" and "0" are false.
    bool ToBool() const;
    std::int16_t ToInteger16() const;
    std::int32_t ToInteger32() const;
    double ToDouble() const;
    Currency ToCurrency() const;
    Date ToDate() const;
    /// Integers in decimal, True and False as words, amounts and dates in their plain form (point,
    /// ISO).
    std::string ToText() const;
    /// The reference, which may be empty; error 13 when the value is no object.
    ObjectRef ToObject() const;

    /// The name of the held type, for messages: "text", "date", …
    const char* TypeName() const;

  private:
    [[noreturn]] void Mismatch(const char* wanted) const;
    std::int64_t ToInteger(const char* wanted) const;

    std::variant<std::monostate, Null, bool, std::int16_t, std::int32_t, double, Currency, Date,
                 std::string, ObjectRef>
        value_;
};

}  // namespace varnel
