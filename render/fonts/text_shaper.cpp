#include "render/fonts/text_shaper.h"

#include <hb.h>

#include <algorithm>

#include "render/fonts/unicode.h"
#include "render/fonts/utf8.h"

namespace varnel::render {

TextShaper::TextShaper(FontSet& fonts) : fonts_(fonts), buffer_(hb_buffer_create()) {}

TextShaper::~TextShaper() { hb_buffer_destroy(buffer_); }

std::span<const ShapedGlyph> TextShaper::Shape(FontStyle style, std::string_view utf8) {
    glyphs_.clear();
    ReadCharacters(style, utf8);
    const Direction base = BaseDirection();
    ResolveNeutrals(base);
    SplitRuns();
    OrderRuns(base);
    const auto text_end = static_cast<std::uint32_t>(utf8.size());
    for (const Run& run : runs_) ShapeRun(run, text_end);
    return glyphs_;
}

std::int64_t TextShaper::Advance(FontStyle style, std::string_view utf8) {
    std::int64_t sum = 0;
    for (const ShapedGlyph& glyph : Shape(style, utf8)) sum += glyph.advance;
    return sum;
}

void TextShaper::ReadCharacters(FontStyle style, std::string_view utf8) {
    characters_.clear();
    const char* position = utf8.data();
    const char* const end = position + utf8.size();
    while (position < end) {
        const auto offset = static_cast<std::uint32_t>(position - utf8.data());
        Character character = ReadCharacter(style, DecodeUtf8(position, end), offset);
        if (!characters_.empty()) JoinToPrevious(character);
        characters_.push_back(character);
    }
}

TextShaper::Character TextShaper::ReadCharacter(FontStyle style, char32_t code_point,
                                                std::uint32_t offset) {
    const GlyphCell& cell = fonts_.Cell(style, code_point);
    if (IsControl(code_point)) {
        code_point = U' ';
    } else if ((cell.flags & GlyphCell::kMissing) != 0 && !IsMark(code_point)) {
        code_point = kReplacementCharacter;  // a mark may still compose with its base
    }
    const std::uint32_t script = ScriptOf(code_point);
    return {code_point, offset, script, cell.face, DirectionOf(code_point, script)};
}

void TextShaper::JoinToPrevious(Character& character) const {
    const Character& previous = characters_.back();
    if (IsSharedScript(character.script)) character.script = previous.script;
    if (!IsMark(character.code_point)) return;
    character.direction = previous.direction;
    const FontFace& face = fonts_.Face(previous.face);
    const char32_t composed = Compose(previous.code_point, character.code_point);
    const bool composes = composed != 0 && face.Glyph(composed) != 0;
    if (composes || face.Glyph(character.code_point) != 0) character.face = previous.face;
}

TextShaper::Direction TextShaper::DirectionOf(char32_t code_point, std::uint32_t script) {
    if (IsDigit(code_point)) return Direction::kLeftToRight;
    if (IsSharedScript(script)) return Direction::kNeutral;
    return IsRightToLeft(script) ? Direction::kRightToLeft : Direction::kLeftToRight;
}

TextShaper::Direction TextShaper::BaseDirection() const {
    for (const Character& character : characters_) {
        const bool strong = character.direction != Direction::kNeutral;
        if (strong && !IsDigit(character.code_point)) return character.direction;
    }
    return Direction::kLeftToRight;
}

// Neutral characters go with their neighbours when these agree, otherwise with the whole text.
void TextShaper::ResolveNeutrals(Direction base) {
    Direction before = base;
    for (std::size_t i = 0; i < characters_.size();) {
        if (characters_[i].direction != Direction::kNeutral) {
            before = characters_[i++].direction;
            continue;
        }
        std::size_t next = i;
        while (next < characters_.size() && characters_[next].direction == Direction::kNeutral) {
            ++next;
        }
        const Direction after = next < characters_.size() ? characters_[next].direction : base;
        for (; i < next; ++i) characters_[i].direction = before == after ? before : base;
    }
}

void TextShaper::SplitRuns() {
    runs_.clear();
    for (std::size_t i = 0; i < characters_.size(); ++i) {
        const Character& now = characters_[i];
        if (i > 0) {
            const Character& before = characters_[i - 1];
            if (now.face == before.face && now.script == before.script &&
                now.direction == before.direction) {
                runs_.back().end = i + 1;
                continue;
            }
        }
        runs_.push_back({i, i + 1, now.direction});
    }
}

// The two levels of the bidirectional order: every stretch of runs against the base direction is
// turned round, and a right-to-left text as a whole before that.
void TextShaper::OrderRuns(Direction base) {
    const bool right_to_left = base == Direction::kRightToLeft;
    if (right_to_left) std::reverse(runs_.begin(), runs_.end());
    const auto follows_base = [base](const Run& run) { return run.direction == base; };
    for (auto begin = runs_.begin(); begin != runs_.end();) {
        begin = std::find_if_not(begin, runs_.end(), follows_base);
        const auto end = std::find_if(begin, runs_.end(), follows_base);
        std::reverse(begin, end);
        begin = end;
    }
}

void TextShaper::ShapeRun(const Run& run, std::uint32_t text_end) {
    const Character& first = characters_[run.begin];
    hb_buffer_clear_contents(buffer_);
    hb_buffer_set_content_type(buffer_, HB_BUFFER_CONTENT_TYPE_UNICODE);
    // Marks keep their own place in the text, so that it can be extracted again.
    hb_buffer_set_cluster_level(buffer_, HB_BUFFER_CLUSTER_LEVEL_MONOTONE_CHARACTERS);
    for (std::size_t i = run.begin; i < run.end; ++i) {
        hb_buffer_add(buffer_, characters_[i].code_point, characters_[i].offset);
    }
    const bool right_to_left = run.direction == Direction::kRightToLeft;
    hb_buffer_set_direction(buffer_, right_to_left ? HB_DIRECTION_RTL : HB_DIRECTION_LTR);
    hb_buffer_set_script(buffer_, static_cast<hb_script_t>(first.script));
    // Guessing the language would look at the locale of the process.
    hb_buffer_set_language(buffer_, hb_language_from_string("und", -1));
    hb_shape(fonts_.Face(first.face).Font(), buffer_, nullptr, 0);
    const std::uint32_t run_end =
        run.end < characters_.size() ? characters_[run.end].offset : text_end;
    AppendGlyphs(run, run_end);
}

void TextShaper::AppendGlyphs(const Run& run, std::uint32_t text_end) {
    unsigned count = 0;
    const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(buffer_, &count);
    const hb_glyph_position_t* positions = hb_buffer_get_glyph_positions(buffer_, nullptr);
    const bool right_to_left = run.direction == Direction::kRightToLeft;
    const std::size_t first_of_run = glyphs_.size();
    const FaceIndex face = characters_[run.begin].face;
    for (unsigned i = 0; i < count; ++i) {
        glyphs_.push_back({static_cast<GlyphId>(infos[i].codepoint), face, positions[i].x_advance,
                           positions[i].x_offset, positions[i].y_offset, infos[i].cluster,
                           infos[i].cluster});
    }
    // Walk in the order of the text; a glyph's characters end where those of the next begin.
    std::uint32_t next_begin = text_end;
    for (std::size_t i = 0; i < count; ++i) {
        ShapedGlyph& glyph = glyphs_[first_of_run + (right_to_left ? i : count - 1 - i)];
        glyph.text_end = next_begin;
        next_begin = glyph.text_begin;
    }
}

}  // namespace varnel::render
