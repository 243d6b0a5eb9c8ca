#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "engine/engine.h"
#include "host/object.h"

namespace varnel::test {

/// A control as it stood when its band was written.
struct CollectedControl {
    std::string text;
    ControlValue value;
    std::string tag;
    bool visible = true;
    Box box;
    bool bold = false;
    friend bool operator==(const CollectedControl&, const CollectedControl&) = default;
};

struct CollectedBand {
    std::string section;
    int depth = 0;
    Twips height = 0;
    std::map<std::string, CollectedControl> controls;
    friend bool operator==(const CollectedBand&, const CollectedBand&) = default;

    const CollectedControl& operator[](const std::string& control) const {
        return controls.at(control);
    }
    const std::string& Text(const std::string& control) const { return controls.at(control).text; }
};

/// Keeps every printed band of a run, to be asked about afterwards.
class CollectedBands final : public engine::BandSink {
  public:
    std::vector<CollectedBand> bands;
    bool ended = false;

    void Begin(const engine::DocumentInfo&, const Surface&) override {}
    void End() override { ended = true; }
    void Write(const Section& section, const engine::BandMark& mark) override {
        if (!mark.printed) return;
        CollectedBand band{std::string(section.Name()), mark.depth, section.Height(), {}};
        for (const auto& control : section.Controls())
            band.controls[std::string(control.Design().name)] = {
                control.Text(),    control.Value(), control.Tag(),
                control.Visible(), control.Place(), control.Style().bold};
        bands.push_back(std::move(band));
    }

    /// The bands of that section, in order.
    std::vector<CollectedBand> Of(const std::string& section) const {
        std::vector<CollectedBand> found;
        for (const auto& band : bands)
            if (band.section == section && band.depth == 0) found.push_back(band);
        return found;
    }
    /// The texts of a control of that section, in order.
    std::vector<std::string> Texts(const std::string& section, const std::string& control) const {
        std::vector<std::string> texts;
        for (const auto& band : Of(section)) texts.push_back(band.Text(control));
        return texts;
    }
};

inline CollectedBands Collect(BandedReport& report) {
    CollectedBands collected;
    engine::RunToBands(report, {}, collected);
    return collected;
}

}  // namespace varnel::test
