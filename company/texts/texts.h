#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>

namespace varnel::company {

/// The languages that texts are translated into.
enum class Language { kEnglish, kFrench };

/// French for the locales that begin with "fr", English for all others.
Language LanguageOf(std::string_view locale);

/// The translated texts by number.
class Texts {
  public:
    using MissingText = std::function<void(std::int16_t number)>;

    /// `missing` may be empty; it is called once for each number that is asked for and not there.
    Texts(Language language, MissingText missing);
    /// Reads texts from a file like texts.tsv instead of the embedded one; an empty cell is a text
    /// that is not there in its language. Raises error 5 naming the line that is not well formed.
    Texts(Language language, MissingText missing, std::string_view file);

    /// The text, or the number in decimal when there is none.
    std::string Get(std::int16_t number);

  private:
    void Add(std::string_view line, std::size_t line_number, Language language);

    std::map<std::int16_t, std::string> texts_;
    std::set<std::int16_t> numbers_;  // Of every line, in both languages.
    MissingText missing_;
    std::set<std::int16_t> reported_;
};

}  // namespace varnel::company
