#pragma once

#include <string_view>

#include "host/banded_report.h"
#include "host/row.h"

namespace varnel::engine {

/// A field found by name: a column of the row set or an unbound field.
struct FieldRef {
    Column column;
    bool unbound = false;
};

/// One record of a report: its row and its unbound fields. Null pointers are no record.
struct Record {
    const Row* row = nullptr;
    const Row* fields = nullptr;

    bool Present() const { return row != nullptr; }
    const Row& Holding(FieldRef field) const { return field.unbound ? *fields : *row; }
};

/// Looks in the row set first, then among the unbound fields. Raises error 3265 naming the layout,
/// the field and what there is.
FieldRef FindField(const ReportData& data, std::string_view layout, std::string_view field);

}  // namespace varnel::engine
