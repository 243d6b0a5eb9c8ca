#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "render/fonts/font_set.h"
#include "render/pdf/byte_buffer.h"
#include "render/pdf/pdf_number.h"
#include "render/pdf/used_fonts.h"

namespace varnel::render {

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    static constexpr Colour Gray(std::uint8_t level) { return {level, level, level}; }
    bool operator==(const Colour&) const = default;
};

struct PdfTextStyle {
    FontStyle font = FontStyle::kRegular;
    double size = 9;  // points
    Colour colour{};
    double stretch = 100;  // percent of the normal width; below 100 condenses
};

/// The page being written. Places are in points from the top left corner, y downwards; they are
/// rounded to hundredths of a point. What is drawn later covers what was drawn before.
///
/// State (font, stretch, colour) is written only when it changes.
class PdfPage {
  public:
    PdfPage(FontSet& fonts, UsedFonts& used_fonts) : fonts_(fonts), used_fonts_(used_fonts) {}

    /// Draws a line of UTF-8 text with its left end at x and its baseline at y. Line feeds are
    /// shown as spaces: see BreakLines for paragraphs.
    void Text(double x, double y, const PdfTextStyle& style, std::string_view utf8);

    void FillRect(double x, double y, double width, double height, Colour colour);

    /// Adds to the page's dictionary, such as "/Annots[12 0 R]" for links.
    void AddEntry(std::string_view entry) { entries_ += entry; }

    double Width() const { return width_; }
    double Height() const { return height_; }

  private:
    friend class PdfWriter;

    /// What the viewer has in force; as it is at the beginning of a page.
    struct State {
        bool in_text = false;
        Hundredths line_x = 0;
        Hundredths line_y = 0;
        FaceIndex face = 0;
        Hundredths size = 0;  // 0: no font chosen yet
        Hundredths stretch = 10000;
        Colour fill{};
    };

    void Begin(double width, double height);
    std::string_view End();

    void MoveTo(double x, double y);
    void LeaveText();
    void SetFont(FaceIndex face, Hundredths size);
    void SetStretch(double percent);
    void SetFill(Colour colour);
    void ShowPlain(FontStyle style, Hundredths size, std::string_view utf8);
    void ShowShaped(FontStyle style, Hundredths size, std::string_view utf8);
    std::string_view TextOf(const ShapedGlyph& glyph, FontStyle style, std::string_view utf8);
    void ShowGlyph(const ShapedGlyph& glyph, std::int32_t adjustment);
    Hundredths FromBottom(double y) const { return height_hundredths_ - ToHundredths(y); }
    Hundredths Rise(const ShapedGlyph& glyph, Hundredths size) const;
    /// Writes the numbers, each followed by a space, then the operator and a line feed.
    void Operator(std::initializer_list<Hundredths> operands, std::string_view name);

    FontSet& fonts_;
    UsedFonts& used_fonts_;
    ByteBuffer content_;
    std::string entries_;
    State state_;
    double width_ = 0;
    double height_ = 0;
    Hundredths height_hundredths_ = 0;
};

}  // namespace varnel::render
