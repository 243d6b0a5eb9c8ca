#pragma once

#include <string>

#include "render/fonts/font_face.h"
#include "render/pdf/glyph_usage.h"

namespace varnel::render {

/// The TrueType file of a face reduced to the used glyphs, with their numbers kept. Throws
/// std::runtime_error when the font cannot be reduced.
std::string SubsetFont(const FontFace& face, const GlyphUsage& usage);

}  // namespace varnel::render
