#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "engine/document.h"
#include "engine/growth.h"
#include "engine/parts.h"
#include "engine/run_control.h"

namespace varnel::engine {

/// Makes a band of a section that was just formatted: breaks texts into lines, runs the
/// sub-reports, and moves down what stands below. Storage is reused from band to band.
class BandComposer {
  public:
    /// `depth` is that of the report whose sections it composes.
    BandComposer(Measurer& measurer, RunControl& control, int depth = 0)
        : measurer_(measurer), control_(control), depth_(depth) {}

    void Compose(const Part& part, PlacedBand& band);

  private:
    struct Lines {
        std::vector<std::string_view> texts;
        Twips pitch = 0;
        Twips height = 0;  // Of the box of each line.
    };

    void Measure(const Section& section);
    Extent Measured(const Control& control, std::size_t index);
    Twips BreakLines(const Control& control, Lines& lines);
    Twips RunSubReport(const Control& control, ItemList& content);
    void Place(const Control& control, std::size_t index, ItemList& content);

    Measurer& measurer_;
    RunControl& control_;
    int depth_;
    std::unique_ptr<BandComposer> inner_;  // For sub-reports.
    PlacedBand inner_band_;
    Growth growth_;
    // Of the section at hand, by the index of its control.
    std::vector<Extent> extents_;
    std::vector<Lines> lines_;
    std::vector<ItemList> sub_reports_;
};

}  // namespace varnel::engine
