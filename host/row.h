#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "host/currency.h"
#include "host/date.h"
#include "host/rate.h"
#include "host/variant.h"

namespace varnel {

/// A column handle: found by name once per run, then used for every row. A default one belongs to
/// no column.
struct Column {
    static constexpr std::uint32_t kNone = 0xFFFFFFFF;
    std::uint32_t index = kNone;
    bool Valid() const { return index != kNone; }
};

/// The column names of a row set, in query order. Look-ups ignore case; the first of equal names is
/// found.
class Columns {
  public:
    Columns() = default;
    explicit Columns(std::vector<std::string> names) : names_(std::move(names)) {}

    std::size_t Size() const { return names_.size(); }
    const std::string& Name(std::size_t index) const { return names_[index]; }
    /// Raises error 3265 naming the column and the columns that there are.
    Column At(std::string_view name) const;
    /// An invalid handle when there is no such column.
    Column Find(std::string_view name) const;
    Column Add(std::string name);

  private:
    std::vector<std::string> names_;
};

/// One row as values of its own, valid after the row set has moved on. Drivers write it, handlers
/// read it.
///
/// A cell keeps what the database gave; the accessor decides the reading, because computed columns
/// have no declared type. All storage is reused from row to row: in a steady state neither side
/// allocates. A column that the row does not have, such as a handle that was never resolved, raises
/// error 3265.
class Row {
  public:
    // For drivers: Start, then one call per column in order.
    void Start(std::size_t columns);
    void AddNull() { cells_.emplace_back(); }
    void AddInteger(std::int64_t value) { Push(Kind::kInteger, value); }
    void AddReal(double value) {
        cells_.emplace_back().kind = Kind::kReal;
        cells_.back().real = value;
    }
    void AddAmount(Currency value) { Push(Kind::kAmount, value.Scaled()); }
    void AddDate(Date value) { Push(Kind::kDate, value.DayNumber()); }
    void AddText(std::string_view value);
    void Add(const Variant& value);
    /// Replaces one cell; for row sets that are kept in memory and for unbound fields.
    void Set(Column column, const Variant& value);
    /// Replaces one cell by a cell of another row, as it is.
    void Copy(Column column, const Row& from, Column cell);

    std::size_t Size() const { return cells_.size(); }
    bool IsNull(Column column) const { return At(column).kind == Kind::kNull; }
    /// Null reads as 0.
    std::int32_t Integer(Column column) const;
    std::int64_t Integer64(Column column) const;
    /// Null reads as 0. Exact: a binary number becomes the nearest ten-thousandth.
    Currency Amount(Column column) const;
    /// Null reads as 0.
    Rate ExchangeRate(Column column) const;
    /// Dates and ISO texts (a time after the date is ignored). Null raises error 13: test with
    /// IsNull first.
    Date Day(Column column) const;
    /// Null reads as false; any non-zero number is true.
    bool Truth(Column column) const;
    /// The text as stored; null reads as "". Error 13 when the cell holds something else: see
    /// AppendText.
    std::string_view Text(Column column) const;
    /// Appends the plain form of any cell: integers in decimal, amounts with a point, dates in ISO.
    void AppendText(Column column, std::string& out) const;
    Variant Value(Column column) const;

    /// True when both cells hold the same value, null being equal to null: the test that opens and
    /// closes groups.
    bool SameValue(const Row& other, Column column) const;

  private:
    enum class Kind : std::uint8_t { kNull, kInteger, kReal, kAmount, kDate, kText };
    struct Cell {
        Kind kind = Kind::kNull;
        std::uint32_t length = 0;  // Of a text.
        union {
            std::int64_t integer = 0;  // Also a day number, scaled amount or the offset of a text.
            double real;
        };
    };
    const Cell& At(Column column) const {
        if (column.index >= cells_.size()) RaiseNoColumn();
        return cells_[column.index];
    }
    void Push(Kind kind, std::int64_t value) {
        cells_.emplace_back().kind = kind;
        cells_.back().integer = value;
    }
    std::string_view TextOf(const Cell& cell) const {
        return std::string_view(texts_).substr(static_cast<std::size_t>(cell.integer), cell.length);
    }
    void MoveLastTo(Column column);
    void RemoveText(const Cell& cell);
    [[noreturn]] static void RaiseNoColumn();
    [[noreturn]] void Mismatch(Column column, const char* wanted) const;

    std::vector<Cell> cells_;
    std::string texts_;
};

}  // namespace varnel
