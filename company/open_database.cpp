#include "company/open_database.h"

#include "company/odbc_company_database.h"
#include "company/sqlite_company_database.h"

namespace varnel::company {

std::unique_ptr<CompanyDatabase> OpenDatabase(const CompanyAddress& address,
                                              std::optional<int> database_type,
                                              std::function<bool()> cancelled) {
    if (address.IsServer())
        return std::make_unique<OdbcCompanyDatabase>(address.odbc_connection, database_type,
                                                     std::move(cancelled));
    return std::make_unique<SqliteCompanyDatabase>(address.text, database_type,
                                                   std::move(cancelled));
}

}  // namespace varnel::company
