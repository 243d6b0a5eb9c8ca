#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "engine/document.h"
#include "render/output_buffer.h"
#include "render/text/text_grid.h"
#include "render/text/text_row.h"

namespace varnel::render {

/// Writes a report as plain text: a line for each line of items, columns where the layout has them.
/// Page numbers are left out, and space becomes a blank line only where the layout has a gap of
/// about a line, never more than one.
class TextWriter final : public engine::PlacedBandSink {
  public:
    /// The sink must outlive the writer; it is neither flushed nor closed here.
    explicit TextWriter(ByteSink& sink, const TextOptions& options = {});

    void Begin(const engine::DocumentInfo& info, Twips width) override;
    void Write(const engine::PlacedBand& band) override;
    void End() override { output_.HandOver(); }

  private:
    /// An item of the band at the height of its middle.
    struct Line {
        Twips middle;
        const engine::Item* item;
    };

    void SortLines(const engine::ItemList& content);
    void WriteRows(const engine::ItemList& content);
    void AddToRow(const engine::Item& item, std::string_view text);
    void EndRow(Twips top, Twips bottom);

    OutputBuffer output_;
    TextGrid grid_;
    TextRow texts_;
    RuleRow rules_;
    std::vector<Line> lines_;
    // On the endless page, which is longer than Twips can tell.
    std::int64_t band_top_ = 0;
    std::optional<std::int64_t> bottom_;  // Of the last line written.
};

}  // namespace varnel::render
