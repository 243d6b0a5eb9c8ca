#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace varnel {

/// 1/1440 of an inch, 1/20 of a point.
using Twips = std::int32_t;

struct Box {
    Twips left = 0;
    Twips top = 0;
    Twips width = 0;
    Twips height = 0;
    Twips Right() const { return left + width; }
    Twips Bottom() const { return top + height; }
    friend bool operator==(const Box&, const Box&) = default;
};

/// What a colour is for; the renderer knows which one it is.
enum class Ink : std::uint8_t { kText, kMuted, kAccent, kRule };

struct TextStyle {
    Twips size = 170;  // Of the type: 8.5 points.
    bool bold = false;
    bool italic = false;
    Ink ink = Ink::kText;
    friend bool operator==(const TextStyle&, const TextStyle&) = default;
};

enum class Align : std::uint8_t { kLeft, kCenter, kRight };

enum class ControlKind : std::uint8_t {
    kLabel,
    kText,
    kLine,        // A rule: filled with the style's ink; its box says how thick.
    kBlock,       // Prints nothing: what other controls are positioned by, or a text that only
                  // data exports have.
    kSubReport,   // Holds a report that runs inside the section; its height is added.
    kPageNumber,  // A label whose "{0}" and "{1}" become page n of m; data exports leave it out.
};

/// What a control does when the page is wider than the layout.
enum class Stretch : std::uint8_t { kNone, kWiden, kShift };

/// What a control has to do with the figure that is carried from page to page while a group of rows
/// goes on.
enum class Carry : std::uint8_t {
    kNone,
    /// In a detail: its text is what is carried after the row.
    kGives,
    /// In a repeated group header or the page footer: printed only where a group goes on over the
    /// break. The first that takes shows the text of the first that gives, and so on.
    kTakes,
    /// The same with a text of its own.
    kWithIt,
};

/// A control as designed. Texts and names are constants of the program: views stay valid for ever.
struct ControlLayout {
    std::string_view name;
    ControlKind kind = ControlKind::kText;
    Box box;
    TextStyle style = {};
    Align align = Align::kLeft;
    /// Number of the translated text that fills it at report start; 0 is none.
    std::int16_t caption = 0;
    /// Text it starts with.
    std::string_view text = {};
    /// Field whose plain text is put in before each format event; empty when a handler fills it.
    std::string_view data_field = {};
    /// Its column in data exports, a stable English name; empty when it is not exported.
    std::string_view column = {};
    bool visible = true;
    /// Text that does not fit its width goes on in further lines; what stands below moves down.
    bool can_grow = false;
    /// Moves down with what stands above it in its own column alone, not with what grows beside
    /// that: a rule under a figure.
    bool follows_column = false;
    Stretch stretch = Stretch::kNone;
    Carry carry = Carry::kNone;
};

enum class SectionKind : std::uint8_t {
    kReportHeader,
    kPageHeader,
    kGroupHeader,
    kDetail,
    kGroupFooter,
    kPageFooter,
    kReportFooter,
};

struct SectionLayout {
    std::string_view name;
    SectionKind kind = SectionKind::kDetail;
    Twips height = 0;
    /// Group headers: the field whose change opens a new group; empty groups the whole report.
    std::string_view group_field = {};
    /// Group headers: print again at the top of each page that the group runs on to.
    bool repeat = false;
    /// Group headers: begin a new page rather than break a group that fits on one.
    bool keep_together = false;
    std::vector<ControlLayout> controls = {};
};

/// A report as designed: sections in print order. The first group header belongs to the last group
/// footer, and so on inwards; every group has both. At most one section of each other kind; a
/// detail is always there.
struct Layout {
    std::string_view name;
    /// Width that the controls are designed for; 10,800 fits both US Letter and A4 upright.
    Twips width = 10'800;
    std::vector<SectionLayout> sections;
};

}  // namespace varnel
