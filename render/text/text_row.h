#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/document.h"

namespace varnel::render {

struct TextOptions {
    int columns = 120;   // At least 80.
    bool ascii = false;  // Rules and ellipses in ASCII.
    bool bold = false;   // Bold by terminal sequences.
};

/// A text in its box of character columns. The text must stay valid until the row is written.
struct TextCell {
    std::string_view text;
    int left = 0;
    int right = 0;
    Align align = Align::kLeft;
    bool figure = false;
    bool bold = false;
};

/// The texts of one line. A figure stands at its side of its box and is never cut: it grows over
/// blanks, and what is to its right moves on when there are none. Another text runs on over blanks
/// up to the next one and ends in an ellipsis there. One blank at least is between any two.
class TextRow {
  public:
    TextRow(int columns, const TextOptions& options) : columns_(columns), options_(options) {}

    void Clear() { cells_.clear(); }
    bool Empty() const { return cells_.empty(); }
    void Add(const TextCell& cell);
    /// Appends the line, without trailing blanks and with its line feed.
    void AppendTo(std::string& out);

  private:
    struct Placed {
        TextCell cell;
        int width;    // Of the whole text.
        int natural;  // Where the text would begin if it were alone.
        int order;    // Where the space that it claims begins.
        int start = 0;
        int shown = 0;  // Columns it gets.
    };

    void Place();
    void PlaceText(Placed& placed, int cursor, int limit) const;
    void AppendCell(std::string& out, const Placed& placed, int& column) const;
    int AppendText(std::string& out, const Placed& placed) const;

    int columns_;
    TextOptions options_;
    std::vector<Placed> cells_;  // By `order`.
};

/// The rules of one line.
class RuleRow {
  public:
    explicit RuleRow(const TextOptions& options) : options_(options) {}

    void Clear() { rules_.clear(); }
    bool Empty() const { return rules_.empty(); }
    /// A rule over another one makes it a double one.
    void Add(int left, int right, bool heavy);
    void AppendTo(std::string& out) const;

  private:
    struct Rule {
        int left;
        int right;
        bool heavy;
    };

    TextOptions options_;
    std::vector<Rule> rules_;  // By `left`, apart from each other.
};

}  // namespace varnel::render
