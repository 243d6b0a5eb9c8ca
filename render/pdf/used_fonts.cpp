#include "render/pdf/used_fonts.h"

#include "render/pdf/font_embedder.h"

namespace varnel::render {

UsedFonts::UsedFonts(const FontSet& fonts) : fonts_(fonts), usage_(fonts.FaceCount()) {}

GlyphUsage& UsedFonts::Use(FaceIndex face) {
    auto& usage = usage_[face];
    if (usage == nullptr) usage = std::make_unique<GlyphUsage>(fonts_.Face(face).GlyphCount());
    return *usage;
}

std::string UsedFonts::Embed(PdfObjects& objects) const {
    std::string dictionary = "<<";
    for (std::size_t i = 0; i < usage_.size(); ++i) {
        if (usage_[i] == nullptr) continue;
        const ObjectId font = objects.Reserve();
        EmbedFont(objects, font, fonts_.Face(static_cast<FaceIndex>(i)), *usage_[i]);
        dictionary += "/F" + std::to_string(i) + ' ';
        AppendReference(dictionary, font);
    }
    return dictionary + ">>";
}

}  // namespace varnel::render
