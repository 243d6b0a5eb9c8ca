#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/date.h"

namespace varnel::company {

/// A numeric date pattern such as "dd/MM/yyyy" or "d. M. yy", read once.
class DatePattern {
  public:
    /// The ISO form, "2025-03-31".
    DatePattern() = default;
    /// Letters y, M and d as locale data uses them; text in apostrophes stands for itself. A
    /// pattern with other letters (names of months, eras) gives the ISO form.
    explicit DatePattern(std::string_view pattern);

    void Append(Date date, std::string& out) const;

  private:
    struct Piece {
        char letter;  // 'y', 'M', 'd', or 0 for `text`.
        int width;
        std::string text;
    };
    std::vector<Piece> pieces_;  // Empty is ISO.
};

}  // namespace varnel::company
