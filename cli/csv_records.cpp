#include "cli/csv_records.h"

#include <string_view>

#include "cli/errors.h"
#include "render/fonts/utf8.h"

namespace varnel::cli {

namespace {

constexpr int kEnd = std::istream::traits_type::eof();
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
constexpr const char* kNotUtf8 = "it is no text in UTF-8; save it as \"CSV UTF-8\"";

bool IsUtf8(std::string_view text) {
    if (render::IsAscii(text)) return true;
    const char* const end = text.data() + text.size();
    for (const char* at = text.data(); at != end;) {
        const std::string_view rest(at, static_cast<std::size_t>(end - at));
        if (render::DecodeUtf8(at, end) == render::kReplacementCharacter &&
            !rest.starts_with(kReplacement))
            return false;
    }
    return true;
}

bool EndsLine(int character) { return character == '\n' || character == '\r'; }

}  // namespace

CsvRecords::CsvRecords(std::istream& input, std::string name)
    : input_(input), name_(std::move(name)) {
    if (Peek() != static_cast<unsigned char>(kByteOrderMark[0])) return;
    for (const char mark : kByteOrderMark)
        if (Take() != mark) Refuse(kNotUtf8);
}

void CsvRecords::Refuse(const std::string& fault) const {
    throw UsageError(name_ + ", line " + std::to_string(record_line_) + ": " + fault);
}

char CsvRecords::Take() {
    const int character = input_.get();
    if (character == '\n' || (character == '\r' && Peek() != '\n')) ++line_;
    return static_cast<char>(character);
}

bool CsvRecords::SkipEmptyLines() {
    while (EndsLine(Peek())) Take();
    record_line_ = line_;
    return Peek() != kEnd;
}

std::string CsvRecords::ReadQuoted() {
    std::string value;
    Take();
    while (true) {
        if (Peek() == kEnd) Refuse("a quoted value begins and never ends; add the closing quote");
        const char character = Take();
        if (character == '\r' && Peek() == '\n') continue;  // A text has line feeds alone.
        if (character != '"') {
            value += character;
        } else if (Peek() == '"') {
            value += Take();
        } else {
            return value;
        }
    }
}

bool CsvRecords::AtLineEnd() { return Peek() == kEnd || EndsLine(Peek()); }

std::string CsvRecords::ReadValue() {
    if (Peek() == '"') {
        auto value = ReadQuoted();
        if (!AtLineEnd() && Peek() != ',')
            Refuse("after the quoted value \"" + value +
                   "\" comes more; double the quotes that are part of a value");
        return value;
    }
    std::string value;
    while (!AtLineEnd() && Peek() != ',') value += Take();
    if (value.find('"') != std::string::npos)
        Refuse("there is a quote in the middle of \"" + value +
               "\"; put the value between quotes and double those that are part of it");
    return value;
}

bool CsvRecords::Next() {
    values_.clear();
    if (!SkipEmptyLines()) return false;
    values_.push_back(ReadValue());
    while (Peek() == ',') {
        Take();
        values_.push_back(ReadValue());
    }
    for (const auto& value : values_)
        if (!IsUtf8(value)) Refuse(kNotUtf8);
    if (columns_ == 0) columns_ = values_.size();
    if (values_.size() != columns_)
        Refuse("it has " + std::to_string(values_.size()) + " values and the header " +
               std::to_string(columns_) +
               "; separate values by commas, and put one that has a comma between quotes");
    return true;
}

}  // namespace varnel::cli
