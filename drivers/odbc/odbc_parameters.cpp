#include "drivers/odbc/odbc_parameters.h"

#include <sql.h>
#include <sqlext.h>

#include <algorithm>
#include <cstring>

#include "drivers/odbc/odbc_error.h"
#include "drivers/odbc/utf16.h"

namespace varnel::drivers {

namespace {

constexpr SQLULEN kAmountDigits = 19;

template <class Value>
std::vector<char> BytesOf(const Value& value) {
    std::vector<char> bytes(sizeof value);
    std::memcpy(bytes.data(), &value, sizeof value);
    return bytes;
}

std::vector<char> BytesOfText(std::string_view text) {
    const WideText wide = ToUtf16(text);
    std::vector<char> bytes(wide.size() * sizeof wide.front());
    std::memcpy(bytes.data(), wide.data(), bytes.size());
    return bytes;
}

std::vector<char> BytesOfDate(Date date) {
    const auto [year, month, day] = date.Civil();
    return BytesOf(SQL_DATE_STRUCT{static_cast<SQLSMALLINT>(year), static_cast<SQLUSMALLINT>(month),
                                   static_cast<SQLUSMALLINT>(day)});
}

std::vector<char> BytesOfAmount(Currency amount) {
    const std::string text = amount.ToText();
    return {text.begin(), text.end()};
}

}  // namespace

OdbcParameters::OdbcParameters(void* statement, std::string_view text,
                               std::span<const Variant> values)
    : statement_(statement), text_(text) {
    for (const auto& value : values) Bind(value);
}

OdbcParameters::Slot OdbcParameters::SlotOf(const Variant& value) const {
    if (value.IsNull() || value.IsEmpty())
        return {SQL_C_CHAR, SQL_VARCHAR, 1, 0, {}, SQL_NULL_DATA};
    if (value.Holds<bool>() || value.Holds<std::int16_t>() || value.Holds<std::int32_t>()) {
        const SQLINTEGER number = value.Holds<bool>() ? value.ToBool() : value.ToInteger32();
        return {SQL_C_SLONG, SQL_INTEGER, 0, 0, BytesOf(number), 0};
    }
    if (value.Holds<double>())
        return {SQL_C_DOUBLE, SQL_DOUBLE, 0, 0, BytesOf(value.ToDouble()), 0};
    if (value.Holds<Date>())
        return {SQL_C_TYPE_DATE, SQL_TYPE_DATE, 10, 0, BytesOfDate(value.ToDate()), 0};
    if (value.Holds<Currency>()) {
        auto bytes = BytesOfAmount(value.ToCurrency());
        const auto length = static_cast<SQLLEN>(bytes.size());
        return {SQL_C_CHAR,          SQL_NUMERIC,      kAmountDigits,
                Currency::kDecimals, std::move(bytes), length};
    }
    auto bytes = BytesOfText(value.ToText());
    const SQLULEN characters = bytes.size() / sizeof(SQLWCHAR);
    return {SQL_C_WCHAR, SQL_WVARCHAR,     std::max<SQLULEN>(1, characters),
            0,           std::move(bytes), SQL_NTS};
}

void OdbcParameters::Bind(const Variant& value) {
    const auto number = static_cast<SQLUSMALLINT>(slots_.size() + 1);
    if (value.Holds<ObjectRef>())
        RaiseOdbc("Parameter " + std::to_string(number) + " is an object, not a value.", text_);
    Slot& slot = slots_.emplace_back(SlotOf(value));
    const auto result = SQLBindParameter(statement_, number, SQL_PARAM_INPUT, slot.c_type,
                                         slot.sql_type, slot.size, slot.decimals, slot.bytes.data(),
                                         static_cast<SQLLEN>(slot.bytes.size()), &slot.length);
    if (!SQL_SUCCEEDED(result)) RaiseOdbc(Diagnose(SQL_HANDLE_STMT, statement_), text_);
}

}  // namespace varnel::drivers
