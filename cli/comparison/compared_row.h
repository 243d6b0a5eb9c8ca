#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/currency.h"
#include "host/report.h"

namespace varnel::cli {

/// A value of a row as it is compared: what is no amount counts as text.
struct ComparedValue {
    enum class Kind : std::uint8_t { kEmpty, kUnknown, kAmount, kText };

    Kind kind = Kind::kEmpty;
    Currency amount;
    std::string text;

    bool IsAmount() const { return kind == Kind::kAmount; }
    friend bool operator==(const ComparedValue&, const ComparedValue&) = default;
};

/// A row that a report gave. Storage is used again from row to row.
class ComparedRow {
  public:
    struct Column {
        std::string name;
        ComparedValue value;
    };

    void Clear() { count_ = 0; }
    /// A further column, empty, to be filled.
    Column& Add(std::string_view name);
    /// All columns but the flag that every row of a run carries alike.
    void Take(std::span<const ComparableReportSink::NamedValue> columns);

    std::span<const Column> Columns() const { return {columns_.data(), count_}; }
    /// An empty value when it has no such column.
    const ComparedValue& At(std::string_view name) const;
    /// Its texts with blanks between them: what a reader knows it by.
    std::string Label() const;

  private:
    std::vector<Column> columns_;
    std::size_t count_ = 0;
};

}  // namespace varnel::cli
