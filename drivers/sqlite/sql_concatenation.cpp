#include "drivers/sqlite/sql_concatenation.h"

#include <algorithm>
#include <vector>

#include "drivers/sql_tokens.h"
#include "host/object.h"

namespace varnel::drivers {

namespace {

/// The words that stand right before an expression: what follows them is an operand of its own.
constexpr std::string_view kSeparators[] = {
    "ALL",    "AND",    "AS",    "BETWEEN", "BY",     "DISTINCT", "ELSE",      "END",    "ESCAPE",
    "EXISTS", "EXCEPT", "FROM",  "GLOB",    "HAVING", "IN",       "INTERSECT", "IS",     "JOIN",
    "LIKE",   "LIMIT",  "MATCH", "NOT",     "OFFSET", "ON",       "OR",        "REGEXP", "SELECT",
    "THEN",   "UNION",  "USING", "VALUES",  "WHEN",   "WHERE"};

/// SQLite's own parser gives up long before; the limit keeps ours from using up the stack.
constexpr int kDeepestNesting = 500;

/// What is known about the value of an expression.
struct Meaning {
    bool is_text = false;
    bool never_null = false;
};

struct Operand {
    std::size_t first = 0, last = 0;  // Tokens, both included.
    Meaning meaning;
    bool is_product = false;
};

struct Chain {
    std::vector<Operand> operands;
    std::vector<std::size_t> operators;

    /// Also false when the last operand is missing: SQLite will say so.
    bool IsConcatenation() const {
        return !operators.empty() && operands.size() == operators.size() + 1;
    }
};

/// Walks once over the tokens by the precedence of the operators and notes at each token what to
/// put before, in place of and after it.
class Rewriter {
  public:
    explicit Rewriter(std::string_view sql) : tokens_(TokenizeSql(sql)), notes_(tokens_.size()) {}

    std::string Run(std::string_view sql) {
        while (!AtEnd()) {
            Items("");
            if (!AtEnd()) ++position_;  // A closing parenthesis that nothing opened.
        }
        return too_deep_ ? std::string(sql) : Result();
    }

  private:
    struct Note {
        std::string before, instead, after;
    };

    bool AtEnd() const { return position_ + 1 >= tokens_.size(); }
    const SqlToken& Here() const { return tokens_[position_]; }
    bool AtOperator(std::string_view text) const {
        return Here().kind == SqlTokenKind::kOperator && Here().text == text;
    }
    bool AtAnyOperator(std::initializer_list<std::string_view> texts) const {
        return std::any_of(texts.begin(), texts.end(),
                           [this](std::string_view text) { return AtOperator(text); });
    }
    bool AtWord(std::string_view word) const {
        return Here().kind == SqlTokenKind::kWord && SameName(Here().text, word);
    }
    bool AtSeparator() const {
        return std::any_of(std::begin(kSeparators), std::end(kSeparators),
                           [this](std::string_view word) { return AtWord(word); });
    }
    bool AtOperand() const {
        if (Here().kind == SqlTokenKind::kEndOfText) return false;
        if (Here().kind == SqlTokenKind::kOperator) return AtAnyOperator({"(", "+", "-", "~"});
        return !AtSeparator();
    }

    /// Everything up to the word or parenthesis that closes what was opened. The meaning is that of
    /// the only expression, or in a CASE that of its results.
    Meaning Items(std::string_view closing_word) {
        Meaning meaning;
        int items = 0;
        bool is_result = false;
        bool gives_text = false;
        while (!AtEnd() && !AtOperator(")") && !(!closing_word.empty() && AtWord(closing_word))) {
            ++items;
            if (AtOperand()) {
                meaning = Concatenation();
                gives_text |= is_result && meaning.is_text;
                is_result = false;
            } else {
                meaning = {};
                is_result = AtWord("THEN") || AtWord("ELSE");
                ++position_;
            }
        }
        if (!closing_word.empty()) return {.is_text = gives_text};
        return items == 1 ? meaning : Meaning{};
    }

    Meaning Concatenation() {
        Chain chain;
        chain.operands.push_back(Sum());
        while (AtOperator("&")) {
            chain.operators.push_back(position_++);
            if (!AtOperand()) break;
            chain.operands.push_back(Sum());
        }
        if (chain.operators.empty()) return chain.operands.front().meaning;
        if (!chain.IsConcatenation()) return {};
        for (const auto& operand : chain.operands)
            if (!operand.meaning.never_null) Wrap(operand, "COALESCE(", ",'')");
        Join(chain);
        return {.is_text = true, .never_null = true};
    }

