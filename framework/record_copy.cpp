#include "framework/record_copy.h"

#include <algorithm>
#include <compare>
#include <optional>
#include <string>

#include "framework/texts.h"
#include "host/decimal.h"
#include "host/error.h"

namespace varnel::framework {

namespace {

[[noreturn]] void RaiseUnclear(std::string_view what, std::string_view text) {
    throw Error(error_number::kInvalidArgument, "Recordset",
                "The " + std::string(what) + " \"" + std::string(text) + "\" cannot be read");
}

/// What a value counts as in an order: null, numbers, dates and texts do not mix.
struct SortValue {
    enum class Kind : std::uint8_t { kNull, kNumber, kDate, kText, kUnreadable };
    Kind kind = Kind::kNull;
    std::int64_t number = 0;  // Scaled as an amount, or of a day.
    std::string_view text;    // In the row.

    auto operator<=>(const SortValue&) const = default;
};

using Kind = SortValue::Kind;

SortValue ReadText(std::string_view text) {
    std::int64_t number = 0;
    if (decimal::Parse(text, Currency::kDecimals, number)) return {Kind::kNumber, number, {}};
    return {Kind::kText, 0, text};
}

SortValue ReadSortValue(const Row& row, Column column) try {
    const Variant value = row.Value(column);
    if (value.IsNull()) return {};
    if (value.Holds<std::string>()) return ReadText(row.Text(column));
    if (value.Holds<Date>()) return {Kind::kDate, value.ToDate().DayNumber(), {}};
    return {Kind::kNumber, value.ToCurrency().Scaled(), {}};
} catch (const Error&) {  // A number that is no amount.
    return {Kind::kUnreadable, 0, {}};
}

struct Filter {
    Column column;
    std::string_view text;
    std::optional<std::int64_t> number;  // Wanted instead of the text.

    bool Takes(const Row& row) const {
        if (!column.Valid()) return true;
        if (number) return ReadSortValue(row, column) == SortValue{Kind::kNumber, *number, {}};
        std::string held;
        row.AppendText(column, held);
        return held == text && !row.IsNull(column);
    }
};

Filter ReadFilter(std::string_view filter, const Columns& columns) {
    const std::string_view text = Trimmed(filter);
    if (text.empty()) return {};
    const auto equals = text.find('=');
    if (equals == std::string_view::npos) RaiseUnclear("filter", filter);
    const std::string_view literal = Trimmed(text.substr(equals + 1));
    Filter read;
    std::int64_t number = 0;
    if (literal.size() >= 2 && literal.front() == '\'' && literal.back() == '\'')
        read.text = literal.substr(1, literal.size() - 2);
    else if (SameName(literal, "True") || SameName(literal, "False"))
        read.number = SameName(literal, "True") ? Currency::kScale : 0;
    else if (decimal::Parse(literal, Currency::kDecimals, number))
        read.number = number;
    else
        RaiseUnclear("filter", filter);
    read.column = columns.At(Trimmed(text.substr(0, equals)));
    return read;
}

struct SortColumn {
    Column column;
    bool descending = false;
};

std::vector<SortColumn> ReadSort(std::string_view sort, const Columns& columns) {
    std::vector<SortColumn> read;
    std::string_view rest = sort;
    while (!Trimmed(rest).empty()) {
        const auto comma = rest.find(',');
        const std::string_view part = Trimmed(rest.substr(0, comma));
        rest = comma == std::string_view::npos ? std::string_view() : rest.substr(comma + 1);
        const auto blank = std::min(part.find(' '), part.size());
        const std::string_view direction = Trimmed(part.substr(blank));
        const bool descending = SameName(direction, "DESC");
        if (part.empty() || !(direction.empty() || descending || SameName(direction, "ASC")))
            RaiseUnclear("sort order", sort);
        read.push_back({columns.At(part.substr(0, blank)), descending});
    }
    return read;
}

/// Puts `order` in order; every value is read once.
void Sort(std::vector<std::size_t>& order, const std::vector<Row>& rows,
          const std::vector<SortColumn>& by) {
    std::vector<SortValue> values;
    values.reserve(rows.size() * by.size());
    for (const Row& row : rows)
        for (const auto& [column, descending] : by) values.push_back(ReadSortValue(row, column));
    std::ranges::stable_sort(order, [&](std::size_t a, std::size_t b) {
        for (std::size_t i = 0; i < by.size(); ++i) {
            const auto compared = values[a * by.size() + i] <=> values[b * by.size() + i];
            if (compared != 0) return (compared < 0) != by[i].descending;
        }
        return false;
    });
}

}  // namespace

RecordCopy::RecordCopy(Recordset& rows, std::string_view yes_or_no) {
    rows.MoveFirst();
    columns_ = rows.GetColumns();
    const Column truth = columns_.At(yes_or_no);
    for (; !rows.AtEnd(); rows.MoveNext()) {
        Row& row = rows_.emplace_back(rows.Current());
        row.Set(truth, std::int32_t{row.Truth(truth)});
    }
    rows.MoveFirst();
    Arrange({}, {});
}

void RecordCopy::Arrange(std::string_view filter, std::string_view sort) {
    const Filter wanted = ReadFilter(filter, columns_);
    const auto by = ReadSort(sort, columns_);
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < rows_.size(); ++i)
        if (wanted.Takes(rows_[i])) order.push_back(i);
    Sort(order, rows_, by);
    order_ = std::move(order);
    position_ = 0;
}

const Row& RecordCopy::Current() const {
    if (AtEnd()) throw Error(error_number::kNoCurrentRow, "Recordset", "There is no current row");
    return rows_[order_[position_]];
}

void RecordCopy::MoveNext() {
    if (!AtEnd()) ++position_;
}

}  // namespace varnel::framework
