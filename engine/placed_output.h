#pragma once

#include "engine/band_composer.h"
#include "engine/section_sink.h"

namespace varnel::engine {

/// Hands the bands of a run to a placed-band sink, on one endless page.
class PlacedOutput final : public EndlessSink {
  public:
    PlacedOutput(const DocumentInfo& info, Twips width, Measurer& measurer, PlacedBandSink& sink,
                 RunControl& control)
        : info_(info), width_(width), sink_(sink), composer_(measurer, control) {}

  private:
    void Start(Surface& surface) override {
        surface.Widen(width_);
        sink_.Begin(info_, surface.Width());
    }
    void Take(const Part& part) override {
        composer_.Compose(part, band_);
        sink_.Write(band_);
    }

    const DocumentInfo& info_;
    Twips width_;
    PlacedBandSink& sink_;
    BandComposer composer_;
    PlacedBand band_;
};

}  // namespace varnel::engine
