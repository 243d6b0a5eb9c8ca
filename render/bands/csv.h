#pragma once

#include <string>
#include <vector>

#include "engine/document.h"
#include "render/output_buffer.h"

namespace varnel::render {

/// Writes the printed details of a report as comma-separated values: one header line with the
/// layout's column names, then one record a detail, the fields of its groups first. Where details
/// name no columns, the footers of the innermost group take their part. docs/formats.md describes
/// the format.
///
/// Begin throws std::invalid_argument when the layout names no columns.
class CsvWriter final : public engine::BandSink {
  public:
    /// The sink must outlive the writer; it is neither flushed nor closed here.
    explicit CsvWriter(ByteSink& sink) : output_(sink) {}

    void Begin(const engine::DocumentInfo& info, const Surface& surface) override;
    void Write(const Section& section, const engine::BandMark& mark) override;
    void End() override { output_.HandOver(); }

  private:
    /// A group level: its fields as they go in front of each of its records, a comma after each.
    struct Group {
        std::size_t columns = 0;
        std::string fields;
    };

    void ReadLayout(const Layout& layout);
    void WriteHeaderLine(const Layout& layout);
    void OpenGroup(const Section& header, const engine::BandMark& mark);
    void WriteRecord(const Section& section);
    void EndLine(std::size_t line_start);

    OutputBuffer output_;
    std::vector<Group> groups_;                // By level.
    const SectionLayout* recorded_ = nullptr;  // Each of its instances is a record.
};

}  // namespace varnel::render
