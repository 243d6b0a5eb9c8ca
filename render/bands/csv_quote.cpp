#include "render/bands/csv_quote.h"

#include <algorithm>

namespace varnel::render {

namespace {

bool NeedsQuotes(std::string_view text) {
    return std::any_of(text.begin(), text.end(),
                       [](char c) { return c == ',' || c == '"' || c == '\n' || c == '\r'; });
}

}  // namespace

void AppendCsvField(std::string& out, std::string_view text) {
    if (!NeedsQuotes(text)) {
        out += text;
        return;
    }
    out += '"';
    for (const char c : text) {
        if (c == '"') out += '"';
        out += c;
    }
    out += '"';
}

}  // namespace varnel::render
