#pragma once

#include <string_view>
#include <vector>

#include "framework/standard_header.h"
#include "framework/styles.h"
#include "host/layout.h"

namespace varnel::framework {

/// Height of a line of text, and of a column caption.
inline constexpr Twips kLineHeight = 220;
inline constexpr Twips kCaptionHeight = 270;

/// The page header with column captions among its controls, and the page footer.
SectionLayout PageHeader(std::vector<ControlLayout> controls);
SectionLayout PageFooter(std::vector<ControlLayout> controls = {});

/// Where a column stands. `stretch` says what it does on wider paper.
struct ColumnPlace {
    Twips left = 0;
    Twips width = 0;
    Align align = Align::kLeft;
    Stretch stretch = Stretch::kNone;

    static constexpr ColumnPlace Left(Twips left, Twips width, Stretch stretch = Stretch::kNone) {
        return {left, width, Align::kLeft, stretch};
    }
    /// For amounts: to the right, and moved along on wider paper.
    static constexpr ColumnPlace Amount(Twips left, Twips width) {
        return {left, width, Align::kRight, Stretch::kShift};
    }
    constexpr Twips Right() const { return left + width; }
};

inline constexpr auto kWholeWidth = ColumnPlace::Left(0, kLayoutWidth, Stretch::kWiden);

/// The caption of a column in the page header, under the block.
ControlLayout ColumnCaption(std::string_view name, const ColumnPlace& place, std::int16_t text);
/// The rule under the captions.
ControlLayout CaptionRule();

/// A text of one line in a column, at `top`; `column` is its name in data exports.
ControlLayout ColumnText(std::string_view name, const ColumnPlace& place, Twips top,
                         const TextStyle& style, std::string_view column = {});
/// A text that is translated and stays, in the place of a column.
ControlLayout ColumnLabel(std::string_view name, const ColumnPlace& place, Twips top,
                          const TextStyle& style, std::int16_t text);
/// A rule over a total.
ControlLayout TotalRule(std::string_view name, const ColumnPlace& place, Twips top,
                        Twips thickness = kThin);

/// The control as a text that goes on in further lines; one that shows a field of the row; one that
/// is not seen until a handler shows it.
ControlLayout Growing(ControlLayout text);
ControlLayout Bound(ControlLayout text, std::string_view field);
ControlLayout Hidden(ControlLayout control);
/// A rule that stays with the figure over it when a text beside that takes further lines.
ControlLayout Closing(ControlLayout rule);

/// A text that is for data exports alone: it takes no place and is not printed.
ControlLayout ExportedText(std::string_view name, std::string_view column,
                           std::string_view field = {});

}  // namespace varnel::framework
