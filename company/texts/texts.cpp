#include "company/texts/texts.h"

#include <algorithm>
#include <charconv>

#include "company/texts/embedded_texts.h"
#include "host/error.h"
#include "host/object.h"

namespace varnel::company {

namespace {

/// Takes what stands before `mark` off the front of `rest`, and the mark too.
std::string_view TakeUntil(char mark, std::string_view& rest) {
    const auto end = rest.find(mark);
    const auto taken = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    return taken;
}

[[noreturn]] void RaiseBadLine(std::size_t line) {
    throw Error(error_number::kInvalidArgument, "Texts",
                "Line " + std::to_string(line) +
                    " of the texts needs a number from 1 to 32767 that no other line has, an "
                    "English and a French text (either may be empty), separated by tabs");
}

}  // namespace

Language LanguageOf(std::string_view locale) {
    const bool french = SameName(locale.substr(0, 2), "fr") &&
                        (locale.size() == 2 || locale[2] == '-' || locale[2] == '_');
    return french ? Language::kFrench : Language::kEnglish;
}

Texts::Texts(Language language, MissingText missing)
    : Texts(language, std::move(missing), kEmbeddedTexts) {}

Texts::Texts(Language language, MissingText missing, std::string_view file)
    : missing_(std::move(missing)) {
    for (std::size_t line_number = 1; !file.empty(); ++line_number) {
        const auto line = TakeUntil('\n', file);
        if (!line.empty() && line.front() != '#') Add(line, line_number, language);
    }
}

/// A cell without text is a text that is missing in that language alone.
void Texts::Add(std::string_view line, std::size_t line_number, Language language) {
    const auto tabs = std::ranges::count(line, '\t');
    const auto key = TakeUntil('\t', line);
    const auto english = TakeUntil('\t', line);
    const auto french = TakeUntil('\t', line);
    std::int16_t number = 0;
    const auto parsed = std::from_chars(key.data(), key.data() + key.size(), number);
    if (parsed.ec != std::errc{} || parsed.ptr != key.data() + key.size() || number <= 0 ||
        tabs < 2 || !numbers_.insert(number).second)
        RaiseBadLine(line_number);
    const auto text = language == Language::kFrench ? french : english;
    if (!text.empty()) texts_.emplace(number, text);
}

std::string Texts::Get(std::int16_t number) {
    const auto found = texts_.find(number);
    if (found != texts_.end()) return found->second;
    if (reported_.insert(number).second && missing_) missing_(number);
    return std::to_string(number);
}

}  // namespace varnel::company
