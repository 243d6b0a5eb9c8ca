#pragma once

namespace varnel::company {

/// The statements that create an empty company database, and the indexes to build once it is
/// filled.
/// The texts are schema.sql and indexes.sql, embedded when the program is built.
extern const char* const kSchemaSql;
extern const char* const kIndexesSql;

}  // namespace varnel::company
