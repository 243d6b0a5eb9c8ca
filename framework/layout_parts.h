#pragma once

#include <string_view>

#include "framework/styles.h"
#include "host/layout.h"

namespace varnel::framework {

/// Height of a line of text, and of a column caption.
inline constexpr Twips kLineHeight = 220;
inline constexpr Twips kCaptionHeight = 270;

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

/// The caption of a column in the page header; ReplacePageHeaderControls gives it its top.
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

}  // namespace varnel::framework
