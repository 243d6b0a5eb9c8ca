#pragma once

#include <string_view>
#include <vector>

#include "engine/record.h"
#include "host/surface.h"

namespace varnel::engine {

/// What groups a report has, from outside in, and which of them a new record closes.
class Groups {
  public:
    /// Finds the group fields of the layout.
    void Resolve(const ReportData& data, const Layout& layout);

    int Depth() const { return depth_; }
    /// The outermost group whose value differs between the two records: it and all inside it close
    /// and open again. Depth() when none does.
    int FirstChange(const Record& before, const Record& after) const;

  private:
    struct Level {
        int depth;
        FieldRef field;
    };
    int depth_ = 0;
    std::vector<Level> levels_;  // Those that have a field; the others hold the whole report.
};

}  // namespace varnel::engine
