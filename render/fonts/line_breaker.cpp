#include "render/fonts/line_breaker.h"

#include <algorithm>

#include "render/fonts/unicode.h"
#include "render/fonts/utf8.h"

namespace varnel::render {

namespace {

constexpr std::string_view kEllipsis = "\u2026";

std::string_view TrimEnd(std::string_view text) {
    const auto last = text.find_last_not_of(' ');
    return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

/// Measures in one style, with all widths in 1/65536 em.
class Ruler {
  public:
    Ruler(FontSet& fonts, FontStyle style) : fonts_(fonts), style_(style) {}

    static std::int64_t Limit(double size, double width) {
        // A hair of tolerance: a box made as wide as the text must hold it.
        const double units = size > 0 ? (width / size + 1e-6) * kUnitsPerEm : 0;
        return static_cast<std::int64_t>(std::clamp(units, 0.0, 1e15));
    }

    std::int64_t Advance(std::string_view text) { return fonts_.Advance(style_, text); }

    /// Bytes of the longest beginning of `text` not wider than `limit`.
    std::size_t Fit(std::string_view text, std::int64_t limit) {
        return fonts_.NeedsShaping(style_, text) ? FitShaped(text, limit) : FitPlain(text, limit);
    }

    /// The first place at or after `offset` that divides no character from its marks. Looks ahead
    /// no further than any writing goes, so that malformed text cannot make it slow.
    static std::size_t Boundary(std::string_view text, std::size_t offset) {
        constexpr std::size_t kLookAhead = 64;
        std::size_t place = std::min(offset, text.size());
        const std::size_t last = std::min(place + kLookAhead, text.size());
        while (place < last && (text[place] & '\xC0') == '\x80') ++place;
        while (place < last) {
            const char* position = text.data() + place;
            if (!IsMark(DecodeUtf8(position, text.data() + text.size()))) break;
            place = static_cast<std::size_t>(position - text.data());
        }
        return place;
    }

  private:
    std::size_t FitPlain(std::string_view text, std::int64_t limit) {
        std::int64_t sum = 0;
        std::size_t fitting = 0;
        while (fitting < text.size()) {
            const char* position = text.data() + fitting;
            sum += fonts_.Cell(style_, DecodeUtf8(position, text.data() + text.size())).advance;
            if (sum > limit) break;
            fitting = static_cast<std::size_t>(position - text.data());
        }
        return fitting;
    }

    // The width of a shaped beginning is not a sum, so it is measured anew: doubling, then halving.
    std::size_t FitShaped(std::string_view text, std::int64_t limit) {
        std::size_t fitting = 0;
        std::size_t step = 1;
        while (step > 0 && fitting < text.size()) {
            const std::size_t candidate = Boundary(text, fitting + step);
            if (Advance(text.substr(0, candidate)) <= limit) {
                fitting = candidate;
                step *= 2;
            } else {
                step = std::min(step, candidate - fitting) / 2;
            }
        }
        return fitting;
    }

    FontSet& fonts_;
    FontStyle style_;
};

/// The next piece that is kept together: a word up to its hyphen, or a stretch of spaces. A hyphen
/// before a digit is a minus sign or part of a date or number, and no place to break.
std::string_view NextPiece(std::string_view text) {
    // Keeps a huge word from being measured to its end for every line of it.
    constexpr std::size_t kLongestPiece = 1024;
    if (text.front() == ' ') return text.substr(0, text.find_first_not_of(' '));
    std::size_t end = 0;
    while (end < text.size() && text[end] != ' ' && end < kLongestPiece) {
        const bool hyphen = text[end++] == '-' && end > 1 && end < text.size();
        if (hyphen && (text[end] < '0' || text[end] > '9')) break;
    }
    return text.substr(0, Ruler::Boundary(text, end));
}

class LineBreaker {
  public:
    LineBreaker(Ruler ruler, std::int64_t limit, std::vector<std::string_view>& lines)
        : ruler_(ruler), limit_(limit), lines_(lines) {}

    void Paragraph(std::string_view text) {
        if (ruler_.Advance(text) <= limit_) return lines_.push_back(text);
        Begin(text);
        const std::size_t lines_before = lines_.size();
        while (!rest_.empty()) Add(NextPiece(rest_));
        const std::string_view last = TrimEnd(line_);
        if (!last.empty() || lines_.size() == lines_before) lines_.push_back(last);
    }

  private:
    void Begin(std::string_view text) {
        rest_ = text;
        line_ = text.substr(0, 0);
        line_advance_ = 0;
    }

    void Add(std::string_view piece) {
        const std::int64_t advance = ruler_.Advance(piece);
        if (piece.front() == ' ' || line_advance_ + advance <= limit_) {
            line_ = std::string_view(line_.data(), line_.size() + piece.size());
            line_advance_ += advance;
            rest_.remove_prefix(piece.size());
        } else if (line_.empty()) {
            BreakWord(piece);
        } else {
            const std::string_view line = TrimEnd(line_);
            if (!line.empty()) lines_.push_back(line);
            Begin(rest_);
        }
    }

    void BreakWord(std::string_view word) {
        const std::size_t fitting = ruler_.Fit(word, limit_);
        const std::size_t taken = fitting > 0 ? fitting : Ruler::Boundary(word, 1);
        lines_.push_back(word.substr(0, taken));
        Begin(rest_.substr(taken));
    }

    Ruler ruler_;
    std::int64_t limit_;
    std::vector<std::string_view>& lines_;
    std::string_view rest_;
    std::string_view line_;
    std::int64_t line_advance_ = 0;
};

}  // namespace

void BreakLines(FontSet& fonts, FontStyle style, double size, double width, std::string_view text,
                std::vector<std::string_view>& lines) {
    lines.clear();
    LineBreaker breaker(Ruler(fonts, style), Ruler::Limit(size, width), lines);
    while (true) {
        const auto feed = text.find('\n');
        std::string_view paragraph = text.substr(0, feed);
        if (!paragraph.empty() && paragraph.back() == '\r') paragraph.remove_suffix(1);
        breaker.Paragraph(paragraph);
        if (feed == std::string_view::npos) return;
        text.remove_prefix(feed + 1);
    }
}

std::string_view Ellipsize(FontSet& fonts, FontStyle style, double size, double width,
                           std::string_view text, std::string& storage) {
    Ruler ruler(fonts, style);
    const std::int64_t limit = Ruler::Limit(size, width);
    if (ruler.Advance(text) <= limit) return text;
    const std::int64_t room = limit - ruler.Advance(kEllipsis);
    if (room < 0) return {};
    storage.assign(TrimEnd(text.substr(0, ruler.Fit(text, room))));
    storage.append(kEllipsis);
    return storage;
}

}  // namespace varnel::render
