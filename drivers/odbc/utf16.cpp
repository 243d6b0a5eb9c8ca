#include "drivers/odbc/utf16.h"

#include <cstdint>

namespace varnel::drivers {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

int ContinuationBytes(unsigned char first) {
    if (first < 0x80) return 0;
    if (first >= 0xC2 && first < 0xE0) return 1;
    if (first >= 0xE0 && first < 0xF0) return 2;
    return first >= 0xF0 && first < 0xF5 ? 3 : -1;
}

/// Takes the first character off the text.
char32_t TakeCharacter(std::string_view& utf8) {
    constexpr unsigned char kFirstBits[] = {0x7F, 0x1F, 0x0F, 0x07};
    const auto first = static_cast<unsigned char>(utf8.front());
    utf8.remove_prefix(1);
    const int more = ContinuationBytes(first);
    if (more < 0) return kReplacement;
    char32_t character = first & kFirstBits[more];
    for (int i = 0; i < more; ++i) {
        if (utf8.empty() || (utf8.front() & 0xC0) != 0x80) return kReplacement;
        character = character << 6 | (static_cast<unsigned char>(utf8.front()) & 0x3F);
        utf8.remove_prefix(1);
    }
    return character;
}

void AppendCharacter(char32_t character, std::string& out) {
    const auto tail = [&](int shift) {
        out += static_cast<char>(0x80 | (character >> shift & 0x3F));
    };
    if (character < 0x80) {
        out += static_cast<char>(character);
    } else if (character < 0x800) {
        out += static_cast<char>(0xC0 | character >> 6);
        tail(0);
    } else if (character < 0x10000) {
        out += static_cast<char>(0xE0 | character >> 12);
        tail(6), tail(0);
    } else {
        out += static_cast<char>(0xF0 | character >> 18);
        tail(12), tail(6), tail(0);
    }
}

/// Appends the characters before the first that is not ASCII, of which most texts have none.
std::size_t AppendAscii(std::span<const unsigned short> utf16, std::string& out) {
    const auto start = out.size();
    out.resize(start + utf16.size());
    char* const bytes = out.data() + start;
    std::size_t length = 0;
    for (; length < utf16.size() && utf16[length] < 0x80; ++length)
        bytes[length] = static_cast<char>(utf16[length]);
    out.resize(start + length);
    return length;
}

bool IsHighHalf(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsLowHalf(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

}  // namespace

WideText ToUtf16(std::string_view utf8) {
    WideText utf16;
    utf16.reserve(utf8.size() + 1);
    while (!utf8.empty()) {
        char32_t character = TakeCharacter(utf8);
        if (character >= 0x10000) {
            character -= 0x10000;
            utf16.push_back(static_cast<unsigned short>(0xD800 | character >> 10));
            character = 0xDC00 | (character & 0x3FF);
        }
        utf16.push_back(static_cast<unsigned short>(character));
    }
    utf16.push_back(0);
    return utf16;
}

std::string_view Beginning(std::string_view utf8, std::size_t most) {
    if (utf8.size() <= most) return utf8;
    while (most > 0 && (utf8[most] & 0xC0) == 0x80) --most;
    return utf8.substr(0, most);
}

void AppendUtf8(std::span<const unsigned short> utf16, std::string& out) {
    for (std::size_t i = AppendAscii(utf16, out); i < utf16.size(); ++i) {
        char32_t character = utf16[i];
        if (IsHighHalf(character) && i + 1 < utf16.size() && IsLowHalf(utf16[i + 1]))
            character = 0x10000 + ((character & 0x3FF) << 10 | (utf16[++i] & 0x3FF));
        else if (IsHighHalf(character) || IsLowHalf(character))
            character = kReplacement;
        AppendCharacter(character, out);
    }
}

std::string ToUtf8(const unsigned short* utf16) {
    std::size_t length = 0;
    while (utf16[length] != 0) ++length;
    std::string utf8;
    AppendUtf8({utf16, length}, utf8);
    return utf8;
}

}  // namespace varnel::drivers
