#include "render/pdf/font_embedder.h"

#include <string>

#include "render/pdf/font_subset.h"
#include "render/pdf/pdf_escape.h"
#include "render/pdf/pdf_number.h"

namespace varnel::render {

namespace {

/// Six letters that depend on the glyphs only, as two subsets of a face must not share a name.
std::string SubsetTag(const GlyphUsage& usage) {
    std::uint64_t hash = 0xCBF29CE484222325u;
    for (std::size_t glyph = 0; glyph < usage.GlyphCount(); ++glyph) {
        if (usage.IsUsed(glyph)) hash = (hash ^ glyph) * 0x100000001B3u;
    }
    std::string tag;
    hash ^= hash >> 32;
    for (int i = 0; i < 6; ++i, hash /= 26) tag += static_cast<char>('A' + hash % 26);
    return tag + '+';
}

/// "[3[259.8 267.1]7[...]]": each stretch of used glyphs with its widths.
std::string Widths(const FontFace& face, const GlyphUsage& usage) {
    std::string widths = "[";
    bool in_stretch = false;
    for (std::size_t glyph = 0; glyph < usage.GlyphCount(); ++glyph) {
        if (!usage.IsUsed(glyph)) {
            if (in_stretch) widths += ']';
            in_stretch = false;
            continue;
        }
        if (!in_stretch) AppendInteger(widths, static_cast<std::int64_t>(glyph));
        widths += in_stretch ? ' ' : '[';
        in_stretch = true;
        AppendDecimal(widths, face.Advance(static_cast<GlyphId>(glyph)) * 1000.0 / kUnitsPerEm);
    }
    return widths + (in_stretch ? "]]" : "]");
}

std::vector<std::string> TextMappings(const GlyphUsage& usage) {
    std::vector<std::string> mappings;
    for (std::size_t glyph = 0; glyph < usage.GlyphCount(); ++glyph) {
        const std::u32string text = usage.Text(static_cast<GlyphId>(glyph));
        if (text.empty()) continue;
        std::string line = "<";
        AppendHex16(line, static_cast<unsigned>(glyph));
        line += "> <";
        for (const char32_t code_point : text) AppendUtf16Hex(line, code_point);
        mappings.push_back(line + ">\n");
    }
    return mappings;
}

std::string ToUnicodeMap(const GlyphUsage& usage) {
    constexpr std::size_t kLongestBlock = 100;
    std::string map =
        "/CIDInit /ProcSet findresource begin\n12 dict begin\nbegincmap\n"
        "/CIDSystemInfo <</Registry(Adobe)/Ordering(UCS)/Supplement 0>> def\n"
        "/CMapName /Adobe-Identity-UCS def\n/CMapType 2 def\n"
        "1 begincodespacerange\n<0000> <FFFF>\nendcodespacerange\n";
    const std::vector<std::string> mappings = TextMappings(usage);
    for (std::size_t begin = 0; begin < mappings.size(); begin += kLongestBlock) {
        const std::size_t end = std::min(begin + kLongestBlock, mappings.size());
        AppendInteger(map, static_cast<std::int64_t>(end - begin));
        map += " beginbfchar\n";
        for (std::size_t i = begin; i < end; ++i) map += mappings[i];
        map += "endbfchar\n";
    }
    return map + "endcmap\nCMapName currentdict /CMap defineresource pop\nend\nend\n";
}

void AppendEntry(std::string& out, std::string_view key, double value) {
    out += key;
    out += ' ';
    AppendDecimal(out, value);
}

std::string Descriptor(const FontMetrics& metrics, std::string_view name, ObjectId file) {
    constexpr int kSymbolic = 4;
    constexpr int kItalic = 64;
    std::string body = "<</Type/FontDescriptor/FontName/";
    body += name;
    AppendEntry(body, "/Flags", kSymbolic + (metrics.italic_angle != 0 ? kItalic : 0));
    body += "/FontBBox[";
    for (const double edge : metrics.bounding_box) {
        AppendDecimal(body, edge);
        body += ' ';
    }
    body.back() = ']';
    AppendEntry(body, "/ItalicAngle", metrics.italic_angle);
    AppendEntry(body, "/Ascent", metrics.ascent);
    AppendEntry(body, "/Descent", metrics.descent);
    AppendEntry(body, "/CapHeight", metrics.cap_height);
    // TrueType does not say how thick stems are; this is the usual estimate from the weight.
    AppendEntry(body, "/StemV", 50 + metrics.weight * metrics.weight / (65.0 * 65.0));
    body += "/FontFile2 ";
    AppendReference(body, file);
    return body + ">>";
}

ObjectId WriteFontFile(PdfObjects& objects, const FontFace& face, const GlyphUsage& usage) {
    const std::string file = SubsetFont(face, usage);
    const ObjectId id = objects.Reserve();
    objects.WriteStream(id, "/Length1 " + std::to_string(file.size()), file);
    return id;
}

ObjectId WriteDescendant(PdfObjects& objects, const FontFace& face, const GlyphUsage& usage,
                         const std::string& name) {
    const ObjectId file = WriteFontFile(objects, face, usage);
    const ObjectId descriptor = objects.Reserve();
    objects.WriteObject(descriptor, Descriptor(face.Metrics(), name, file));
    std::string body = "<</Type/Font/Subtype/CIDFontType2/BaseFont/" + name +
                       "/CIDSystemInfo<</Registry(Adobe)/Ordering(Identity)/Supplement 0>>"
                       "/CIDToGIDMap/Identity/DW 0/FontDescriptor ";
    AppendReference(body, descriptor);
    body += "/W" + Widths(face, usage) + ">>";
    const ObjectId id = objects.Reserve();
    objects.WriteObject(id, body);
    return id;
}

}  // namespace

void EmbedFont(PdfObjects& objects, ObjectId font, const FontFace& face, const GlyphUsage& usage) {
    const std::string name = SubsetTag(usage) + face.PostScriptName();
    const ObjectId descendant = WriteDescendant(objects, face, usage, name);
    const ObjectId to_unicode = objects.Reserve();
    objects.WriteStream(to_unicode, {}, ToUnicodeMap(usage));
    std::string body =
        "<</Type/Font/Subtype/Type0/BaseFont/" + name + "/Encoding/Identity-H/DescendantFonts[";
    AppendReference(body, descendant);
    body += "]/ToUnicode ";
    AppendReference(body, to_unicode);
    objects.WriteObject(font, body + ">>");
}

}  // namespace varnel::render
