#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "render/fonts/font_face.h"

namespace varnel::render {

class TextShaper;

enum class FontStyle : std::uint8_t { kRegular, kBold, kItalic, kBoldItalic };
inline constexpr std::size_t kFontStyleCount = 4;

/// Which of a set's faces a glyph comes from.
using FaceIndex = std::uint8_t;

/// All there is to know about one code point in one style; looked up once, then kept.
struct GlyphCell {
    enum Flag : std::uint8_t {
        kPlain = 0,
        kNeedsShaping = 1,  // the script joins, reorders or stacks: see FontSet::Shape
        kInvisible = 2,     // formatting character: no width, nothing to draw
        kMissing = 4,       // no face has it: the cell is that of U+FFFD
    };

    std::array<char, 4> hex;  // the glyph id in hexadecimal
    std::int32_t advance;     // 1/65536 em
    GlyphId glyph;
    FaceIndex face;
    std::uint8_t flags;
};

/// One glyph placed by the shaper, in visual order. `text_begin` and `text_end` are the bytes of
/// the text that the glyph stands for; empty for the second and later glyphs of a character.
struct ShapedGlyph {
    GlyphId glyph;
    FaceIndex face;
    std::int32_t advance;
    std::int32_t x_offset;
    std::int32_t y_offset;
    std::uint32_t text_begin;
    std::uint32_t text_end;
};

/// The faces of a document: four styles of Open Sans, and DejaVu Sans for the characters Open Sans
/// lacks. Open Sans has figures of one width, so columns of amounts align. Characters that no face
/// has, and bytes that are not UTF-8, are shown as U+FFFD; control characters are shown as a space.
///
/// Latin, Greek, Cyrillic, punctuation, symbols and figures are measured by adding cached advances,
/// without kerning. Text with any other character (Arabic, Hebrew, Indic scripts, combining marks)
/// is shaped. Its direction is resolved per run: right-to-left words, numbers and left-to-right
/// words are ordered by the first strong character of the text; explicit direction marks and deeper
/// nesting are ignored.
///
/// Used by one thread at a time; a set may serve any number of documents.
class FontSet {
  public:
    /// Takes the fonts from the folder in the environment variable VARNEL_FONT_DIR, and when that
    /// is not set, from where the Debian packages put them.
    FontSet();

    /// Takes all files from one folder. A missing file is a std::runtime_error that names the file
    /// and the package it comes in.
    explicit FontSet(const std::filesystem::path& folder);
    ~FontSet();
    FontSet(const FontSet&) = delete;
    FontSet& operator=(const FontSet&) = delete;

    /// Width of a line of text, in the unit of `size`.
    double Width(FontStyle style, double size, std::string_view utf8) {
        return static_cast<double>(Advance(style, utf8)) * size / kUnitsPerEm;
    }

    /// Width in 1/65536 em.
    std::int64_t Advance(FontStyle style, std::string_view utf8);

    const GlyphCell& Cell(FontStyle style, char32_t code_point) {
        auto& page = pages_[static_cast<std::size_t>(style)][code_point >> 8];
        if (page == nullptr) LoadPage(style, code_point >> 8);
        return (*page)[code_point & 0xFF];
    }

    using GlyphCells = std::span<const GlyphCell, 256>;

    /// The cells of U+0000 to U+00FF, for loops over text that is mostly ASCII.
    GlyphCells AsciiCells(FontStyle style) {
        Cell(style, 0);
        return *pages_[static_cast<std::size_t>(style)][0];
    }

    /// True when some character of the text makes Shape necessary.
    bool NeedsShaping(FontStyle style, std::string_view utf8);

    /// The glyphs of a line in visual order; valid until the next call.
    std::span<const ShapedGlyph> Shape(FontStyle style, std::string_view utf8);

    const FontMetrics& Metrics(FontStyle style) const {
        return faces_[static_cast<std::size_t>(style)]->Metrics();
    }

    std::size_t FaceCount() const { return faces_.size(); }
    const FontFace& Face(FaceIndex index) const { return *faces_[index]; }

  private:
    using GlyphPage = std::array<GlyphCell, 256>;
    using GlyphPages = std::array<std::unique_ptr<GlyphPage>, 0x110000 / 256>;

    void LoadFaces(const std::filesystem::path& folder);
    void LoadPage(FontStyle style, char32_t page_number);
    GlyphCell MakeCell(FontStyle style, char32_t code_point) const;

    std::vector<std::unique_ptr<FontFace>> faces_;  // one a style, then the fallback faces
    std::vector<GlyphPages> pages_;
    std::unique_ptr<TextShaper> shaper_;
};

}  // namespace varnel::render
