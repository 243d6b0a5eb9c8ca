#pragma once

#include <vector>

#include "engine/record.h"
#include "host/surface.h"

namespace varnel::engine {

/// A control whose text comes from a field.
struct Binding {
    Control* control;
    FieldRef field;
};

/// A live section with what a run needs to know of it.
struct Part {
    Section* section = nullptr;
    int level = -1;  // Of a group's header and footer, from outside in; -1 for all others.
    bool grows = false;
    bool carries = false;  // Has controls that a break of the page concerns.
    bool has_sub_reports = false;
    std::vector<Binding> bindings;
};

/// The sections of a report by what they are for.
class Parts {
  public:
    explicit Parts(Surface& surface);
    Parts(const Parts&) = delete;
    Parts& operator=(const Parts&) = delete;

    /// Finds the data fields of all controls.
    void Bind(const ReportData& data);

    int Depth() const { return static_cast<int>(headers_.size()); }
    Part& Header(int level) { return *headers_[static_cast<std::size_t>(level)]; }
    Part& Footer(int level) { return *footers_[static_cast<std::size_t>(level)]; }
    Part& Detail() { return *detail_; }
    /// The part of that kind, for the kinds that are there at most once; null when it is not.
    Part* Single(SectionKind kind);

  private:
    const Layout* layout_;
    std::vector<Part> parts_;
    std::vector<Part*> headers_;
    std::vector<Part*> footers_;
    Part* detail_ = nullptr;
};

}  // namespace varnel::engine
