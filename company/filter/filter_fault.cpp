#include "company/filter/filter_fault.h"

#include <algorithm>
#include <vector>

#include "drivers/sql_tokens.h"

namespace varnel::company {

namespace {

using drivers::SqlToken;
using drivers::SqlTokenKind;

/// Looks through one half of a filter: its criteria or its ordering.
class HalfCheck {
  public:
    HalfCheck(std::string_view filter, std::string_view half, std::string_view name)
        : filter_(filter), half_(half), name_(name) {}

    std::string Run() {
        for (const auto& token : drivers::TokenizeSql(half_)) {
            std::string fault = FaultOf(token);
            if (!fault.empty()) return fault;
        }
        return open_.empty() ? std::string() : At(open_.back(), "the parenthesis is never closed");
    }

  private:
    std::string FaultOf(const SqlToken& token) {
        const auto comment = token.blank.find_first_of("-/");
        if (comment != std::string_view::npos)
            return At(token.blank.substr(comment), "a comment begins; leave comments out");
        if (!Ended(token)) return At(token.text, "a quoted text or name begins and never ends");
        if (token.kind == SqlTokenKind::kValue && IsParameter(token.text.front()))
            return At(token.text, "a parameter stands; write its value in its place");
        return token.kind == SqlTokenKind::kOperator ? FaultOfOperator(token.text) : std::string();
    }

    std::string FaultOfOperator(std::string_view text) {
        if (text == ";") return At(text, "a semicolon stands; a filter is no statement");
        if (text == "(") open_.push_back(text);
        if (text != ")") return {};
        if (open_.empty()) return At(text, "the parenthesis closes none that was opened");
        open_.pop_back();
        return {};
    }

    static bool IsParameter(char first) {
        return std::string_view("?:@$#").find(first) != std::string_view::npos;
    }

    /// A quote inside is doubled, so that the quotes of what has an end are even in number.
    static bool Ended(const SqlToken& token) {
        if (token.text.starts_with('[')) return token.text.ends_with(']');
        const bool is_text =
            token.kind == SqlTokenKind::kText || token.kind == SqlTokenKind::kValue;
        if (!is_text && token.kind != SqlTokenKind::kName) return true;
        const char quote = is_text ? '\'' : token.text.front();
        return std::ranges::count(token.text, quote) % 2 == 0;
    }

    std::string At(std::string_view place, std::string_view fault) const {
        const auto before = static_cast<std::size_t>(place.data() - filter_.data());
        const auto is_first_byte = [](char c) { return (c & 0xC0) != 0x80; };
        const auto characters = std::ranges::count_if(filter_.substr(0, before), is_first_byte);
        return "in the " + std::string(name_) + ", at character " + std::to_string(characters + 1) +
               ", " + std::string(fault);
    }

    std::string_view filter_, half_, name_;
    std::vector<std::string_view> open_;
};

}  // namespace

std::string FindFilterFault(std::string_view filter) {
    const auto bar = filter.find('|');
    std::string fault = HalfCheck(filter, filter.substr(0, bar), "criteria").Run();
    if (!fault.empty() || bar == std::string_view::npos) return fault;
    const auto ordering = filter.substr(bar + 1);
    if (ordering.find('|') != std::string_view::npos)
        return "there is more than one bar; only one stands between criteria and ordering";
    return HalfCheck(filter, ordering, "ordering").Run();
}

}  // namespace varnel::company
