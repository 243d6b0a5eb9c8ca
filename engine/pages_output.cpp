#include "engine/pages_output.h"

#include <string>

#include "host/error.h"

namespace varnel::engine {

namespace {

[[noreturn]] void RaiseTooWide(const Surface& surface, const PageSetup& setup) {
    const std::string name(surface.Design().name);
    Raise(error_number::kInvalidArgument, name,
          "The layout " + name + " is " + std::to_string(surface.Width()) +
              " twips wide and the paper " + std::to_string(setup.paper_width) +
              "; take wider paper or turn it on its side");
}

}  // namespace

void PagesOutput::Begin(Surface& surface, PageFrame& frame) {
    frame_ = &frame;
    surface.Widen(setup_.paper_width - 2 * setup_.margin_side);
    if (surface.Width() > setup_.paper_width) RaiseTooWide(surface, setup_);
    page_.SetLeft((setup_.paper_width - surface.Width()) / 2);
    paginator_.Start();
}

void PagesOutput::Write(const Part& part, bool printed) {
    const SectionLayout& design = part.section->Design();
    const bool opens_group = design.kind == SectionKind::kGroupHeader;
    const bool marks_group = opens_group || design.kind == SectionKind::kGroupFooter;
    if (!printed && !marks_group) return;
    if (printed) {
        composer_.Compose(part, band_);
    } else {
        band_.kind = design.kind;
        band_.height = 0;
        band_.content.Clear();
        band_.carried.Clear();
        band_.over_break.Clear();
    }
    paginator_.Add(band_, {.kind = design.kind,
                           .level = part.level,
                           .repeat = opens_group && design.repeat,
                           .keep_together = opens_group && design.keep_together,
                           .keep_with_next = part.section->KeepsWithNext(),
                           .keep_with_previous = part.section->KeepsWithPrevious()});
}

bool PagesOutput::Make(const Part* part, PlacedBand& band) {
    if (part == nullptr) return false;
    composer_.Compose(*part, band);
    return true;
}

void PagesOutput::Finish(const Page& page) {
    store_.Append(page);
    control_.CountPage();
}

}  // namespace varnel::engine
