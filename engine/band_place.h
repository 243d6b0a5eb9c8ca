#pragma once

#include "host/layout.h"

namespace varnel::engine {

/// Where in the report's order a band stands: all that page breaks depend on, its height apart.
struct BandPlace {
    SectionKind kind = SectionKind::kDetail;
    int level = 0;  // Of a group's header and footer, from outside in.
    bool repeat = false;
    bool keep_together = false;
    bool keep_with_next = false;
    bool keep_with_previous = false;
};

/// Whether a page break must not come between two neighbours: a group header stays with what
/// follows it, a footer with what it closes, and a section with what its handler says. Headers and
/// footers that print nothing take part as bands without height, so that every group has both.
constexpr bool StayTogether(const BandPlace& before, const BandPlace& after) {
    return before.keep_with_next || after.keep_with_previous ||
           before.kind == SectionKind::kGroupHeader || after.kind == SectionKind::kGroupFooter ||
           after.kind == SectionKind::kReportFooter;
}

/// Whether the header or line belongs to the group of that level that is open before it.
constexpr bool IsInsideGroup(const BandPlace& band, int level) {
    switch (band.kind) {
        case SectionKind::kDetail:
            return true;
        case SectionKind::kGroupHeader:
            return band.level > level;
        default:
            return false;
    }
}

}  // namespace varnel::engine
