#include "drivers/odbc/one_query.h"

#include <algorithm>
#include <array>

#include "drivers/odbc/odbc_error.h"
#include "drivers/odbc/utf16.h"
#include "drivers/query_faults.h"
#include "drivers/sql_tokens.h"
#include "host/object.h"

namespace varnel::drivers {

namespace {

bool IsSemicolon(const SqlToken& token) { return token.text == ";"; }
bool IsStatement(const SqlToken& token) {
    return token.kind != SqlTokenKind::kEndOfText && !IsSemicolon(token);
}

bool BeginsReading(std::string_view word) {
    return std::ranges::any_of(std::array<std::string_view, 4>{"SELECT", "WITH", "VALUES", "("},
                               [word](auto start) { return SameName(start, word); });
}

/// A quoted name or a literal, binary ones too, has its end: every quote in it has another.
bool IsWhole(const SqlToken& token) {
    const char quote = token.kind == SqlTokenKind::kName ? '"' : '\'';
    return token.kind == SqlTokenKind::kOperator || std::ranges::count(token.text, quote) % 2 == 0;
}

/// A text right behind it is one with escapes: E'…', or what PostgreSQL takes apart before the E.
bool MakesEscapes(const SqlToken& token) {
    if (token.kind == SqlTokenKind::kWord) return SameName(token.text, "E");
    return token.kind == SqlTokenKind::kValue &&
           token.text.find_last_of("Ee") == token.text.size() - 1;
}

/// What stands between two words: comments that end, hold no other, and are all on one line.
bool IsPlainBlank(std::string_view blank) {
    while (!blank.empty()) {
        const bool block = blank.starts_with("/*");
        const bool line = blank.starts_with("--");
        const auto end = block ? blank.find("*/", 2) : line ? blank.find('\n') : 0;
        if (block && (end == blank.npos || blank.substr(2, end).find("/*") != blank.npos))
            return false;
        if (line && blank.substr(0, end).find('\r') != blank.npos) return false;
        if (end == blank.npos) return true;
        blank.remove_prefix(block ? end + 2 : end + 1);
    }
    return true;
}

/// Whether every database takes the token, which comes after `before`, for what it is here.
bool ReadsAlike(const SqlToken& token, const SqlToken& before) {
    const bool escapes =
        token.kind == SqlTokenKind::kText && token.blank.empty() && MakesEscapes(before);
    const bool dollar =
        token.kind == SqlTokenKind::kValue && token.text.find('$') != token.text.npos;
    const bool odd_name = token.text.starts_with('[') || token.text.starts_with('`');
    const bool rewritten = token.text == "{" || token.text == "}";  // By ODBC drivers.
    return !escapes && !dollar && !odd_name && !rewritten && IsWhole(token) &&
           IsPlainBlank(token.blank);
}

void RequireOneReading(const std::vector<SqlToken>& tokens, const std::string& text) {
    SqlToken before;
    for (const auto& token : tokens) {
        if (!ReadsAlike(token, before))
            RaiseOdbc("Databases read the query differently from \"" +
                          std::string(Beginning(token.text, 20)) +
                          "\" on: write texts as '…' and names as \"…\", each with its end, "
                          "without comments.",
                      text);
        before = token;
    }
}

}  // namespace

OneQuery FindQuery(const std::string& text) {
    const auto tokens = TokenizeSql(text);
    RequireOneReading(tokens, text);
    const auto first = std::ranges::find_if(tokens, IsStatement);
    if (first == tokens.end()) RaiseOdbc(kNoStatement, text);
    if (!BeginsReading(first->text))
        RaiseOdbc("A query may only read; it may not " + std::string(first->text) + ".", text);
    const auto semicolon = std::find_if(first, tokens.end(), IsSemicolon);
    const auto second = std::find_if(semicolon, tokens.end(), IsStatement);
    if (second != tokens.end()) RaiseOdbc(MoreThanOneStatement(second->text), text);
    const auto last = std::prev(semicolon == tokens.end() ? tokens.end() - 1 : semicolon);
    const auto parameters =
        std::count_if(first, semicolon, [](const SqlToken& token) { return token.text == "?"; });
    return {{first->text.data(), last->text.data() + last->text.size()},
            static_cast<std::size_t>(parameters)};
}

}  // namespace varnel::drivers
