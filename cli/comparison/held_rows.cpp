#include "cli/comparison/held_rows.h"

#include <algorithm>
#include <cstring>

#include "cli/errors.h"

namespace varnel::cli {

namespace {

using Kind = ComparedValue::Kind;

constexpr std::size_t kFirstSlots = 1'024;

template <class T>
void Append(std::string& bytes, const T& value) {
    char packed[sizeof(T)];
    std::memcpy(packed, &value, sizeof(T));
    bytes.append(packed, sizeof(T));
}

template <class T>
T ReadAt(const std::string& bytes, std::size_t& place) {
    T value;
    std::memcpy(&value, bytes.data() + place, sizeof(T));
    place += sizeof(T);
    return value;
}

std::size_t HashOf(std::uint32_t group, std::string_view key) {
    constexpr std::size_t kOddAndWide = 0x9E3779B97F4A7C15;
    return (std::hash<std::string_view>()(key) ^ group) * kOddAndWide >> 20;
}

}  // namespace

HeldRows::HeldRows() : groups_(1), slots_(kFirstSlots) {}

void HeldRows::BeginGroup(const std::string& key, const std::string& caption) {
    const auto number = static_cast<std::uint32_t>(groups_.size());
    open_group_ = group_numbers_.try_emplace(key, number).first->second;
    if (open_group_ == number) groups_.push_back({caption, bytes_.size(), bytes_.size()});
}

void HeldRows::EndGroup() { open_group_ = kNoGroup; }

std::uint32_t HeldRows::FindGroup(const std::string& key) const {
    const auto found = group_numbers_.find(key);
    return found == group_numbers_.end() ? kUnknownGroup : found->second;
}

std::uint8_t HeldRows::NumberOf(const std::string& column) {
    const auto found = std::ranges::find(column_names_, column);
    const auto number = static_cast<std::size_t>(found - column_names_.begin());
    if (number > UINT8_MAX) throw Failure("the report gives more columns than can be compared");
    if (found == column_names_.end()) column_names_.push_back(column);
    return static_cast<std::uint8_t>(number);
}

void HeldRows::PackValue(const ComparedValue& value) {
    Append(bytes_, value.kind);
    if (value.kind == Kind::kAmount) Append(bytes_, value.amount.Scaled());
    if (value.kind != Kind::kText) return;
    Append(bytes_, static_cast<std::uint32_t>(value.text.size()));
    bytes_ += value.text;
}

void HeldRows::AddRow(const std::string& key, std::span<const NamedValue> columns) {
    row_.Take(columns);
    const std::size_t place = bytes_.size();
    Head head{0, open_group_, static_cast<std::uint32_t>(key.size()), 0};
    Append(bytes_, head);
    bytes_ += key;
    for (const auto& [name, value] : row_.Columns()) {
        Append(bytes_, NumberOf(name));
        PackValue(value);
    }
    head.size = static_cast<std::uint32_t>(bytes_.size() - place);
    std::memcpy(bytes_.data() + place, &head, sizeof(head));
    groups_[open_group_].end = bytes_.size();
    if (++row_count_ * 2 > slots_.size()) return Grow();
    Index(place);
}

void HeldRows::Index(std::size_t place) {
    const Head head = HeadAt(place);
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = HashOf(head.group, KeyAt(place, head)) & mask;
    while (slots_[slot] != 0) slot = (slot + 1) & mask;
    slots_[slot] = place + 1;
}

void HeldRows::Grow() {
    slots_.assign(slots_.size() * 2, 0);
    for (std::size_t place = 0; place < bytes_.size(); place += HeadAt(place).size) Index(place);
}

HeldRows::Head HeldRows::HeadAt(std::size_t place) const { return ReadAt<Head>(bytes_, place); }

std::string_view HeldRows::KeyAt(std::size_t place, const Head& head) const {
    return std::string_view(bytes_).substr(place + sizeof(Head), head.key_size);
}

void HeldRows::MarkTaken(std::size_t place) {
    Head head = HeadAt(place);
    head.taken = 1;
    std::memcpy(bytes_.data() + place, &head, sizeof(head));
}

void HeldRows::Unpack(std::size_t place, const Head& head, ComparedRow& row) const {
    row.Clear();
    const std::size_t end = place + head.size;
    for (place += sizeof(Head) + head.key_size; place < end;) {
        auto& value = row.Add(column_names_[ReadAt<std::uint8_t>(bytes_, place)]).value;
        value.kind = ReadAt<Kind>(bytes_, place);
        if (value.kind == Kind::kAmount)
            value.amount = Currency::FromScaled(ReadAt<std::int64_t>(bytes_, place));
        if (value.kind != Kind::kText) continue;
        const auto size = ReadAt<std::uint32_t>(bytes_, place);
        value.text.assign(bytes_, place, size);
        place += size;
    }
}

bool HeldRows::Take(std::uint32_t group, std::string_view key, ComparedRow& row) {
    const std::size_t mask = slots_.size() - 1;
    for (auto slot = HashOf(group, key) & mask; slots_[slot] != 0; slot = (slot + 1) & mask) {
        const std::size_t place = slots_[slot] - 1;
        const Head head = HeadAt(place);
        if (head.taken != 0 || head.group != group || KeyAt(place, head) != key) continue;
        MarkTaken(place);
        Unpack(place, head, row);
        return true;
    }
    return false;
}

void HeldRows::TakeLeft(std::uint32_t group, const Visit& visit) {
    if (group != kUnknownGroup) TakeLeft(groups_[group].begin, groups_[group].end, visit);
}

void HeldRows::TakeAllLeft(const Visit& visit) { TakeLeft(0, bytes_.size(), visit); }

void HeldRows::TakeLeft(std::size_t begin, std::size_t end, const Visit& visit) {
    ComparedRow row;
    for (std::size_t place = begin; place < end;) {
        const Head head = HeadAt(place);
        if (head.taken == 0) {
            MarkTaken(place);
            Unpack(place, head, row);
            visit(head.group, KeyAt(place, head), row);
        }
        place += head.size;
    }
}

}  // namespace varnel::cli
