#include "render/pdf/pdf_metadata.h"

#include <stdexcept>
#include <string_view>

#include "render/pdf/pdf_escape.h"

namespace varnel::render {

namespace {

/// In `pattern` a 9 stands for a digit and a + for either sign.
bool Matches(std::string_view text, std::string_view pattern) {
    if (text.size() != pattern.size()) return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool digit = text[i] >= '0' && text[i] <= '9';
        const bool sign = text[i] == '+' || text[i] == '-';
        if (pattern[i] == '9' ? !digit : pattern[i] == '+' ? !sign : text[i] != pattern[i]) {
            return false;
        }
    }
    return true;
}

/// "2025-03-31T14:05:00-05:00" as "D:20250331140500-05'00'".
std::string PdfDate(std::string_view iso) {
    const bool date = Matches(iso, "9999-99-99");
    const bool time = Matches(iso, "9999-99-99T99:99:99");
    const bool utc = Matches(iso, "9999-99-99T99:99:99Z");
    const bool zoned = Matches(iso, "9999-99-99T99:99:99+99:99");
    if (!date && !time && !utc && !zoned) {
        throw std::invalid_argument("creation date \"" + std::string(iso) +
                                    "\" is not of the form 2025-03-31T14:05:00-05:00");
    }
    constexpr std::size_t kZone = 19;
    std::string out = "D:";
    for (const char c : iso.substr(0, kZone)) {
        if (c >= '0' && c <= '9') out += c;
    }
    if (utc) out += 'Z';
    if (zoned) {
        out += iso.substr(kZone, 3);
        out += '\'';
        out += iso.substr(kZone + 4, 2);
        out += '\'';
    }
    return out;
}

void AppendInfo(std::string& out, std::string_view key, std::string_view value) {
    if (value.empty()) return;
    out += key;
    AppendPdfString(out, value);
}

void AppendElement(std::string& out, std::string_view before, std::string_view value,
                   std::string_view after) {
    if (value.empty()) return;
    out += before;
    AppendXmlText(out, value);
    out += after;
}

}  // namespace

std::string InfoDictionary(const PdfInfo& info) {
    std::string out = "<<";
    AppendInfo(out, "/Title", info.title);
    AppendInfo(out, "/Author", info.author);
    AppendInfo(out, "/Subject", info.subject);
    AppendInfo(out, "/Producer", info.producer);
    if (!info.creation_date.empty()) AppendInfo(out, "/CreationDate", PdfDate(info.creation_date));
    return out + ">>";
}

std::string XmpPacket(const PdfInfo& info) {
    std::string out =
        "<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
        "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
        "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
        "<rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\""
        " xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\" xmlns:pdf=\"http://ns.adobe.com/pdf/1.3/\">\n"
        "<dc:format>application/pdf</dc:format>\n";
    AppendElement(out, "<dc:title><rdf:Alt><rdf:li xml:lang=\"x-default\">", info.title,
                  "</rdf:li></rdf:Alt></dc:title>\n");
    AppendElement(out, "<dc:creator><rdf:Seq><rdf:li>", info.author,
                  "</rdf:li></rdf:Seq></dc:creator>\n");
    AppendElement(out, "<dc:description><rdf:Alt><rdf:li xml:lang=\"x-default\">", info.subject,
                  "</rdf:li></rdf:Alt></dc:description>\n");
    AppendElement(out, "<dc:language><rdf:Bag><rdf:li>", info.language,
                  "</rdf:li></rdf:Bag></dc:language>\n");
    AppendElement(out, "<xmp:CreateDate>", info.creation_date, "</xmp:CreateDate>\n");
    AppendElement(out, "<pdf:Producer>", info.producer, "</pdf:Producer>\n");
    return out + "</rdf:Description>\n</rdf:RDF>\n</x:xmpmeta>\n<?xpacket end=\"r\"?>";
}

}  // namespace varnel::render
