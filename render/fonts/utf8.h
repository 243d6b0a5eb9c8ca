#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

namespace varnel::render {

inline constexpr char32_t kReplacementCharacter = 0xFFFD;

/// Decodes the character at `position` and moves past it; `position < end`. Bytes that are not
/// valid UTF-8 (overlong, surrogate, cut short, beyond U+10FFFF) give U+FFFD and consume at least a
/// byte, never beyond `end`.
char32_t DecodeUtf8(const char*& position, const char* end);

/// True when every byte is below 0x80.
inline bool IsAscii(std::string_view text) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080u;
    while (text.size() >= sizeof(std::uint64_t)) {
        std::uint64_t word;
        std::memcpy(&word, text.data(), sizeof word);
        if ((word & kHighBits) != 0) return false;
        text.remove_prefix(sizeof word);
    }
    for (const char byte : text) {
        if ((static_cast<unsigned char>(byte) & 0x80u) != 0) return false;
    }
    return true;
}

}  // namespace varnel::render
