#pragma once

#include <string>

#include "engine/document.h"
#include "render/output_buffer.h"

namespace varnel::render {

/// Writes each printed band as a JSON object on a line of its own. docs/formats.md describes the
/// format, which is an interface that others build on.
class JsonLinesWriter final : public engine::BandSink {
  public:
    /// The sink must outlive the writer; it is neither flushed nor closed here.
    explicit JsonLinesWriter(ByteSink& sink) : output_(sink) {}

    void Begin(const engine::DocumentInfo&, const Surface&) override {}
    void Write(const Section& section, const engine::BandMark& mark) override;
    void End() override { output_.HandOver(); }

  private:
    OutputBuffer output_;
};

}  // namespace varnel::render
