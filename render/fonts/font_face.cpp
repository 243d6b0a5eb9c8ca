#include "render/fonts/font_face.h"

#include <hb-ot.h>
#include <hb.h>

#include <stdexcept>

namespace varnel::render {

namespace {

double Thousandths(double units) { return units * 1000.0 / kUnitsPerEm; }

hb_face_t* OpenFace(const std::filesystem::path& file) {
    hb_blob_t* blob = hb_blob_create_from_file_or_fail(file.c_str());
    if (blob == nullptr) throw std::runtime_error("cannot read the font file " + file.string());
    hb_face_t* face = hb_face_create(blob, 0);
    hb_blob_destroy(blob);
    hb_blob_t* outlines = hb_face_reference_table(face, HB_TAG('g', 'l', 'y', 'f'));
    const bool usable = hb_face_get_glyph_count(face) > 0 && hb_blob_get_length(outlines) > 0;
    hb_blob_destroy(outlines);
    if (!usable) {
        hb_face_destroy(face);
        throw std::runtime_error("not a TrueType font: " + file.string());
    }
    return face;
}

double MetricOr(hb_font_t* font, hb_ot_metrics_tag_t tag, double otherwise) {
    hb_position_t position = 0;
    return hb_ot_metrics_get_position(font, tag, &position) ? Thousandths(position) : otherwise;
}

}  // namespace

FontFace::FontFace(const std::filesystem::path& file)
    : face_(OpenFace(file)), font_(hb_font_create(face_)) {
    hb_font_set_scale(font_, kUnitsPerEm, kUnitsPerEm);
    glyph_count_ = hb_face_get_glyph_count(face_);
    ReadMetrics();
    ReadBoundingBox();
    ReadPostScriptName(file);
}

FontFace::~FontFace() {
    hb_font_destroy(font_);
    hb_face_destroy(face_);
}

GlyphId FontFace::Glyph(char32_t code_point) const {
    hb_codepoint_t glyph = 0;
    return hb_font_get_nominal_glyph(font_, code_point, &glyph) ? static_cast<GlyphId>(glyph) : 0;
}

std::int32_t FontFace::Advance(GlyphId glyph) const {
    return hb_font_get_glyph_h_advance(font_, glyph);
}

void FontFace::ReadMetrics() {
    metrics_.ascent = MetricOr(font_, HB_OT_METRICS_TAG_HORIZONTAL_ASCENDER, 800);
    metrics_.descent = MetricOr(font_, HB_OT_METRICS_TAG_HORIZONTAL_DESCENDER, -200);
    metrics_.cap_height = MetricOr(font_, HB_OT_METRICS_TAG_CAP_HEIGHT, 700);
    metrics_.italic_angle = hb_style_get_value(font_, HB_STYLE_TAG_SLANT_ANGLE);
    metrics_.weight = hb_style_get_value(font_, HB_STYLE_TAG_WEIGHT);
}

void FontFace::ReadBoundingBox() {
    constexpr unsigned kBoxOffset = 36;  // of xMin in the `head` table
    hb_blob_t* head = hb_face_reference_table(face_, HB_TAG('h', 'e', 'a', 'd'));
    unsigned length = 0;
    const char* bytes = hb_blob_get_data(head, &length);
    for (unsigned i = 0; i < 4 && length >= kBoxOffset + 8; ++i) {
        const auto high = static_cast<unsigned char>(bytes[kBoxOffset + 2 * i]);
        const auto low = static_cast<unsigned char>(bytes[kBoxOffset + 2 * i + 1]);
        const auto units = static_cast<std::int16_t>(high << 8 | low);
        metrics_.bounding_box[i] = units * 1000.0 / hb_face_get_upem(face_);
    }
    hb_blob_destroy(head);
}

void FontFace::ReadPostScriptName(const std::filesystem::path& file) {
    std::array<char, 64> name{};
    unsigned size = name.size();
    hb_ot_name_get_utf8(face_, HB_OT_NAME_ID_POSTSCRIPT_NAME, HB_LANGUAGE_INVALID, &size,
                        name.data());
    postscript_name_ = size > 0 ? name.data() : file.stem().string();
}

}  // namespace varnel::render
