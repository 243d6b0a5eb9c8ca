#pragma once

namespace varnel::company {

/// The statements that create an empty company database, and the indexes to build once it is
/// filled.
/// The texts are schema.sql and indexes.sql, embedded when the program is built.
extern const char* const kSchemaSql;
extern const char* const kIndexesSql;

/// PostgreSQL only: the types and operators that the two above and the reports' statements need,
/// and the statements that take all of it away again (server_prelude.sql, server_removal.sql).
extern const char* const kServerPreludeSql;
extern const char* const kServerRemovalSql;

}  // namespace varnel::company
