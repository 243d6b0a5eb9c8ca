#pragma once

#include <string>
#include <vector>

#include "host/application.h"
#include "host/surface.h"
#include "reports/statements/statement_levels.h"

namespace varnel::reports {

/// The controls of one printed line of amounts, and the rules that belong to it.
struct StatementLine {
    std::vector<Control*> amounts;  // One a side, in order.
    std::vector<Control*> rules;

    void Clear();
    /// Amounts that are not known stay empty. `scratch` is overwritten.
    void Show(Formats& formats, const Sides& sides, std::string& scratch);
    void SetVisible(bool visible);
    void SetBold(bool bold);
    void SetRulesVisible(bool visible);
    void SetTag(std::string_view tag);
};

}  // namespace varnel::reports
