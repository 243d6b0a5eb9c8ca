#include "render/pdf/font_subset.h"

#include <hb-subset.h>

#include <memory>
#include <stdexcept>

namespace varnel::render {

namespace {

// A PDF viewer takes glyphs by number and places them itself: only outlines and their metrics
// count.
constexpr hb_tag_t kDroppedTables[] = {
    HB_TAG('G', 'S', 'U', 'B'), HB_TAG('G', 'P', 'O', 'S'), HB_TAG('G', 'D', 'E', 'F'),
    HB_TAG('B', 'A', 'S', 'E'), HB_TAG('J', 'S', 'T', 'F'), HB_TAG('k', 'e', 'r', 'n'),
    HB_TAG('n', 'a', 'm', 'e'), HB_TAG('p', 'o', 's', 't'), HB_TAG('O', 'S', '/', '2'),
    HB_TAG('c', 'm', 'a', 'p'), HB_TAG('g', 'a', 's', 'p'), HB_TAG('h', 'd', 'm', 'x'),
    HB_TAG('V', 'D', 'M', 'X'), HB_TAG('L', 'T', 'S', 'H'), HB_TAG('D', 'S', 'I', 'G'),
    HB_TAG('F', 'F', 'T', 'M'), HB_TAG('m', 'e', 't', 'a'), HB_TAG('M', 'A', 'T', 'H'),
};

struct Release {
    void operator()(hb_subset_input_t* input) const { hb_subset_input_destroy(input); }
    void operator()(hb_face_t* face) const { hb_face_destroy(face); }
    void operator()(hb_blob_t* blob) const { hb_blob_destroy(blob); }
};

std::unique_ptr<hb_subset_input_t, Release> MakeInput(const GlyphUsage& usage) {
    std::unique_ptr<hb_subset_input_t, Release> input(hb_subset_input_create_or_fail());
    if (input == nullptr) throw std::bad_alloc();
    hb_subset_input_set_flags(input.get(),
                              HB_SUBSET_FLAGS_RETAIN_GIDS | HB_SUBSET_FLAGS_NO_HINTING);
    hb_set_t* glyphs = hb_subset_input_glyph_set(input.get());
    for (std::size_t glyph = 0; glyph < usage.GlyphCount(); ++glyph) {
        if (usage.IsUsed(glyph)) hb_set_add(glyphs, static_cast<hb_codepoint_t>(glyph));
    }
    hb_set_t* dropped = hb_subset_input_set(input.get(), HB_SUBSET_SETS_DROP_TABLE_TAG);
    for (const hb_tag_t tag : kDroppedTables) hb_set_add(dropped, tag);
    return input;
}

}  // namespace

std::string SubsetFont(const FontFace& face, const GlyphUsage& usage) {
    const auto input = MakeInput(usage);
    const std::unique_ptr<hb_face_t, Release> subset(hb_subset_or_fail(face.Face(), input.get()));
    if (subset == nullptr) {
        throw std::runtime_error("cannot embed the font " + face.PostScriptName());
    }
    const std::unique_ptr<hb_blob_t, Release> blob(hb_face_reference_blob(subset.get()));
    unsigned size = 0;
    const char* bytes = hb_blob_get_data(blob.get(), &size);
    return std::string(bytes, size);
}

}  // namespace varnel::render
