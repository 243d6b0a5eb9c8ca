#include "drivers/odbc/one_query.h"

#include <algorithm>
#include <array>

#include "drivers/odbc/odbc_error.h"
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

}  // namespace

OneQuery FindQuery(const std::string& text) {
    const auto tokens = TokenizeSql(text);
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
