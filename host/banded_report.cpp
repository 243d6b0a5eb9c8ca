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

void ReportData::CopyFields(Row& into) {
    const std::size_t size = field_names_.Size();
    if (size == 0) return;
    into.Start(size);
    for (std::uint32_t i = 0; i < size; ++i) into.Add(fields_.Value({i}));
    fields_ = into;
}

}  // namespace varnel
