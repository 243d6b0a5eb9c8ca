#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "render/byte_sink.h"
#include "render/pdf/deflater.h"

namespace varnel::render {

/// Number of an indirect object; 0 is none.
using ObjectId = std::uint32_t;

/// The body of a PDF file: gives out object numbers, writes objects as they become known, remembers
/// where they are. An object may be referred to before it is written; all that stays in memory is
/// eight bytes an object.
class PdfObjects {
  public:
    /// Writes the file header.
    PdfObjects(ByteSink& sink, int compression_level);

    /// A number for an object that is written later.
    ObjectId Reserve();

    /// Writes an object whose value is `body`, such as "<</Type/Catalog>>". Each reserved number is
    /// written once; a second time is a std::logic_error.
    void WriteObject(ObjectId id, std::string_view body);

    /// Writes a stream. `entries` are added to its dictionary, such as "/Length1 1234".
    void WriteStream(ObjectId id, std::string_view entries, std::string_view content);

    /// The same without compression, for what other programs look for in the raw file.
    void WritePlainStream(ObjectId id, std::string_view entries, std::string_view content);

    /// Writes the cross-reference table and the trailer. A reserved number that was never written
    /// is a std::logic_error.
    void Finish(ObjectId catalog, ObjectId info);

  private:
    void Begin(ObjectId id);
    void Put(std::string_view bytes);
    void PutNumber(std::uint64_t number);
    void PutStream(ObjectId id, std::string_view entries, std::string_view filter,
                   std::string_view data);
    void PutOffsets();
    void PutTrailer(ObjectId catalog, ObjectId info, std::uint64_t table);
    void MixIntoFingerprint(std::string_view bytes);

    ByteSink& sink_;
    Deflater deflater_;
    std::uint64_t position_ = 0;
    std::vector<std::uint64_t> offsets_;  // 0: reserved, not yet written
    std::uint64_t fingerprint_[2] = {0x9E3779B97F4A7C15u, 0xC2B2AE3D27D4EB4Fu};
};

/// "12 0 R".
void AppendReference(std::string& out, ObjectId id);

}  // namespace varnel::render
