#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "render/fonts/font_set.h"

struct hb_buffer_t;

namespace varnel::render {

/// Turns text whose scripts join, reorder or stack into placed glyphs. Part of FontSet, which
/// describes what it does and does not do about direction.
class TextShaper {
  public:
    explicit TextShaper(FontSet& fonts);
    ~TextShaper();
    TextShaper(const TextShaper&) = delete;
    TextShaper& operator=(const TextShaper&) = delete;

    /// In visual order; valid until the next call.
    std::span<const ShapedGlyph> Shape(FontStyle style, std::string_view utf8);
    std::int64_t Advance(FontStyle style, std::string_view utf8);

  private:
    enum class Direction : std::uint8_t { kNeutral, kLeftToRight, kRightToLeft };

    struct Character {
        char32_t code_point;
        std::uint32_t offset;  // in bytes
        std::uint32_t script;
        FaceIndex face;
        Direction direction;
    };

    /// Characters [begin, end) that share face, script and direction.
    struct Run {
        std::size_t begin;
        std::size_t end;
        Direction direction;
    };

    void ReadCharacters(FontStyle style, std::string_view utf8);
    Character ReadCharacter(FontStyle style, char32_t code_point, std::uint32_t offset);
    void JoinToPrevious(Character& character) const;
    static Direction DirectionOf(char32_t code_point, std::uint32_t script);
    Direction BaseDirection() const;
    void ResolveNeutrals(Direction base);
    void SplitRuns();
    void OrderRuns(Direction base);
    void ShapeRun(const Run& run, std::uint32_t text_end);
    void AppendGlyphs(const Run& run, std::uint32_t text_end);

    FontSet& fonts_;
    hb_buffer_t* buffer_;
    std::vector<Character> characters_;
    std::vector<Run> runs_;
    std::vector<ShapedGlyph> glyphs_;
};

}  // namespace varnel::render
