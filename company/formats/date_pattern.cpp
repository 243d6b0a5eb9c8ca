#include "company/formats/date_pattern.h"

#include <charconv>

namespace varnel::company {

namespace {

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

void AppendPadded(int number, int width, std::string& out) {
    char digits[16];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    for (auto length = end - digits; length < width; ++length) out += '0';
    out.append(digits, end);
}

}  // namespace

DatePattern::DatePattern(std::string_view pattern) {
    bool quoted = false;
    const auto last_text = [this]() -> std::string& {
        if (pieces_.empty() || pieces_.back().letter != 0) pieces_.push_back({0, 0, {}});
        return pieces_.back().text;
    };
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const char c = pattern[i];
        if (c == '\'') {
            const bool doubled = i + 1 < pattern.size() && pattern[i + 1] == '\'';
            if (doubled) last_text() += pattern[i++];
            if (!doubled) quoted = !quoted;
        } else if (quoted || !IsLetter(c)) {
            last_text() += c;
        } else if (!pieces_.empty() && pieces_.back().letter == c && pattern[i - 1] == c) {
            ++pieces_.back().width;
        } else {
            pieces_.push_back({c, 1, {}});
        }
    }
    for (const auto& piece : pieces_) {
        const bool numeric = piece.letter == 0 || piece.letter == 'y' ||
                             ((piece.letter == 'M' || piece.letter == 'd') && piece.width <= 2);
        if (!numeric) {
            pieces_.clear();
            return;
        }
    }
}

void DatePattern::Append(Date date, std::string& out) const {
    if (pieces_.empty()) return date.AppendIso(out);
    const auto [year, month, day] = date.Civil();
    for (const auto& piece : pieces_) {
        if (piece.letter == 0) out += piece.text;
        if (piece.letter == 'y')
            AppendPadded(piece.width == 2 ? year % 100 : year, piece.width, out);
        if (piece.letter == 'M') AppendPadded(month, piece.width, out);
        if (piece.letter == 'd') AppendPadded(day, piece.width, out);
    }
}

}  // namespace varnel::company
