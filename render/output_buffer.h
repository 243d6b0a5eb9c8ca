#pragma once

#include <cstddef>
#include <string>

#include "render/byte_sink.h"

namespace varnel::render {

/// Collects what a renderer writes and hands it on in large pieces.
class OutputBuffer {
  public:
    explicit OutputBuffer(ByteSink& sink) : sink_(sink) { bytes_.reserve(kFull + kFull / 4); }

    /// Append here, then call EndRecord.
    std::string& Bytes() { return bytes_; }
    void EndRecord() {
        if (bytes_.size() >= kFull) HandOver();
    }
    /// Gives the rest to the sink, which stays the owner's to flush or close.
    void HandOver() {
        if (!bytes_.empty()) sink_.Write(bytes_);
        bytes_.clear();
    }

  private:
    static constexpr std::size_t kFull = 64 * 1024;

    ByteSink& sink_;
    std::string bytes_;
};

}  // namespace varnel::render
