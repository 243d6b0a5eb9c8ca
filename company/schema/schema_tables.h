#pragma once

#include <string>
#include <vector>

namespace varnel::company {

enum class SchemaType { kInteger, kAmount, kRate, kDate, kText };

struct SchemaColumn {
    std::string name;  ///< As statements write it, with quotes where it has them.
    SchemaType type;
};

struct SchemaTable {
    std::string name;
    std::vector<SchemaColumn> columns;

    /// "InSegmentId, SegmentCode, Descr".
    std::string ColumnList() const;
};

/// The tables that kSchemaSql makes, in its order. The first column belongs to the key.
std::vector<SchemaTable> SchemaTables();

}  // namespace varnel::company
