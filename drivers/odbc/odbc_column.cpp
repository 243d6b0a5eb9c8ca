#include "drivers/odbc/odbc_column.h"

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

#include "drivers/odbc/odbc_error.h"
#include "drivers/odbc/utf16.h"
#include "host/decimal.h"

namespace varnel::drivers {

namespace {

// Longer texts are rare, and read a second time.
constexpr std::size_t kTextWidth = 256 * sizeof(SQLWCHAR);
constexpr std::size_t kShortWidth = 64;  // Of decimals and dates.
constexpr std::size_t kPiece = 8 * 1024;
constexpr SQLLEN kDateWidth = 10;  // Shown as 2025-03-31, without a time.

SQLLEN Attribute(void* statement, SQLUSMALLINT number, SQLUSMALLINT field) {
    SQLLEN value = 0;
    const auto result = SQLColAttributeW(statement, number, field, nullptr, 0, nullptr, &value);
    if (!SQL_SUCCEEDED(result)) RaiseOdbc(Diagnose(SQL_HANDLE_STMT, statement));
    return value;
}

template <class Value>
Value Load(const char* bytes) {
    Value value;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

/// Zeros after the fourth decimal say nothing.
std::string_view WithoutZeros(std::string_view text) {
    const auto mark = text.find_first_of(".,");
    if (mark == std::string_view::npos) return text;
    const auto least = mark + 1 + Currency::kDecimals;
    while (text.size() > least && text.back() == '0') text.remove_suffix(1);
    return text;
}

/// Exactly: as an amount when four decimals are enough, otherwise as the text itself, which
/// amounts and rates are read from as well. Some drivers write the decimal mark of the process.
void AddDecimal(std::string_view given, Row& row) {
    std::array<char, kShortWidth> buffer{};
    std::string_view text = WithoutZeros(given);
    const auto mark = text.find_first_of(".,");
    if (mark != std::string_view::npos && text[mark] == ',') {
        std::ranges::copy(text, buffer.begin());
        buffer[mark] = '.';
        text = {buffer.data(), text.size()};
    }
    std::int64_t scaled = 0;
    const bool four =
        mark == std::string_view::npos || text.size() - mark - 1 <= Currency::kDecimals;
    if (four && decimal::Parse(text, Currency::kDecimals, scaled))
        row.AddAmount(Currency::FromScaled(scaled));
    else
        row.AddText(text);
}

}  // namespace

OdbcColumn::Kind OdbcColumn::KindOf(short sql_type) {
    switch (sql_type) {
        case SQL_BIT:
        case SQL_TINYINT:
        case SQL_SMALLINT:
        case SQL_INTEGER:
        case SQL_BIGINT:
            return Kind::kInteger;
        case SQL_REAL:
        case SQL_FLOAT:
        case SQL_DOUBLE:
            return Kind::kReal;
        case SQL_NUMERIC:
        case SQL_DECIMAL:
            return Kind::kDecimal;
        case SQL_BINARY:
        case SQL_VARBINARY:
        case SQL_LONGVARBINARY:
            return Kind::kBinary;
        default:
            return Kind::kText;
    }
}

OdbcColumn::OdbcColumn(void* statement, unsigned short number) : number_(number) {
    std::array<SQLWCHAR, 256> name{};
    SQLSMALLINT length = 0;
    const auto result = SQLDescribeColW(statement, number, name.data(), name.size(), &length,
                                        nullptr, nullptr, nullptr, nullptr);
    if (!SQL_SUCCEEDED(result)) RaiseOdbc(Diagnose(SQL_HANDLE_STMT, statement));
    name_ = ToUtf8(name.data());
    // The precise type, of dates for one, has the driver look tables up on the server.
    const auto type = Attribute(statement, number, SQL_DESC_TYPE);
    const bool is_date =
        type == SQL_DATETIME && Attribute(statement, number, SQL_DESC_DISPLAY_SIZE) == kDateWidth;
    kind_ = is_date ? Kind::kDate : KindOf(static_cast<short>(type));
}

short OdbcColumn::CType() const {
    switch (kind_) {
        case Kind::kInteger:
            return SQL_C_SBIGINT;
        case Kind::kReal:
            return SQL_C_DOUBLE;
        case Kind::kDate:  // As a date the driver makes something of "infinity".
        case Kind::kDecimal:
            return SQL_C_CHAR;
        default:
            return SQL_C_WCHAR;  // The other would be in the character set of the process.
    }
}

std::size_t OdbcColumn::Width() const {
    switch (kind_) {
        case Kind::kInteger:
            return sizeof(SQLBIGINT);
        case Kind::kReal:
            return sizeof(SQLDOUBLE);
        case Kind::kDate:
        case Kind::kDecimal:
            return kShortWidth;
        default:
            return kTextWidth;
    }
}

bool OdbcColumn::Bind(void* statement, std::size_t rows) {
    values_.resize(rows * Width());
    lengths_.resize(rows);
    return SQL_SUCCEEDED(SQLBindCol(statement, number_, CType(), values_.data(),
                                    static_cast<SQLLEN>(Width()), lengths_.data()));
}

std::size_t OdbcColumn::UnitWidth() const {
    if (CType() == SQL_C_WCHAR) return sizeof(SQLWCHAR);
    return CType() == SQL_C_CHAR ? 1 : 0;
}

// A text ends with a 0, which has a place too.
bool OdbcColumn::IsCut(std::size_t row) const {
    if (UnitWidth() == 0) return false;
    const SQLLEN length = lengths_[row];
    return length == SQL_NO_TOTAL ||
           length + static_cast<SQLLEN>(UnitWidth()) > static_cast<SQLLEN>(Width());
}

std::string_view OdbcColumn::TextAt(std::size_t row) const {
    return {At(row), static_cast<std::size_t>(lengths_[row])};
}

bool OdbcColumn::Read(std::size_t row, std::string& text, Row& out) const {
    if (lengths_[row] == SQL_NULL_DATA) return out.AddNull(), true;
    const std::string_view bytes = TextAt(row);
    Date date;
    switch (kind_) {
        case Kind::kInteger:
            return out.AddInteger(Load<SQLBIGINT>(At(row))), true;
        case Kind::kReal:
            return out.AddReal(Load<SQLDOUBLE>(At(row))), true;
        case Kind::kDate:
            return Date::TryParseIso(bytes, date) && (out.AddDate(date), true);
        case Kind::kDecimal:
            return AddDecimal(bytes, out), true;
        default:
            text.clear();
            AppendUtf8(
                {reinterpret_cast<const SQLWCHAR*>(bytes.data()), bytes.size() / sizeof(SQLWCHAR)},
                text);
            return out.AddText(text), true;
    }
}

std::string OdbcColumn::Unreadable(std::size_t row) const {
    return "Column \"" + name_ + "\" holds a date that reports cannot read, \"" +
           std::string(TextAt(row)) + "\" to the driver: they know the years up to 9999.";
}

bool OdbcColumn::ReadLong(void* statement, std::string& text) const {
    WideText whole;
    WideText piece(kPiece);
    for (SQLRETURN result = SQL_SUCCESS_WITH_INFO; result == SQL_SUCCESS_WITH_INFO;) {
        SQLLEN left = 0;
        const auto bytes = static_cast<SQLLEN>(piece.size() * sizeof piece.front());
        result = SQLGetData(statement, number_, SQL_C_WCHAR, piece.data(), bytes, &left);
        if (result != SQL_NO_DATA && !SQL_SUCCEEDED(result)) return false;
        if (result != SQL_NO_DATA)
            whole.insert(whole.end(), piece.begin(), std::ranges::find(piece, 0));
    }
    text.clear();
    AppendUtf8(whole, text);
    return true;
}

}  // namespace varnel::drivers
