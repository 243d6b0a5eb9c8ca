#pragma once

#include <string_view>
#include <vector>

namespace varnel::drivers {

enum class SqlTokenKind {
    kWord,       ///< A keyword or a plain name.
    kName,       ///< A quoted name: "…", […] or `…`.
    kText,       ///< A text literal: '…'.
    kValue,      ///< A number, a binary literal or a parameter.
    kOperator,   ///< Everything else: operators, parentheses, commas, stray characters.
    kEndOfText,  ///< The last one: no text, only what follows the last token.
};

struct SqlToken {
    SqlTokenKind kind = SqlTokenKind::kEndOfText;
    std::string_view blank;  ///< White space and comments before it.
    std::string_view text;
};

/// Splits a statement as SQLite does. Nothing is lost: blanks and texts in order give `sql` again,
/// whatever `sql` is; a literal, name or comment without an end goes on to the end. The views point
/// into `sql`.
std::vector<SqlToken> TokenizeSql(std::string_view sql);

}  // namespace varnel::drivers
