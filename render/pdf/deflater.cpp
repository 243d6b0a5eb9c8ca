#include "render/pdf/deflater.h"

#include <libdeflate.h>

#include <new>
#include <stdexcept>
#include <string>

namespace varnel::render {

namespace {

libdeflate_compressor* Allocate(int level) {
    constexpr int kHighestLevel = 12;
    if (level < 0 || level > kHighestLevel) {
        throw std::invalid_argument("compression level " + std::to_string(level) +
                                    " is not between 0 and 12");
    }
    libdeflate_compressor* compressor = libdeflate_alloc_compressor(level);
    if (compressor == nullptr) throw std::bad_alloc();
    return compressor;
}

}  // namespace

void Deflater::Free::operator()(libdeflate_compressor* compressor) const {
    libdeflate_free_compressor(compressor);
}

Deflater::Deflater(int level) : compressor_(Allocate(level)) {}

std::string_view Deflater::Compress(std::string_view bytes) {
    output_.Clear();
    const std::size_t bound = libdeflate_zlib_compress_bound(compressor_.get(), bytes.size());
    char* out = output_.Reserve(bound);
    const std::size_t size =
        libdeflate_zlib_compress(compressor_.get(), bytes.data(), bytes.size(), out, bound);
    return {out, size};
}

}  // namespace varnel::render
