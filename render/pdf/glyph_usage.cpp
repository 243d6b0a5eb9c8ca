#include "render/pdf/glyph_usage.h"

#include "render/fonts/utf8.h"

namespace varnel::render {

void GlyphUsage::AddText(GlyphId glyph, std::string_view utf8) {
    if (utf8.empty()) return Add(glyph, kNoText);
    const char* position = utf8.data();
    const char* const end = position + utf8.size();
    const char32_t first = DecodeUtf8(position, end);
    if (position == end) return Add(glyph, first);
    Add(glyph, kLigature);
    std::u32string text(1, first);
    while (position < end) text += DecodeUtf8(position, end);
    ligatures_.emplace(glyph, std::move(text));
}

std::u32string GlyphUsage::Text(GlyphId glyph) const {
    const char32_t known = code_points_[glyph];
    if (known == kNoText || known == kUnused) return {};
    if (known == kLigature) return ligatures_.at(glyph);
    return std::u32string(1, known);
}

}  // namespace varnel::render
