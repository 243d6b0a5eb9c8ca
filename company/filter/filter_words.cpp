#include "company/filter/filter_words.h"

#include <algorithm>
#include <array>
#include <vector>

#include "company/texts/captions.h"
#include "drivers/sql_tokens.h"
#include "host/object.h"

namespace varnel::company {

namespace {

using drivers::SqlToken;
using drivers::SqlTokenKind;
using Tokens = std::vector<SqlToken>;

bool IsName(const SqlToken& token) {
    return token.kind == SqlTokenKind::kWord || token.kind == SqlTokenKind::kName;
}

std::string_view Unquoted(const SqlToken& token) {
    return token.kind == SqlTokenKind::kName && token.text.size() > 2
               ? token.text.substr(1, token.text.size() - 2)
               : token.text;
}

bool Qualifies(const Tokens& tokens, std::size_t i) {
    return i + 2 < tokens.size() && IsName(tokens[i]) && tokens[i + 1].text == "." &&
           IsName(tokens[i + 2]);
}

/// How many tokens the column name at `i` has, and its caption; 0 when there is none.
std::size_t ReadColumn(const Tokens& tokens, std::size_t i, Language language,
                       std::string_view& caption) {
    if (!IsName(tokens[i])) return 0;
    std::string name(Unquoted(tokens[i]));
    const std::size_t length = Qualifies(tokens, i) ? 3 : 1;
    if (length == 3) name += "." + std::string(Unquoted(tokens[i + 2]));
    const bool is_function = i + length < tokens.size() && tokens[i + length].text == "(";
    caption = ColumnCaption(name, language);
    return caption.empty() || is_function ? 0 : length;
}

struct Phrase {
    std::array<std::string_view, 3> sql;  // The last ones may be empty.
    std::string_view english, french;
};

/// A longer phrase stands before its beginnings.
constexpr Phrase kPhrases[] = {
    {{"IS", "NOT", "NULL"}, "is not empty", "n'est pas vide"},
    {{"IS", "NULL"}, "is empty", "est vide"},
    {{"NOT", "IN"}, "not in", "pas dans"},
    {{"NOT", "LIKE"}, "not like", "pas comme"},
    {{"NOT", "BETWEEN"}, "not between", "pas entre"},
    {{"AND"}, "and", "et"},
    {{"OR"}, "or", "ou"},
    {{"NOT"}, "not", "non"},
    {{"IN"}, "in", "dans"},
    {{"LIKE"}, "like", "comme"},
    {{"BETWEEN"}, "between", "entre"},
};

/// How many tokens at `i` are the phrase; 0 when it does not stand there.
std::size_t LengthOf(const Phrase& phrase, const Tokens& tokens, std::size_t i) {
    std::size_t length = 0;
    for (const auto word : phrase.sql) {
        if (word.empty()) break;
        const SqlToken& token = tokens[std::min(i + length, tokens.size() - 1)];
        if (token.kind != SqlTokenKind::kWord || !SameName(token.text, word)) return 0;
        ++length;
    }
    return length;
}

std::size_t ReadPhrase(const Tokens& tokens, std::size_t i, Language language,
                       std::string_view& words) {
    for (const auto& phrase : kPhrases) {
        const std::size_t length = LengthOf(phrase, tokens, i);
        if (length == 0) continue;
        words = language == Language::kFrench ? phrase.french : phrase.english;
        return length;
    }
    return 0;
}

std::string Words(const Tokens& tokens, std::size_t from, std::size_t to, Language language) {
    std::string words;
    while (from < to) {
        if (!words.empty()) words += tokens[from].blank;
        std::string_view piece = tokens[from].text;
        std::size_t length = ReadPhrase(tokens, from, language, piece);
        std::string_view caption;
        if (length == 0) length = ReadColumn(tokens, from, language, caption);
        words += caption.empty() ? piece : caption;
        from += std::max(length, std::size_t{1});
    }
    return words;
}

std::string OrderItem(const Tokens& tokens, std::size_t from, std::size_t to, Language language) {
    const bool descending = to > from && SameName(tokens[to - 1].text, "DESC");
    if (descending || (to > from && SameName(tokens[to - 1].text, "ASC"))) --to;
    std::string item = Words(tokens, from, to, language);
    if (descending) item += " " + std::string(DescendingWord(language));
    return item;
}

}  // namespace

std::string DescribeCriteria(std::string_view criteria, Language language) {
    const Tokens tokens = drivers::TokenizeSql(criteria);
    return Words(tokens, 0, tokens.size() - 1, language);
}

std::string DescribeOrder(std::string_view ordering, Language language) {
    const Tokens tokens = drivers::TokenizeSql(ordering);
    std::string description;
    std::size_t from = 0;
    int depth = 0;
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        depth += tokens[i].text == "(" ? 1 : 0;
        depth -= tokens[i].text == ")" ? 1 : 0;
        const bool end = tokens[i].kind == SqlTokenKind::kEndOfText;
        if (!end && (depth > 0 || tokens[i].text != ",")) continue;
        if (i > from)
            description += (description.empty() ? "" : ", ") + OrderItem(tokens, from, i, language);
        from = i + 1;
    }
    return description;
}

bool NamesTable(std::string_view criteria, std::string_view table) {
    const Tokens tokens = drivers::TokenizeSql(criteria);
    for (std::size_t i = 0; i < tokens.size(); ++i)
        if (Qualifies(tokens, i) && SameName(Unquoted(tokens[i]), table)) return true;
    return false;
}

}  // namespace varnel::company
