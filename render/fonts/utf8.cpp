#include "render/fonts/utf8.h"

namespace varnel::render {

namespace {

struct Lead {
    int continuation_count;  // 0: not a lead byte
    char32_t bits;
    // What the second byte may be; this alone keeps out overlong forms, surrogates and > U+10FFFF.
    unsigned char second_min = 0x80;
    unsigned char second_max = 0xBF;
};

Lead ReadLead(unsigned char byte) {
    if (byte >= 0xC2 && byte <= 0xDF) return {1, byte & 0x1Fu};
    if (byte == 0xE0) return {2, 0, 0xA0};
    if (byte == 0xED) return {2, 0x0D, 0x80, 0x9F};
    if (byte >= 0xE1 && byte <= 0xEF) return {2, byte & 0x0Fu};
    if (byte == 0xF0) return {3, 0, 0x90};
    if (byte >= 0xF1 && byte <= 0xF3) return {3, byte & 0x07u};
    if (byte == 0xF4) return {3, 4, 0x80, 0x8F};
    return {0, 0};
}

}  // namespace

char32_t DecodeUtf8(const char*& position, const char* end) {
    const auto first = static_cast<unsigned char>(*position++);
    if (first < 0x80) return first;
    Lead lead = ReadLead(first);
    if (lead.continuation_count == 0) return kReplacementCharacter;
    char32_t code_point = lead.bits;
    for (int i = 0; i < lead.continuation_count; ++i) {
        if (position == end) return kReplacementCharacter;
        const auto byte = static_cast<unsigned char>(*position);
        if (byte < lead.second_min || byte > lead.second_max) return kReplacementCharacter;
        lead.second_min = 0x80;
        lead.second_max = 0xBF;
        code_point = (code_point << 6) | (byte & 0x3Fu);
        ++position;
    }
    return code_point;
}

}  // namespace varnel::render
