#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "cli/comparison/held_rows.h"
#include "host/application.h"
#include "render/byte_sink.h"

namespace varnel::cli {

/// Writes what changed from the rows of one run to those of the next, which come in here: line by
/// line, with the amounts.
class Comparison final : public ComparableReportSink {
  public:
    /// Both must outlive it. `title` and what the two runs are about head the text.
    Comparison(HeldRows& before, Formats& formats);

    void Head(std::string_view title, std::string_view before, std::string_view after);
    void BeginGroup(const std::string& key, const std::string& caption) override;
    void AddRow(const std::string& key, std::span<const NamedValue> columns) override;
    void EndGroup() override;
    /// Passes on what was written, once it is much. Not for the sink's own calls: what fails there
    /// is a message of the report.
    void HandOver(render::ByteSink& output);
    /// After the run: what only the first one had, and how much there was of each.
    void Finish(render::ByteSink& output);

  private:
    struct Counts {
        std::int64_t changed = 0, same = 0, before = 0, after = 0;
    };

    bool Compare(std::string_view key);
    void WriteOnlyBefore(std::uint32_t group, std::string_view key, const ComparedRow& row);
    void WriteOnlyAfter(std::string_view key);
    void WriteCaption(const ComparedRow& row, std::string_view key, std::string_view remark);
    void WriteChange(std::string_view column, const ComparedValue& before,
                     const ComparedValue& after);
    void WriteDifference(const ComparedValue& before, const ComparedValue& after);
    void WriteAmounts(const ComparedRow& row, bool are_before);
    void WriteCell(const ComparedValue& value);
    void WriteNumber(std::string_view number);

    HeldRows& before_rows_;
    Formats& formats_;
    std::uint32_t group_ = HeldRows::kNoGroup;
    std::string group_caption_;  // Of the group that nothing was written of yet; else empty.
    bool in_group_ = false;
    ComparedRow before_, after_;
    Counts counts_;
    std::string text_;
    std::string cell_;  // Scratch.
};

}  // namespace varnel::cli
