#include "render/bands/json_escape.h"

#include <array>

#include "render/fonts/utf8.h"

namespace varnel::render {

namespace {

/// What a byte asks for: nothing, the letter of a short escape, or one of the two below.
constexpr char kByCode = 'u';
constexpr char kNotAscii = '?';

constexpr std::array<char, 256> kEscapes = [] {
    std::array<char, 256> escapes{};
    for (std::size_t byte = 0; byte < 0x20; ++byte) escapes[byte] = kByCode;
    for (std::size_t byte = 0x80; byte < 0x100; ++byte) escapes[byte] = kNotAscii;
    escapes['\b'] = 'b';
    escapes['\f'] = 'f';
    escapes['\n'] = 'n';
    escapes['\r'] = 'r';
    escapes['\t'] = 't';
    escapes['"'] = '"';
    escapes['\\'] = '\\';
    return escapes;
}();

char EscapeOf(char byte) { return kEscapes[static_cast<unsigned char>(byte)]; }

void AppendControl(std::string& out, char byte) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    out += "\\u00";
    out += byte < 0x10 ? '0' : '1';
    out += kDigits[static_cast<unsigned char>(byte) & 0xF];
}

/// Appends the character at `position` and moves past it.
void AppendNotAscii(std::string& out, const char*& position, const char* end) {
    const char* const first = position;
    const char32_t code_point = DecodeUtf8(position, end);
    if (code_point == kReplacementCharacter) {
        out += "\xEF\xBF\xBD";
    } else if (code_point == 0x2028 || code_point == 0x2029) {
        out += code_point == 0x2028 ? "\\u2028" : "\\u2029";
    } else {
        out.append(first, position);
    }
}

void AppendEscaped(std::string& out, const char*& position, const char* end) {
    const char escape = EscapeOf(*position);
    if (escape == kNotAscii) return AppendNotAscii(out, position, end);
    if (escape == kByCode) return AppendControl(out, *position++);
    ++position;
    out += '\\';
    out += escape;
}

}  // namespace

void AppendJsonString(std::string& out, std::string_view utf8) {
    const char* position = utf8.data();
    const char* const end = position + utf8.size();
    out += '"';
    while (true) {
        const char* const plain = position;
        while (position < end && EscapeOf(*position) == 0) ++position;
        out.append(plain, position);
        if (position == end) break;
        AppendEscaped(out, position, end);
    }
    out += '"';
}

}  // namespace varnel::render
