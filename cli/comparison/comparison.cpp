#include "cli/comparison/comparison.h"

#include <algorithm>

namespace varnel::cli {

namespace {

using Kind = ComparedValue::Kind;

constexpr std::size_t kMuch = 64 * 1'024;
constexpr std::size_t kNameWidth = 22;
constexpr std::size_t kCellWidth = 20;
constexpr std::string_view kOnlyBefore = "only before";
constexpr std::string_view kOnlyAfter = "only after";

std::size_t WidthOf(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count_if(
        text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }));
}

std::string Padding(std::string_view text, std::size_t width) {
    const std::size_t taken = WidthOf(text);
    return std::string(taken < width ? width - taken : 1, ' ');
}

/// A blank counts as nothing beside an amount.
bool AreFigures(const ComparedValue& before, const ComparedValue& after) {
    const auto is_text = [](const ComparedValue& value) { return value.kind == Kind::kText; };
    return !is_text(before) && !is_text(after);
}

}  // namespace

Comparison::Comparison(HeldRows& before, Formats& formats)
    : before_rows_(before), formats_(formats) {}

void Comparison::Head(std::string_view title, std::string_view before, std::string_view after) {
    text_.append(title).append("\nbefore: ").append(before);
    text_.append("\nafter:  ").append(after).append("\n\n");
    text_.append(kNameWidth, ' ');
    for (const char* caption : {"before", "after", "difference"}) WriteNumber(caption);
    text_ += '\n';
}

void Comparison::BeginGroup(const std::string& key, const std::string& caption) {
    group_ = before_rows_.FindGroup(key);
    group_caption_ = caption;
    in_group_ = true;
    if (group_ == HeldRows::kUnknownGroup || before_rows_.CaptionOf(group_) == caption) return;
    ++counts_.changed;
    text_.append(before_rows_.CaptionOf(group_)).append(" → ").append(caption) += '\n';
    group_caption_.clear();
}

void Comparison::AddRow(const std::string& key, std::span<const NamedValue> columns) {
    after_.Take(columns);
    if (group_ == HeldRows::kUnknownGroup || !before_rows_.Take(group_, key, before_))
        return WriteOnlyAfter(key);
    ++(Compare(key) ? counts_.same : counts_.changed);
}

void Comparison::EndGroup() {
    before_rows_.TakeLeft(group_, [this](auto group, auto key, const ComparedRow& row) {
        WriteOnlyBefore(group, key, row);
    });
    group_ = HeldRows::kNoGroup;
    group_caption_.clear();
    in_group_ = false;
}

bool Comparison::Compare(std::string_view key) {
    bool same = true;
    const auto compare = [&](const std::string& name, const ComparedValue& before,
                             const ComparedValue& after) {
        if (before == after) return;
        if (same) WriteCaption(after_, key, {});
        same = false;
        WriteChange(name, before, after);
    };
    for (const auto& [name, value] : after_.Columns()) compare(name, before_.At(name), value);
    for (const auto& [name, value] : before_.Columns())
        if (std::ranges::find(after_.Columns(), name, &ComparedRow::Column::name) ==
            after_.Columns().end())
            compare(name, value, {});
    return same;
}

void Comparison::WriteOnlyAfter(std::string_view key) {
    ++counts_.after;
    WriteCaption(after_, key, kOnlyAfter);
    WriteAmounts(after_, false);
}

// After the second run its groups are over: what is left is told under the captions of the first.
void Comparison::WriteOnlyBefore(std::uint32_t group, std::string_view key,
                                 const ComparedRow& row) {
    ++counts_.before;
    if (group != group_) {
        group_ = group;
        group_caption_ = before_rows_.CaptionOf(group);
        in_group_ = group != HeldRows::kNoGroup;
    }
    WriteCaption(row, key, kOnlyBefore);
    WriteAmounts(row, true);
}

void Comparison::WriteCaption(const ComparedRow& row, std::string_view key,
                              std::string_view remark) {
    if (!group_caption_.empty()) text_.append(group_caption_) += '\n';
    group_caption_.clear();
    const std::string label = row.Label();
    if (in_group_) text_.append(2, ' ');
    text_.append(label.empty() ? key : label);
    if (!remark.empty()) text_.append(" (").append(remark) += ')';
    text_ += '\n';
}

void Comparison::WriteChange(std::string_view column, const ComparedValue& before,
                             const ComparedValue& after) {
    text_.append(4, ' ').append(column).append(Padding(column, kNameWidth - 4));
    if (!AreFigures(before, after)) {
        WriteCell(before);
        text_ += " → ";
        WriteCell(after);
    } else {
        WriteCell(before);
        WriteCell(after);
        WriteDifference(before, after);
    }
    text_ += '\n';
}

void Comparison::WriteDifference(const ComparedValue& before, const ComparedValue& after) {
    if (before.kind == Kind::kUnknown || after.kind == Kind::kUnknown) return;
    cell_.clear();
    formats_.AppendAmount(after.amount - before.amount, cell_);
    WriteNumber(cell_);
}

void Comparison::WriteAmounts(const ComparedRow& row, bool are_before) {
    for (const auto& [name, value] : row.Columns()) {
        if (!value.IsAmount() && value.kind != Kind::kUnknown) continue;
        if (are_before)
            WriteChange(name, value, {});
        else
            WriteChange(name, {}, value);
    }
}

void Comparison::WriteCell(const ComparedValue& value) {
    if (value.kind == Kind::kText) {
        text_ += value.text;
        return;
    }
    cell_.clear();
    if (value.IsAmount()) formats_.AppendAmount(value.amount, cell_);
    WriteNumber(value.kind == Kind::kUnknown ? "not known" : cell_);
}

void Comparison::WriteNumber(std::string_view number) {
    text_.append(Padding(number, kCellWidth)).append(number);
}

void Comparison::HandOver(render::ByteSink& output) {
    if (text_.size() < kMuch) return;
    output.Write(text_);
    text_.clear();
}

void Comparison::Finish(render::ByteSink& output) {
    before_rows_.TakeAllLeft([&](auto group, auto key, const ComparedRow& row) {
        WriteOnlyBefore(group, key, row);
        HandOver(output);
    });
    const auto& [changed, same, before, after] = counts_;
    const auto count = [this](std::int64_t number, std::string_view words) {
        formats_.AppendCount(number, text_);
        text_.append(words);
    };
    text_ += '\n';
    if (changed + before + after + same == 0) {
        text_ += "there was nothing to compare: ";
    } else if (changed + before + after == 0) {
        text_ += "nothing changed: ";
    } else {
        count(changed, " changed, ");
        count(before, " only before, ");
        count(after, " only after, ");
    }
    count(same, " the same\n");
    output.Write(text_);
}

}  // namespace varnel::cli
