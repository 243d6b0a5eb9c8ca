#include "render/text/cell_width.h"

#include <algorithm>
#include <iterator>

#include "render/fonts/unicode.h"
#include "render/fonts/utf8.h"

namespace varnel::render {

namespace {

struct Range {
    char32_t first;
    char32_t last;
};

constexpr Range kWide[] = {
    {0x1100, 0x115F},    // Hangul leading consonants
    {0x2E80, 0x303E},    // CJK radicals and punctuation
    {0x3041, 0x33FF},    // kana, CJK compatibility
    {0x3400, 0x4DBF},    // ideographs, extension A
    {0x4E00, 0xA4CF},    // ideographs, Yi
    {0xA960, 0xA97C},    // Hangul extended A
    {0xAC00, 0xD7A3},    // Hangul syllables
    {0xF900, 0xFAFF},    // compatibility ideographs
    {0xFE10, 0xFE19},    // vertical forms
    {0xFE30, 0xFE6F},    // compatibility forms
    {0xFF00, 0xFF60},    // full-width forms
    {0xFFE0, 0xFFE6},    // full-width signs
    {0x1F300, 0x1F64F},  // pictographs
    {0x1F680, 0x1F6FF},  // transport
    {0x1F900, 0x1F9FF},  // supplemental pictographs
    {0x20000, 0x3FFFD},  // ideographs of the further planes
};

bool IsWide(char32_t code_point) {
    const auto* range =
        std::lower_bound(std::begin(kWide), std::end(kWide), code_point,
                         [](const Range& r, char32_t value) { return r.last < value; });
    return range != std::end(kWide) && range->first <= code_point;
}

int WidthOf(char32_t code_point) {
    constexpr char32_t kFirstMark = 0x300;
    if (code_point < kFirstMark) return 1;
    if (IsMark(code_point) || IsFormatting(code_point)) return 0;
    return IsWide(code_point) ? 2 : 1;
}

bool IsPrintableAscii(std::string_view text) {
    bool printable = true;
    for (const char c : text) printable &= static_cast<unsigned char>(c - 0x20) < 0x5F;
    return printable;
}

}  // namespace

int CellWidth(std::string_view utf8) {
    if (IsAscii(utf8)) return static_cast<int>(utf8.size());
    int width = 0;
    const char* position = utf8.data();
    const char* const end = position + utf8.size();
    while (position < end) width += WidthOf(DecodeUtf8(position, end));
    return width;
}

std::size_t CellPrefix(std::string_view utf8, int columns) {
    const char* position = utf8.data();
    const char* const end = position + utf8.size();
    const char* fitting = position;
    while (position < end) {
        columns -= WidthOf(DecodeUtf8(position, end));
        if (columns < 0) break;
        fitting = position;
    }
    return static_cast<std::size_t>(fitting - utf8.data());
}

std::string_view WithoutTrailingBlanks(std::string_view text) {
    while (!text.empty() && static_cast<unsigned char>(text.back()) <= ' ') text.remove_suffix(1);
    return text;
}

void AppendCells(std::string& out, std::string_view utf8) {
    if (IsPrintableAscii(utf8)) {
        out += utf8;
        return;
    }
    const char* position = utf8.data();
    const char* const end = position + utf8.size();
    while (position < end) {
        const char* const first = position;
        const char32_t code_point = DecodeUtf8(position, end);
        if (IsControl(code_point)) {
            out += ' ';
        } else if (code_point == kReplacementCharacter) {
            out += "\xEF\xBF\xBD";
        } else {
            out.append(first, position);
        }
    }
}

}  // namespace varnel::render
