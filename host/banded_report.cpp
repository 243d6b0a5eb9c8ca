#include "host/banded_report.h"

namespace varnel {

Column ReportData::AddField(std::string name) {
    const Column known = field_names_.Find(name);
    if (known.Valid()) return known;
    fields_.AddNull();
    return field_names_.Add(std::move(name));
}

void ReportData::Clear() {
    rows_.reset();
    Show(nullptr);
    fields_.Start(field_names_.Size());
    for (std::size_t i = 0; i < field_names_.Size(); ++i) fields_.AddNull();
}

}  // namespace varnel
