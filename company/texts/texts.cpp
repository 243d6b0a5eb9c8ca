#include "company/texts/texts.h"

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
    Raise(error_number::kInvalidArgument, "Texts",
          "Line " + std::to_string(line) +
              " of the texts needs a number from 1 to 32767 that no other line has, an English and "
              "a French text, separated by tabs");
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
    for (std::size_t number_of_line = 1; !file.empty(); ++number_of_line) {
        auto line = TakeUntil('\n', file);
        if (line.empty() || line.front() == '#') continue;
        const auto key = TakeUntil('\t', line);
        const auto english = TakeUntil('\t', line);
        const auto french = TakeUntil('\t', line);
        std::int16_t number = 0;
        const auto parsed = std::from_chars(key.data(), key.data() + key.size(), number);
        if (parsed.ec != std::errc{} || parsed.ptr != key.data() + key.size() || number <= 0 ||
            english.empty() || french.empty())
            RaiseBadLine(number_of_line);
        const auto text = language == Language::kFrench ? french : english;
        if (!texts_.emplace(number, text).second) RaiseBadLine(number_of_line);
    }
}

std::string Texts::Get(std::int16_t number) {
    const auto found = texts_.find(number);
    if (found != texts_.end()) return found->second;
    if (reported_.insert(number).second && missing_) missing_(number);
    return std::to_string(number);
}

}  // namespace varnel::company
