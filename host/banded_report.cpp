#include "host/banded_report.h"

#include "host/error.h"

namespace varnel {

void ReportData::RaiseNoRow() {
    throw Error(error_number::kNoCurrentRow, "ReportData",
                "There is no current row at the end of data");
}

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
