#pragma once

#include <string>
#include <vector>

#include "host/application.h"
#include "host/surface.h"
#include "reports/statements/statement_levels.h"
#include "reports/statements/variance.h"

namespace varnel::reports {

/// The controls of one printed line of amounts, and the rules that belong to it.
class StatementLine {
  public:
    struct Controls {
        std::vector<Control*> amounts;  // One a side, in order.
        std::vector<Control*> rules = {};
        /// How far the first amount is from the last, which it is compared with. Null in statements
        /// that compare nothing.
        Control* variance = nullptr;
        Control* percent = nullptr;
    };

    StatementLine() = default;
    explicit StatementLine(Controls controls);

    void Clear();
    /// Amounts that are not known stay empty. `scratch` is overwritten.
    void Show(Formats& formats, const Sides& sides, std::string& scratch,
              VarianceSense sense = VarianceSense::kMoreIsBetter);
    void SetVisible(bool visible);
    void SetBold(bool bold);
    void SetRulesVisible(bool visible);
    /// The key of all amounts but what they are compared with, which has one of its own.
    void SetTags(std::string_view tag, std::string_view comparison_tag);

    std::size_t AmountCount() const { return controls_.amounts.size(); }
    /// Where the figures stand, in order.
    std::vector<Box> Columns() const;

  private:
    void ShowVariance(Formats& formats, const Sides& sides, std::string& scratch,
                      VarianceSense sense);

    Controls controls_;
    std::vector<Control*> figures_;  // The amounts, then variance and percent.
};

}  // namespace varnel::reports
