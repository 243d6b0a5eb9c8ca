#include "render/pdf/pdf_page.h"

#include <algorithm>
#include <cstring>

#include "render/fonts/utf8.h"
#include "render/pdf/pdf_escape.h"

namespace varnel::render {

namespace {

void AppendLevel(std::string& out, std::uint8_t level) {
    AppendDecimal(out, level / 255.0);
    out += ' ';
}

std::string FillOperator(Colour colour) {
    std::string out;
    AppendLevel(out, colour.red);
    if (colour == Colour::Gray(colour.red)) return out.append("g\n");
    AppendLevel(out, colour.green);
    AppendLevel(out, colour.blue);
    return out.append("rg\n");
}

char* Copy(char* out, std::string_view text) { return std::copy(text.begin(), text.end(), out); }

}  // namespace

void PdfPage::Begin(double width, double height) {
    content_.Clear();
    entries_.clear();
    state_ = State{};
    width_ = width;
    height_ = height;
    height_hundredths_ = ToHundredths(height);
}

std::string_view PdfPage::End() {
    LeaveText();
    return content_.View();
}

void PdfPage::Text(double x, double y, const PdfTextStyle& style, std::string_view utf8) {
    const Hundredths size = ToHundredths(style.size);
    if (utf8.empty() || size <= 0) return;
    SetFill(style.colour);
    MoveTo(x, y);
    SetStretch(style.stretch);
    if (fonts_.NeedsShaping(style.font, utf8)) return ShowShaped(style.font, size, utf8);
    ShowPlain(style.font, size, utf8);
}

void PdfPage::FillRect(double x, double y, double width, double height, Colour colour) {
    LeaveText();
    SetFill(colour);
    Operator({ToHundredths(x), FromBottom(y + height), ToHundredths(width), ToHundredths(height)},
             "re f");
}

void PdfPage::Operator(std::initializer_list<Hundredths> operands, std::string_view name) {
    char* out = content_.Reserve(operands.size() * kLongestNumber + name.size() + 1);
    for (const Hundredths operand : operands) {
        out = WriteHundredths(out, operand);
        *out++ = ' ';
    }
    out = Copy(out, name);
    *out++ = '\n';
    content_.Commit(out);
}

void PdfPage::MoveTo(double x, double y) {
    if (!state_.in_text) {
        content_.Append("BT\n");
        state_.in_text = true;
        state_.line_x = state_.line_y = 0;
    }
    const Hundredths to_x = ToHundredths(x);
    const Hundredths to_y = FromBottom(y);
    if (to_x == state_.line_x && to_y == state_.line_y) {
        // Td goes back to where the last text began, which a text on the same spot needs too.
        content_.Append("0 0 Td\n");
        return;
    }
    Operator({to_x - state_.line_x, to_y - state_.line_y}, "Td");
    state_.line_x = to_x;
    state_.line_y = to_y;
}

void PdfPage::LeaveText() {
    if (!state_.in_text) return;
    content_.Append("ET\n");
    state_.in_text = false;
}

void PdfPage::SetFont(FaceIndex face, Hundredths size) {
    if (state_.face == face && state_.size == size) return;
    state_.face = face;
    state_.size = size;
    char* out = content_.Reserve(2 * kLongestNumber);
    out = Copy(out, "/F");
    out = WriteInteger(out, face);
    *out++ = ' ';
    content_.Commit(out);
    Operator({size}, "Tf");
}

void PdfPage::SetStretch(double percent) {
    const Hundredths stretch = ToHundredths(percent);
    if (state_.stretch == stretch) return;
    state_.stretch = stretch;
    Operator({stretch}, "Tz");
}

void PdfPage::SetFill(Colour colour) {
    if (state_.fill == colour) return;
    state_.fill = colour;
    content_.Append(FillOperator(colour));
}

void PdfPage::ShowPlain(FontStyle style, Hundredths size, std::string_view utf8) {
    constexpr std::string_view kEnd = "> Tj\n";
    constexpr std::size_t kGlyphsOfString = 4000;  // some viewers refuse very long strings
    const FontSet::GlyphCells ascii = fonts_.AsciiCells(style);
    const char* position = utf8.data();
    const char* const end = position + utf8.size();
    char* out = nullptr;
    std::size_t room = 0;  // glyphs until the open string is full; 0 when none is open
    GlyphUsage* usage = nullptr;
    while (position < end) {
        const auto byte = static_cast<unsigned char>(*position);
        const bool is_ascii = byte < 0x80;
        char32_t code_point = is_ascii ? byte : DecodeUtf8(position, end);
        const GlyphCell& cell = is_ascii ? ascii[byte] : fonts_.Cell(style, code_point);
        position += is_ascii;
        if (cell.flags != GlyphCell::kPlain) {
            if (cell.flags == GlyphCell::kInvisible) continue;
            code_point = kReplacementCharacter;
        }
        if (room == 0 || cell.face != state_.face) {
            if (out != nullptr) content_.Commit(Copy(out, kEnd));
            SetFont(cell.face, size);
            usage = &used_fonts_.Use(cell.face);
            const auto bytes_left = static_cast<std::size_t>(end - position);
            room = std::min(kGlyphsOfString, bytes_left + 1);
            out = content_.Reserve(room * cell.hex.size() + kEnd.size() + 1);
            *out++ = '<';
        }
        std::memcpy(out, cell.hex.data(), cell.hex.size());
        out += cell.hex.size();
        --room;
        usage->Add(cell.glyph, code_point);
    }
    if (out != nullptr) content_.Commit(Copy(out, kEnd));
}

Hundredths PdfPage::Rise(const ShapedGlyph& glyph, Hundredths size) const {
    const double rise = static_cast<double>(glyph.y_offset) * size / kUnitsPerEm;
    return static_cast<Hundredths>(rise + (rise < 0 ? -0.5 : 0.5));
}

void PdfPage::ShowShaped(FontStyle style, Hundredths size, std::string_view utf8) {
    Hundredths rise = 0;
    std::int64_t pen_error = 0;  // how far the viewer's pen is behind the shaper's, 1/65536 em
    bool open = false;
    for (const ShapedGlyph& glyph : fonts_.Shape(style, utf8)) {
        const Hundredths glyph_rise = Rise(glyph, size);
        if (!open || glyph.face != state_.face || glyph_rise != rise) {
            if (open) content_.Append("]TJ\n");
            SetFont(glyph.face, size);
            if (glyph_rise != rise) Operator({glyph_rise}, "Ts");
            rise = glyph_rise;
            content_.Append("[");
            open = true;
        }
        ShowGlyph(glyph, static_cast<std::int32_t>(pen_error + glyph.x_offset));
        const std::int32_t drawn = fonts_.Face(glyph.face).Advance(glyph.glyph);
        pen_error = std::int64_t{glyph.advance} - glyph.x_offset - drawn;
        used_fonts_.Use(glyph.face).AddText(glyph.glyph, TextOf(glyph, style, utf8));
    }
    if (open) content_.Append("]TJ\n");
    if (rise != 0) Operator({0}, "Ts");
}

// The characters a glyph stands for, which is not what the text has when no face has a glyph for
// it.
std::string_view PdfPage::TextOf(const ShapedGlyph& glyph, FontStyle style, std::string_view utf8) {
    const auto text = utf8.substr(glyph.text_begin, glyph.text_end - glyph.text_begin);
    if (text.empty()) return text;
    const char* position = text.data();
    const char32_t first = DecodeUtf8(position, text.data() + text.size());
    return (fonts_.Cell(style, first).flags & GlyphCell::kMissing) != 0 ? "\uFFFD" : text;
}

void PdfPage::ShowGlyph(const ShapedGlyph& glyph, std::int32_t adjustment) {
    std::string out;
    if (adjustment != 0) AppendDecimal(out, adjustment * -1000.0 / kUnitsPerEm);
    out += '<';
    AppendHex16(out, glyph.glyph);
    out += '>';
    content_.Append(out);
}

}  // namespace varnel::render
