#pragma once

#include <string>

namespace varnel::render {

/// What a document says about itself; empty fields are left out. All text is UTF-8.
struct PdfInfo {
    std::string title{};
    std::string author{};
    std::string subject{};
    std::string language{};       // BCP 47, such as "en-CA"
    std::string creation_date{};  // "2025-03-31", or with "T14:05:00" and "Z" or "-05:00" after it
    std::string producer = "Varnel";
};

/// The information dictionary. A creation date in another form is a std::invalid_argument.
std::string InfoDictionary(const PdfInfo& info);

/// The same as an XMP packet.
std::string XmpPacket(const PdfInfo& info);

}  // namespace varnel::render
