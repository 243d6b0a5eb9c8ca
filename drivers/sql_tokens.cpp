#include "drivers/sql_tokens.h"

#include <algorithm>

namespace varnel::drivers {

namespace {

bool IsBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r' && c != '\v'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsWordStart(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || (c & 0x80) != 0;
}
bool IsWordPart(char c) { return IsWordStart(c) || IsDigit(c) || c == '$'; }

constexpr std::string_view kLongOperators[] = {"->>", "->", "||", "<<", ">>",
                                               "<=",  ">=", "<>", "!=", "=="};

/// Reads from the front of what is left; every Length… function says how long the piece there is.
class Scanner {
  public:
    explicit Scanner(std::string_view sql) : rest_(sql) {}

    SqlToken Next() {
        SqlToken token;
        token.blank = Take(BlankLength());
        if (rest_.empty()) return token;
        token.kind = KindHere();
        token.text = Take(Length(token.kind));
        return token;
    }

  private:
    char At(std::size_t index) const { return index < rest_.size() ? rest_[index] : '\0'; }

    std::string_view Take(std::size_t length) {
        const auto taken = rest_.substr(0, length);
        rest_.remove_prefix(taken.size());
        return taken;
    }

    std::size_t EndOf(std::string_view mark, std::size_t from) const {
        const auto found = rest_.find(mark, from);
        return found == std::string_view::npos ? rest_.size() : found + mark.size();
    }

    std::size_t BlankLength() const {
        std::size_t length = 0;
        for (;;) {
            if (IsBlank(At(length)))
                ++length;
            else if (rest_.substr(length).starts_with("--"))
                length = EndOf("\n", length);
            else if (rest_.substr(length).starts_with("/*"))
                length = EndOf("*/", length + 2);
            else
                return length;
        }
    }

    bool IsBinaryLiteral() const { return (At(0) == 'x' || At(0) == 'X') && At(1) == '\''; }

    SqlTokenKind KindHere() const {
        const char c = At(0);
        if (c == '\'') return SqlTokenKind::kText;
        if (c == '"' || c == '[' || c == '`') return SqlTokenKind::kName;
        if (IsDigit(c) || (c == '.' && IsDigit(At(1))) || IsBinaryLiteral())
            return SqlTokenKind::kValue;
        if (IsWordStart(c)) return SqlTokenKind::kWord;
        if (std::string_view("?:@$#").find(c) != std::string_view::npos)
            return SqlTokenKind::kValue;
        return SqlTokenKind::kOperator;
    }

    std::size_t Length(SqlTokenKind kind) const {
        switch (kind) {
            case SqlTokenKind::kText:
                return QuotedLength(0);
            case SqlTokenKind::kName:
                return At(0) == '[' ? EndOf("]", 1) : QuotedLength(0);
            case SqlTokenKind::kWord:
                return WordLength(0);
            case SqlTokenKind::kValue:
                if (IsBinaryLiteral()) return QuotedLength(1);
                return IsDigit(At(0)) || At(0) == '.' ? NumberLength() : WordLength(1);
            default:
                return OperatorLength();
        }
    }

    /// Of what is quoted by the character at `from`; the quote doubled does not end it.
    std::size_t QuotedLength(std::size_t from) const {
        const char quote = At(from);
        for (std::size_t i = from + 1; i < rest_.size(); ++i) {
            if (rest_[i] != quote) continue;
            if (At(i + 1) != quote) return i + 1;
            ++i;
        }
        return rest_.size();
    }

    std::size_t WordLength(std::size_t from) const {
        while (from < rest_.size() && IsWordPart(rest_[from])) ++from;
        return from;
    }

    /// The sign in "1e+5" belongs to the number; that in "0x1e+5" does not.
    std::size_t NumberLength() const {
        const bool hexadecimal = At(0) == '0' && (At(1) == 'x' || At(1) == 'X');
        std::size_t length = 1;
        for (; length < rest_.size(); ++length) {
            const char c = rest_[length];
            if (IsWordPart(c) || c == '.') continue;
            const char before = rest_[length - 1];
            const bool exponent_sign = (c == '+' || c == '-') && (before == 'e' || before == 'E') &&
                                       !hexadecimal && IsDigit(At(length + 1));
            if (!exponent_sign) break;
        }
        return length;
    }

    std::size_t OperatorLength() const {
        const auto* found =
            std::find_if(std::begin(kLongOperators), std::end(kLongOperators),
                         [this](std::string_view text) { return rest_.starts_with(text); });
        return found == std::end(kLongOperators) ? 1 : found->size();
    }

    std::string_view rest_;
};

}  // namespace

std::vector<SqlToken> TokenizeSql(std::string_view sql) {
    std::vector<SqlToken> tokens;
    Scanner scanner(sql);
    do tokens.push_back(scanner.Next());
    while (tokens.back().kind != SqlTokenKind::kEndOfText);
    return tokens;
}

}  // namespace varnel::drivers
