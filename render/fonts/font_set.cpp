#include "render/fonts/font_set.h"

#include <cstdlib>
#include <stdexcept>
#include <string>

#include "render/fonts/text_shaper.h"
#include "render/fonts/unicode.h"
#include "render/fonts/utf8.h"

namespace varnel::render {

namespace {

struct FontFile {
    const char* name;
    const char* folder;
    const char* package;
};

constexpr FontFile OpenSans(const char* name) {
    return {name, "/usr/share/fonts/truetype/open-sans", "fonts-open-sans"};
}

constexpr FontFile DejaVu(const char* name) {
    return {name, "/usr/share/fonts/truetype/dejavu", "fonts-dejavu-core"};
}

// In the order of FontStyle, then the fallback faces.
constexpr std::array kFontFiles = {
    OpenSans("OpenSans-Regular.ttf"), OpenSans("OpenSans-Bold.ttf"),
    OpenSans("OpenSans-Italic.ttf"),  OpenSans("OpenSans-BoldItalic.ttf"),
    DejaVu("DejaVuSans.ttf"),         DejaVu("DejaVuSans-Bold.ttf"),
};
constexpr FaceIndex kFallbackRegular = kFontStyleCount;
constexpr FaceIndex kFallbackBold = kFontStyleCount + 1;

FaceIndex FallbackOf(FontStyle style) {
    const bool bold = style == FontStyle::kBold || style == FontStyle::kBoldItalic;
    return bold ? kFallbackBold : kFallbackRegular;
}

std::filesystem::path FolderFromEnvironment() {
    const char* folder = std::getenv("VARNEL_FONT_DIR");
    return folder == nullptr ? "" : folder;
}

std::filesystem::path RequireFile(const FontFile& font, const std::filesystem::path& folder) {
    auto path = (folder.empty() ? std::filesystem::path(font.folder) : folder) / font.name;
    std::error_code error;
    if (std::filesystem::is_regular_file(path, error)) return path;
    throw std::runtime_error("font file " + path.string() + " is missing: install the package " +
                             font.package + ", or set VARNEL_FONT_DIR to a folder that holds " +
                             font.name);
}

std::uint8_t FlagsOf(char32_t code_point) {
    if (IsMark(code_point) || !IsPlainScript(ScriptOf(code_point))) return GlyphCell::kNeedsShaping;
    return IsFormatting(code_point) ? GlyphCell::kInvisible : GlyphCell::kPlain;
}

std::array<char, 4> Hexadecimal(GlyphId glyph) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    return {kDigits[glyph >> 12], kDigits[glyph >> 8 & 15], kDigits[glyph >> 4 & 15],
            kDigits[glyph & 15]};
}

}  // namespace

FontSet::FontSet() : FontSet(FolderFromEnvironment()) {}

FontSet::FontSet(const std::filesystem::path& folder)
    : pages_(kFontStyleCount), shaper_(std::make_unique<TextShaper>(*this)) {
    LoadFaces(folder);
}

FontSet::~FontSet() = default;

void FontSet::LoadFaces(const std::filesystem::path& folder) {
    for (const FontFile& font : kFontFiles) {
        faces_.push_back(std::make_unique<FontFace>(RequireFile(font, folder)));
    }
}

void FontSet::LoadPage(FontStyle style, char32_t page_number) {
    auto page = std::make_unique<GlyphPage>();
    for (char32_t i = 0; i < page->size(); ++i) {
        (*page)[i] = MakeCell(style, page_number * 256 + i);
    }
    pages_[static_cast<std::size_t>(style)][page_number] = std::move(page);
}

GlyphCell FontSet::MakeCell(FontStyle style, char32_t code_point) const {
    const bool control = IsControl(code_point);
    const char32_t shown = control ? U' ' : code_point;
    std::uint8_t flags = control ? std::uint8_t{GlyphCell::kPlain} : FlagsOf(code_point);
    const bool visible = (flags & GlyphCell::kInvisible) == 0;
    auto face = static_cast<FaceIndex>(style);
    GlyphId glyph = faces_[face]->Glyph(shown);
    if (glyph == 0) {
        face = FallbackOf(style);
        glyph = faces_[face]->Glyph(shown);
    }
    if (glyph == 0) {
        glyph = faces_[face]->Glyph(kReplacementCharacter);
        if (visible) flags |= GlyphCell::kMissing;
    }
    return {Hexadecimal(glyph), visible ? faces_[face]->Advance(glyph) : 0, glyph, face, flags};
}

std::int64_t FontSet::Advance(FontStyle style, std::string_view utf8) {
    const GlyphCells ascii = AsciiCells(style);
    std::int64_t sum = 0;
    const char* position = utf8.data();
    const char* const end = position + utf8.size();
    while (position < end) {
        const auto byte = static_cast<unsigned char>(*position);
        if (byte < 0x80) {
            sum += ascii[byte].advance;
            ++position;
            continue;
        }
        const GlyphCell& cell = Cell(style, DecodeUtf8(position, end));
        if ((cell.flags & GlyphCell::kNeedsShaping) != 0) return shaper_->Advance(style, utf8);
        sum += cell.advance;
    }
    return sum;
}

bool FontSet::NeedsShaping(FontStyle style, std::string_view utf8) {
    if (IsAscii(utf8)) return false;
    const char* position = utf8.data();
    const char* const end = position + utf8.size();
    while (position < end) {
        const GlyphCell& cell = Cell(style, DecodeUtf8(position, end));
        if ((cell.flags & GlyphCell::kNeedsShaping) != 0) return true;
    }
    return false;
}

std::span<const ShapedGlyph> FontSet::Shape(FontStyle style, std::string_view utf8) {
    return shaper_->Shape(style, utf8);
}

}  // namespace varnel::render
