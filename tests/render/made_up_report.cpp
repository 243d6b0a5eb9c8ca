#include "tests/render/made_up_report.h"

#include <system_error>

namespace varnel::render::testing {

engine::PlacedBand Place(const Section& section) {
    engine::PlacedBand band{.kind = section.Kind(), .height = section.Height(), .content = {}};
    for (const Control& control : section.Controls()) {
        if (!control.Visible()) continue;
        engine::Item item = TextItem(control.Place(), control.Design().align);
        item.figure = !std::holds_alternative<std::monostate>(control.Value());
        if (control.Design().kind == ControlKind::kLine) item.kind = engine::ItemKind::kRule;
        if (control.Design().kind == ControlKind::kPageNumber)
            item.kind = engine::ItemKind::kPageNumber;
        band.content.Add(item, control.Text());
    }
    return band;
}

void FailingSink::Write(std::string_view) {
    throw std::system_error(std::make_error_code(std::errc::no_space_on_device), "cannot write");
}

}  // namespace varnel::render::testing
