#include "host/row.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "host/decimal.h"
#include "host/error.h"

namespace varnel {

Column Columns::Find(std::string_view name) const {
    for (std::size_t i = 0; i < names_.size(); ++i)
        if (SameName(names_[i], name)) return {static_cast<std::uint32_t>(i)};
    return {};
}

Column Columns::At(std::string_view name) const {
    const Column column = Find(name);
    if (column.Valid()) return column;
    std::string known;
    for (const auto& other : names_) known += (known.empty() ? "" : ", ") + other;
    throw Error(error_number::kUnknownColumn, "Recordset",
                "The row set has no column \"" + std::string(name) + "\"; it has " +
                    (known.empty() ? "none" : known));
}

Column Columns::Add(std::string name) {
    names_.push_back(std::move(name));
    return {static_cast<std::uint32_t>(names_.size() - 1)};
}

void Row::Start(std::size_t columns) {
    cells_.clear();
    cells_.reserve(columns);
    texts_.clear();
}

void Row::AddText(std::string_view value) {
    Push(Kind::kText, static_cast<std::int64_t>(texts_.size()));
    cells_.back().length = static_cast<std::uint32_t>(value.size());
    texts_ += value;
}

void Row::Add(const Variant& value) {
    if (value.IsNull() || value.IsEmpty()) return AddNull();
    if (value.Holds<Currency>()) return AddAmount(value.ToCurrency());
    if (value.Holds<Date>()) return AddDate(value.ToDate());
    if (value.Holds<double>()) return AddReal(value.ToDouble());
    if (value.Holds<std::string>()) return AddText(value.ToText());
    AddInteger(value.ToInteger32());
}

void Row::Set(Column column, const Variant& value) {
    Add(value);
    MoveLastTo(column);
}

void Row::Copy(Column column, const Row& from, Column cell) {
    const Cell& copied = from.At(cell);
    if (copied.kind == Kind::kText)
        AddText(from.TextOf(copied));
    else
        cells_.push_back(copied);
    MoveLastTo(column);
}

void Row::MoveLastTo(Column column) {
    RemoveText(cells_[column.index]);
    cells_[column.index] = cells_.back();
    cells_.pop_back();
}

// A field is set once a row: its former texts must not pile up.
void Row::RemoveText(const Cell& cell) {
    if (cell.kind != Kind::kText) return;
    const Cell removed = cell;
    texts_.erase(static_cast<std::size_t>(removed.integer), removed.length);
    for (Cell& other : cells_)
        if (other.kind == Kind::kText && other.integer > removed.integer)
            other.integer -= removed.length;
}

void Row::RaiseNoColumn() {
    throw Error(error_number::kUnknownColumn, "Recordset",
                "A column was read that the row does not have: was it looked up in this row set?");
}

void Row::Mismatch(Column column, const char* wanted) const {
    std::string held;
    AppendText(column, held);
    throw Error(error_number::kTypeMismatch, "Recordset",
                "Column " + std::to_string(column.index + 1) + " holds \"" + held +
                    "\", which is not " + wanted);
}

std::int64_t Row::Integer64(Column column) const {
    const Cell& cell = At(column);
    switch (cell.kind) {
        case Kind::kNull:
            return 0;
        case Kind::kInteger:
        case Kind::kDate:
            return cell.integer;
        case Kind::kAmount:
            if (cell.integer % Currency::kScale == 0) return cell.integer / Currency::kScale;
            break;
        case Kind::kReal:
            if (cell.real == std::floor(cell.real) && std::abs(cell.real) < 9e15)
                return static_cast<std::int64_t>(cell.real);
            break;
        case Kind::kText: {
            std::int64_t value = 0;
            const auto text = TextOf(cell);
            const auto* end = text.data() + text.size();
            const auto read = std::from_chars(text.data(), end, value);
            if (read.ec == std::errc{} && read.ptr == end) return value;
            break;
        }
    }
    Mismatch(column, "an integer");
}

std::int32_t Row::Integer(Column column) const {
    const std::int64_t value = Integer64(column);
    if (value < std::numeric_limits<std::int32_t>::min() ||
        value > std::numeric_limits<std::int32_t>::max())
        Mismatch(column, "a 32-bit integer");
    return static_cast<std::int32_t>(value);
}

bool Row::Truth(Column column) const {
    const Cell& cell = At(column);
    return cell.kind == Kind::kReal ? cell.real != 0 : Integer64(column) != 0;
}

Currency Row::Amount(Column column) const {
    const Cell& cell = At(column);
    switch (cell.kind) {
        case Kind::kNull:
            return {};
        case Kind::kAmount:
            return Currency::FromScaled(cell.integer);
        case Kind::kReal:
            return Currency::FromDouble(cell.real);
        case Kind::kInteger:
            return Currency::FromWhole(cell.integer);
        case Kind::kText:
            return Currency::Parse(TextOf(cell));
        case Kind::kDate:
            break;
    }
    Mismatch(column, "an amount");
}

Rate Row::ExchangeRate(Column column) const {
    const Cell& cell = At(column);
    switch (cell.kind) {
        case Kind::kNull:
            return {};
        case Kind::kReal:
            return Rate::FromDouble(cell.real);
        case Kind::kAmount:
            return Rate::FromScaled(decimal::Narrow(
                Int128{cell.integer} * (Rate::kScale / Currency::kScale), "The exchange rate"));
        case Kind::kInteger:
            return Rate::FromScaled(
                decimal::Narrow(Int128{cell.integer} * Rate::kScale, "The exchange rate"));
        case Kind::kText:
            return Rate::Parse(TextOf(cell));
        case Kind::kDate:
            break;
    }
    Mismatch(column, "an exchange rate");
}

Date Row::Day(Column column) const {
    const Cell& cell = At(column);
    if (cell.kind == Kind::kDate)
        return Date::FromDayNumber(static_cast<std::int32_t>(cell.integer));
    Date date;
    if (cell.kind == Kind::kText && Date::TryParseIso(TextOf(cell).substr(0, 10), date))
        return date;
    Mismatch(column, "a date");
}

std::string_view Row::Text(Column column) const {
    const Cell& cell = At(column);
    if (cell.kind == Kind::kText) return TextOf(cell);
    if (cell.kind == Kind::kNull) return {};
    Mismatch(column, "a text");
}

void Row::AppendText(Column column, std::string& out) const {
    const Cell& cell = At(column);
    char buffer[64];
    switch (cell.kind) {
        case Kind::kNull:
            return;
        case Kind::kText:
            out += TextOf(cell);
            return;
        case Kind::kInteger:
            out.append(buffer, std::to_chars(buffer, buffer + sizeof buffer, cell.integer).ptr);
            return;
        case Kind::kReal:
            decimal::AppendDouble(cell.real, out);
            return;
        case Kind::kAmount:
            Currency::FromScaled(cell.integer).AppendText(out, 0);
            return;
        case Kind::kDate:
            Date::FromDayNumber(static_cast<std::int32_t>(cell.integer)).AppendIso(out);
            return;
    }
}

Variant Row::Value(Column column) const {
    const Cell& cell = At(column);
    switch (cell.kind) {
        case Kind::kNull:
            return Variant::Null{};
        case Kind::kText:
            return TextOf(cell);
        case Kind::kReal:
            return cell.real;
        case Kind::kAmount:
            return Currency::FromScaled(cell.integer);
        case Kind::kDate:
            return Date::FromDayNumber(static_cast<std::int32_t>(cell.integer));
        case Kind::kInteger:
            break;
    }
    const bool fits = cell.integer >= std::numeric_limits<std::int32_t>::min() &&
                      cell.integer <= std::numeric_limits<std::int32_t>::max();
    if (fits) return static_cast<std::int32_t>(cell.integer);
    return static_cast<double>(cell.integer);
}

bool Row::SameValue(const Row& other, Column column) const {
    const Cell& a = At(column);
    const Cell& b = other.At(column);
    if (a.kind != b.kind) return false;
    switch (a.kind) {
        case Kind::kNull:
            return true;
        case Kind::kReal:
            return a.real == b.real;
        case Kind::kText:
            return TextOf(a) == other.TextOf(b);
        default:
            return a.integer == b.integer;
    }
}

}  // namespace varnel
