#pragma once

#include <string>
#include <vector>

#include "render/fonts/font_set.h"
#include "render/pdf/glyph_usage.h"
#include "render/pdf/pdf_objects.h"

namespace varnel::render {

/// The faces a document has shown text in so far. In the content a face is called "/F" and its
/// index.
class UsedFonts {
  public:
    explicit UsedFonts(const FontSet& fonts);

    /// Notes that the face is used and returns where to note its glyphs.
    GlyphUsage& Use(FaceIndex face);

    /// Embeds every used face and returns the font dictionary of the page resources.
    std::string Embed(PdfObjects& objects) const;

  private:
    const FontSet& fonts_;
    std::vector<std::unique_ptr<GlyphUsage>> usage_;  // null: not used
};

}  // namespace varnel::render
