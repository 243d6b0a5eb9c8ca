#pragma once

#include "engine/runner.h"

namespace varnel::engine {

/// Hands the live sections of a run to a band sink, those of sub-reports after the section that
/// holds them.
class BandsOutput final : public EndlessSink {
  public:
    BandsOutput(const DocumentInfo& info, BandSink& sink, RunControl& control, int depth = 0)
        : info_(info), sink_(sink), control_(control), depth_(depth) {}

  private:
    void Start(Surface& surface) override;
    void Take(const Part& part) override;
    void Pass(const Part& part) override;
    void RunSubReports(const Section& section);

    const DocumentInfo& info_;
    BandSink& sink_;
    RunControl& control_;
    int depth_;
};

}  // namespace varnel::engine
