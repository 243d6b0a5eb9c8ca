#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

struct hb_face_t;
struct hb_font_t;

namespace varnel::render {

using GlyphId = std::uint16_t;

/// Advances and offsets are whole numbers of 1/65536 em: exact for faces designed on a power of
/// two, and quick to add.
inline constexpr std::int32_t kUnitsPerEm = 65536;

/// Measures of a face in 1/1000 em; descent is negative.
struct FontMetrics {
    double ascent = 0;
    double descent = 0;
    double cap_height = 0;
    double italic_angle = 0;  // degrees, negative leans to the right
    double weight = 400;
    std::array<double, 4> bounding_box{};  // left, bottom, right, top
};

/// One TrueType file, mapped into memory. Used by one thread at a time.
class FontFace {
  public:
    /// Throws std::runtime_error naming the file when it is no usable TrueType font.
    explicit FontFace(const std::filesystem::path& file);
    ~FontFace();
    FontFace(const FontFace&) = delete;
    FontFace& operator=(const FontFace&) = delete;

    /// The glyph of a code point, 0 when the face has none.
    GlyphId Glyph(char32_t code_point) const;
    std::int32_t Advance(GlyphId glyph) const;

    std::size_t GlyphCount() const { return glyph_count_; }
    const FontMetrics& Metrics() const { return metrics_; }
    /// Such as "OpenSans-Bold".
    const std::string& PostScriptName() const { return postscript_name_; }

    hb_face_t* Face() const { return face_; }
    /// Scaled to kUnitsPerEm.
    hb_font_t* Font() const { return font_; }

  private:
    void ReadMetrics();
    void ReadBoundingBox();
    void ReadPostScriptName(const std::filesystem::path& file);

    hb_face_t* face_ = nullptr;
    hb_font_t* font_ = nullptr;
    std::size_t glyph_count_ = 0;
    FontMetrics metrics_;
    std::string postscript_name_;
};

}  // namespace varnel::render
