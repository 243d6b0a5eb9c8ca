#pragma once

#include "render/fonts/font_face.h"
#include "render/pdf/glyph_usage.h"
#include "render/pdf/pdf_objects.h"

namespace varnel::render {

/// Writes the objects of a face (subset file, descriptor, widths, text mapping) under the reserved
/// number `font`. Two-byte codes in the content are the face's glyph numbers.
void EmbedFont(PdfObjects& objects, ObjectId font, const FontFace& face, const GlyphUsage& usage);

}  // namespace varnel::render