    Operand Sum() {
        Chain chain;
        bool has_minus = false;
        chain.operands.push_back(Product());
        while (AtAnyOperator({"+", "-"})) {
            has_minus |= AtOperator("-");
            chain.operators.push_back(position_++);
            if (!AtOperand()) break;
            chain.operands.push_back(Product());
        }
        Operand whole = chain.operands.front();
        if (chain.operators.empty()) return whole;
        whole.last = position_ - 1;
        whole.meaning = {};
        const bool any_text = std::any_of(chain.operands.begin(), chain.operands.end(),
                                          [](const Operand& each) { return each.meaning.is_text; });
        if (!any_text || has_minus || !chain.IsConcatenation()) return whole;
        for (const auto& operand : chain.operands)
            if (operand.is_product) Wrap(operand, "(", ")");
        Join(chain);
        whole.meaning.is_text = true;
        return whole;
    }

    Operand Product() {
        Operand whole = Factor();
        while (AtAnyOperator({"*", "/", "%", "||", "->", "->>"})) {
            const bool joins_texts = AtOperator("||") && !whole.is_product;
            ++position_;
            if (AtOperand()) Factor();
            whole.last = position_ - 1;
            whole.is_product = !joins_texts;
            whole.meaning = {.is_text = joins_texts};
        }
        return whole;
    }

    Operand Factor() {
        Operand factor;
        factor.first = position_;
        while (AtAnyOperator({"+", "-", "~"})) ++position_;
        const bool has_sign = position_ != factor.first;
        if (AtOperand()) factor.meaning = Primary();
        if (has_sign) factor.meaning = {};
        Suffixes();
        factor.last = position_ - 1;
        return factor;
    }

    Meaning Primary() {
        if (AtOperator("(")) return Group("");
        if (AtWord("CASE")) return Group("END");
        const bool is_literal = Here().kind == SqlTokenKind::kText;
        const bool is_value = Here().kind == SqlTokenKind::kValue;
        ++position_;
        if (is_literal || is_value) return {.is_text = is_literal, .never_null = is_literal};
        while (AtOperator(".") && !AtEnd()) {
            ++position_;
            if (!AtEnd()) ++position_;  // The next part of the name, or the asterisk for all.
        }
        if (AtOperator("(")) Group("");
        return {};
    }

    /// From an opening parenthesis or a CASE through what closes it.
    Meaning Group(std::string_view closing_word) {
        ++position_;
        if (++depth_ > kDeepestNesting) {
            too_deep_ = true;
            position_ = tokens_.size() - 1;
        }
        const Meaning meaning = Items(closing_word);
        --depth_;
        if (closing_word.empty() ? AtOperator(")") : AtWord(closing_word)) ++position_;
        return meaning;
    }

    /// What may follow an operand and still belongs to it.
    void Suffixes() {
        while (AtWord("COLLATE") || AtWord("FILTER") || AtWord("OVER")) {
            ++position_;
            if (AtOperator("("))
                Group("");
            else if (!AtEnd())
                ++position_;
        }
    }

    void Wrap(const Operand& operand, std::string_view open, std::string_view close) {
        notes_[operand.first].before.insert(0, open);
        notes_[operand.last].after += close;
    }

    void Join(const Chain& chain) {
        for (const auto token : chain.operators) notes_[token].instead = "||";
    }

    std::string Result() const {
        std::string result;
        for (std::size_t i = 0; i < tokens_.size(); ++i) {
            const Note& note = notes_[i];
            result += tokens_[i].blank;
            result += note.before;
            result += note.instead.empty() ? tokens_[i].text : std::string_view(note.instead);
            result += note.after;
        }
        return result;
    }

    std::vector<SqlToken> tokens_;
    std::vector<Note> notes_;
    std::size_t position_ = 0;
    int depth_ = 0;
    bool too_deep_ = false;
};

}  // namespace

std::string RewriteConcatenation(std::string_view sql) { return Rewriter(sql).Run(sql); }

}  // namespace varnel::drivers
