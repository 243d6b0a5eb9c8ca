#pragma once

#include <memory>
#include <string_view>

#include "render/pdf/byte_buffer.h"

struct libdeflate_compressor;

namespace varnel::render {

/// Compresses whole streams in the zlib format of PDF's FlateDecode. Keeps its memory between
/// streams.
class Deflater {
  public:
    /// Level 0 (stored) to 12 (smallest); others are a std::invalid_argument.
    explicit Deflater(int level);

    /// Valid until the next call.
    std::string_view Compress(std::string_view bytes);

  private:
    struct Free {
        void operator()(libdeflate_compressor* compressor) const;
    };
    std::unique_ptr<libdeflate_compressor, Free> compressor_;
    ByteBuffer output_;
};

}  // namespace varnel::render
