#include "engine/record.h"

#include <string>

#include "host/error.h"

namespace varnel::engine {

namespace {

std::string Listed(const Columns& columns) {
    std::string list;
    for (std::size_t i = 0; i < columns.Size(); ++i)
        list += (list.empty() ? "" : ", ") + columns.Name(i);
    return list.empty() ? "none" : list;
}

}  // namespace

FieldRef FindField(const ReportData& data, std::string_view layout, std::string_view field) {
    const auto& rows = data.Rows();
    if (rows != nullptr) {
        const Column column = rows->GetColumns().Find(field);
        if (column.Valid()) return {column, false};
    }
    const Column column = data.FieldNames().Find(field);
    if (column.Valid()) return {column, true};
    Raise(error_number::kUnknownColumn, std::string(layout),
          "The layout " + std::string(layout) + " asks for the field \"" + std::string(field) +
              "\"; columns of the row set: " +
              (rows == nullptr ? "none" : Listed(rows->GetColumns())) +
              "; unbound fields: " + Listed(data.FieldNames()));
}

}  // namespace varnel::engine
