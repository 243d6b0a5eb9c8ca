#include "cli/comparison/compared_row.h"

#include "framework/comparable_report.h"

namespace varnel::cli {

namespace {

using Kind = ComparedValue::Kind;

void Read(const Variant& read, ComparedValue& value) {
    if (read.IsEmpty()) return;
    if (read.IsNull()) {
        value.kind = Kind::kUnknown;
    } else if (read.Holds<Currency>()) {
        value.kind = Kind::kAmount;
        value.amount = read.ToCurrency();
    } else if (auto text = read.ToText(); !text.empty()) {
        value.kind = Kind::kText;
        value.text = std::move(text);
    }
}

}  // namespace

ComparedRow::Column& ComparedRow::Add(std::string_view name) {
    if (count_ == columns_.size()) columns_.emplace_back();
    Column& column = columns_[count_++];
    column.name = name;
    column.value.kind = Kind::kEmpty;
    column.value.amount = {};
    column.value.text.clear();
    return column;
}

void ComparedRow::Take(std::span<const ComparableReportSink::NamedValue> columns) {
    Clear();
    for (const auto& [name, value] : columns)
        if (name != framework::kPurgeIncluded) Read(value, Add(name).value);
}

const ComparedValue& ComparedRow::At(std::string_view name) const {
    static const ComparedValue kNone;
    for (const auto& column : Columns())
        if (column.name == name) return column.value;
    return kNone;
}

std::string ComparedRow::Label() const {
    std::string label;
    for (const auto& [name, value] : Columns())
        if (value.kind == Kind::kText) label += (label.empty() ? "" : " ") + value.text;
    return label;
}

}  // namespace varnel::cli
