#include "framework/record_stream.h"

#include <algorithm>
#include <utility>

#include "framework/texts.h"
#include "host/error.h"

namespace varnel::framework {

namespace {

[[noreturn]] void RaiseUnclear(std::string_view what, std::string_view text) {
    throw Error(error_number::kInvalidArgument, "Recordset",
                "The " + std::string(what) + " \"" + std::string(text) + "\" cannot be read");
}

std::string Upper(std::string_view text) {
    std::string upper(text);
    for (char& c : upper)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return upper;
}

Variant ParseLiteral(std::string_view literal, std::string_view filter) {
    if (literal.size() >= 2 && literal.front() == '\'' && literal.back() == '\'')
        return std::string(literal.substr(1, literal.size() - 2));
    const std::string word = Upper(literal);
    if (word == "TRUE" || word == "FALSE") return std::int32_t{word == "TRUE"};
    try {
        return Variant(std::string(literal)).ToCurrency();
    } catch (const Error&) {
        RaiseUnclear("filter", filter);
    }
}

bool IsText(const Variant& value) { return value.Holds<std::string>(); }

/// Of a value of a row: null, numbers, dates and texts do not mix.
int Kind(const Variant& value) {
    if (value.IsNull()) return 0;
    if (IsText(value)) return 3;
    return value.Holds<Date>() ? 2 : 1;
}

/// Numbers by what they are worth, texts by their bytes.
int Order(const Variant& a, const Variant& b) {
    const auto order = [](const auto& left, const auto& right) {
        return left < right ? -1 : int{right < left};
    };
    const int kind = Kind(a);
    if (kind != Kind(b)) return order(kind, Kind(b));
    if (kind == 0) return 0;
    if (kind == 1) return order(a.ToCurrency(), b.ToCurrency());
    if (kind == 2) return order(a.ToDate(), b.ToDate());
    return order(a.ToText(), b.ToText());
}

/// Between quotes stand dates too.
bool IsEqual(const Variant& value, const Variant& wanted) {
    if (value.IsNull() || !IsText(wanted)) return Order(value, wanted) == 0;
    return value.ToText() == wanted.ToText();
}

}  // namespace

std::shared_ptr<const RecordStream> RecordStream::Save(Recordset& rows) {
    auto stream = std::make_shared<RecordStream>();
    rows.MoveFirst();
    stream->columns_ = rows.GetColumns();
    for (; !rows.AtEnd(); rows.MoveNext()) stream->rows_.push_back(rows.Current());
    rows.MoveFirst();
    return stream;
}

RecordCopy::RecordCopy(std::shared_ptr<const RecordStream> stream)
    : stream_(std::move(stream)), rows_(stream_->Rows()) {
    Arrange();
}

void RecordCopy::SetBoolean(std::string_view column) {
    const Column found = GetColumns().At(column);
    for (Row& row : rows_) row.Set(found, std::int32_t{row.Truth(found)});
    Arrange();
}

void RecordCopy::SetFilter(std::string_view filter) {
    filter_column_ = {};
    const std::string_view text = Trimmed(filter);
    if (!text.empty()) {
        const auto equals = text.find('=');
        if (equals == std::string_view::npos) RaiseUnclear("filter", filter);
        filter_value_ = ParseLiteral(Trimmed(text.substr(equals + 1)), filter);
        filter_column_ = GetColumns().At(Trimmed(text.substr(0, equals)));
    }
    Arrange();
}

void RecordCopy::SetSort(std::string_view sort) {
    sort_.clear();
    std::string_view rest = sort;
    while (!Trimmed(rest).empty()) {
        const auto comma = rest.find(',');
        const std::string_view part = Trimmed(rest.substr(0, comma));
        rest = comma == std::string_view::npos ? std::string_view() : rest.substr(comma + 1);
        const auto blank = part.find(' ');
        const std::string direction =
            blank == std::string_view::npos ? "ASC" : Upper(Trimmed(part.substr(blank)));
        if (part.empty() || (direction != "ASC" && direction != "DESC"))
            RaiseUnclear("sort order", sort);
        sort_.push_back({GetColumns().At(part.substr(0, blank)), direction == "DESC"});
    }
    Arrange();
}

void RecordCopy::Arrange() {
    order_.clear();
    for (std::size_t i = 0; i < rows_.size(); ++i)
        if (!filter_column_.Valid() || IsEqual(rows_[i].Value(filter_column_), filter_value_))
            order_.push_back(i);
    std::ranges::stable_sort(order_, [this](std::size_t a, std::size_t b) {
        for (const auto& key : sort_) {
            const int order = Order(rows_[a].Value(key.column), rows_[b].Value(key.column));
            if (order != 0) return (order < 0) != key.descending;
        }
        return false;
    });
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
