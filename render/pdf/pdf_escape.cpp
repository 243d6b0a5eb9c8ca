#include "render/pdf/pdf_escape.h"

#include <algorithm>

#include "render/fonts/utf8.h"

namespace varnel::render {

namespace {

bool IsPrintableAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

void AppendUtf8(std::string& out, char32_t code_point) {
    const auto add = [&out](char32_t byte) { out += static_cast<char>(byte); };
    if (code_point < 0x80) return add(code_point);
    if (code_point < 0x800) {
        add(0xC0 | code_point >> 6);
    } else {
        if (code_point < 0x10000) {
            add(0xE0 | code_point >> 12);
        } else {
            add(0xF0 | code_point >> 18);
            add(0x80 | (code_point >> 12 & 0x3F));
        }
        add(0x80 | (code_point >> 6 & 0x3F));
    }
    add(0x80 | (code_point & 0x3F));
}

bool IsXmlCharacter(char32_t code_point) {
    if (code_point < 0x20) return code_point == '\t' || code_point == '\n' || code_point == '\r';
    return code_point != 0xFFFE && code_point != 0xFFFF;
}

}  // namespace

void AppendHex16(std::string& out, unsigned value) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    for (int shift = 12; shift >= 0; shift -= 4) out += kDigits[value >> shift & 15u];
}

void AppendUtf16Hex(std::string& out, char32_t code_point) {
    if (code_point < 0x10000) return AppendHex16(out, code_point);
    const char32_t rest = code_point - 0x10000;
    AppendHex16(out, 0xD800 + (rest >> 10));
    AppendHex16(out, 0xDC00 + (rest & 0x3FF));
}

void AppendPdfString(std::string& out, std::string_view utf8) {
    if (IsPrintableAscii(utf8)) {
        out += '(';
        for (const char c : utf8) {
            if (c == '(' || c == ')' || c == '\\') out += '\\';
            out += c;
        }
        out += ')';
        return;
    }
    out += "<FEFF";
    const char* position = utf8.data();
    const char* const end = position + utf8.size();
    while (position < end) AppendUtf16Hex(out, DecodeUtf8(position, end));
    out += '>';
}

void AppendXmlText(std::string& out, std::string_view utf8) {
    const char* position = utf8.data();
    const char* const end = position + utf8.size();
    while (position < end) {
        const char32_t code_point = DecodeUtf8(position, end);
        switch (code_point) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '"':
                out += "&quot;";
                break;
            default:
                AppendUtf8(out, IsXmlCharacter(code_point) ? code_point : kReplacementCharacter);
        }
    }
}

}  // namespace varnel::render
