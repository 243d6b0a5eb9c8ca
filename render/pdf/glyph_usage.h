#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "render/fonts/font_face.h"

namespace varnel::render {

/// Which glyphs of a face a document shows, and what they mean as text.
class GlyphUsage {
  public:
    explicit GlyphUsage(std::size_t glyph_count) : code_points_(glyph_count, kUnused) {}

    /// Where several code points share a glyph (space and no-break space), the lowest is the one
    /// that copied text gets, whatever came first.
    void Add(GlyphId glyph, char32_t code_point) {
        char32_t& known = code_points_[glyph];
        if (code_point < known) known = code_point;
    }

    /// A glyph that stands for all of `utf8`: one character, several (a ligature) or none (a later
    /// part of a character).
    void AddText(GlyphId glyph, std::string_view utf8);

    bool IsUsed(std::size_t glyph) const { return code_points_[glyph] != kUnused; }
    std::size_t GlyphCount() const { return code_points_.size(); }

    /// The text of a used glyph, empty when it has none of its own.
    std::u32string Text(GlyphId glyph) const;

  private:
    // Order matters: any code point is preferred to a ligature, and that to no text.
    static constexpr char32_t kLigature = 0xFFFFFFFD;
    static constexpr char32_t kNoText = 0xFFFFFFFE;
    static constexpr char32_t kUnused = 0xFFFFFFFF;

    std::vector<char32_t> code_points_;
    std::map<GlyphId, std::u32string> ligatures_;
};

}  // namespace varnel::render
