#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "host/row.h"

namespace varnel::drivers {

/// One column of a result: where the driver puts its values, a block of rows at a time, and how
/// they are read.
class OdbcColumn {
  public:
    /// Asks the driver about column `number`, from 1.
    OdbcColumn(void* statement, unsigned short number);

    const std::string& Name() const { return name_; }
    /// Binary data, which reports cannot read.
    bool IsBinary() const { return kind_ == Kind::kBinary; }
    /// Has the driver put its values here from now on.
    bool Bind(void* statement, std::size_t rows);

    /// How long the value is, all of it.
    std::size_t Bytes(std::size_t row) const {
        return lengths_[row] > 0 ? static_cast<std::size_t>(lengths_[row]) : 0;
    }
    /// True when the value was longer than its place, so that its beginning alone is here.
    bool IsCut(std::size_t row) const;
    /// Adds the value to the row; false when it is none that reports know. `text` is room for
    /// texts: nothing is allocated once it has grown.
    bool Read(std::size_t row, std::string& text, Row& out) const;
    /// A sentence about that value.
    std::string Unreadable(std::size_t row) const;
    /// Fetches the whole of a text of the row that the cursor stands on, in pieces. False when the
    /// driver cannot.
    bool ReadLong(void* statement, std::string& text) const;

  private:
    enum class Kind { kInteger, kReal, kDecimal, kDate, kText, kBinary };

    static Kind KindOf(short sql_type);
    short CType() const;
    std::size_t Width() const;
    /// Of a character; 0 for what is no text.
    std::size_t UnitWidth() const;
    std::string_view TextAt(std::size_t row) const;
    const char* At(std::size_t row) const { return values_.data() + row * Width(); }

    std::string name_;
    unsigned short number_;
    Kind kind_;
    std::vector<char> values_;
    std::vector<long> lengths_;
};

}  // namespace varnel::drivers
