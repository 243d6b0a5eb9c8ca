#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "render/fonts/font_set.h"

namespace varnel::render {

/// Breaks a text into lines no wider than `width` (same unit as `size`): at line feeds, at spaces,
/// after hyphens, and inside a word only when the word alone is too wide. A line holds at least one
/// character, however narrow. Spaces at a break disappear; an empty text is one empty line.
///
/// `lines` is cleared first and then refers to `text`. Keep it between calls: a text that fits on a
/// line then costs no allocation.
void BreakLines(FontSet& fonts, FontStyle style, double size, double width, std::string_view text,
                std::vector<std::string_view>& lines);

/// The text itself when it fits in `width`, otherwise its longest beginning that fits with an
/// ellipsis, built in `storage`. Empty when not even the ellipsis fits.
std::string_view Ellipsize(FontSet& fonts, FontStyle style, double size, double width,
                           std::string_view text, std::string& storage);

}  // namespace varnel::render
