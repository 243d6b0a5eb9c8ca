#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "cli/comparison/compared_row.h"

namespace varnel::cli {

/// The rows of a run, packed: a million lines take some hundred megabytes. A row is known by its
/// group and its key.
class HeldRows final : public ComparableReportSink {
  public:
    /// Rows that stand in no group.
    static constexpr std::uint32_t kNoGroup = 0;
    /// A group that the run did not have.
    static constexpr std::uint32_t kUnknownGroup = UINT32_MAX;

    HeldRows();

    void BeginGroup(const std::string& key, const std::string& caption) override;
    void AddRow(const std::string& key, std::span<const NamedValue> columns) override;
    void EndGroup() override;

    std::uint32_t FindGroup(const std::string& key) const;
    const std::string& CaptionOf(std::uint32_t group) const { return groups_[group].caption; }

    /// The first row of that key that was not taken yet; false when there is none.
    bool Take(std::uint32_t group, std::string_view key, ComparedRow& row);
    using Visit =
        std::function<void(std::uint32_t group, std::string_view key, const ComparedRow& row)>;
    /// Takes the rows of a group that are left, or those of all groups, in the order they came in.
    void TakeLeft(std::uint32_t group, const Visit& visit);
    void TakeAllLeft(const Visit& visit);

  private:
    struct Group {
        std::string caption;
        std::size_t begin = 0, end = 0;  // Of its rows.
    };
    /// What stands before the columns of a packed row.
    struct Head {
        std::uint32_t size, group, key_size, taken;
    };

    Head HeadAt(std::size_t place) const;
    std::string_view KeyAt(std::size_t place, const Head& head) const;
    void MarkTaken(std::size_t place);
    void Unpack(std::size_t place, const Head& head, ComparedRow& row) const;
    void TakeLeft(std::size_t begin, std::size_t end, const Visit& visit);
    std::uint8_t NumberOf(const std::string& column);
    void PackValue(const ComparedValue& value);
    void Index(std::size_t place);
    void Grow();

    std::string bytes_;
    std::vector<std::string> column_names_;
    std::vector<Group> groups_;
    std::unordered_map<std::string, std::uint32_t> group_numbers_;
    std::uint32_t open_group_ = kNoGroup;
    std::vector<std::size_t> slots_;  // Open addressing: place of a row plus one, 0 for free.
    std::size_t row_count_ = 0;
    ComparedRow row_;
};

}  // namespace varnel::cli
