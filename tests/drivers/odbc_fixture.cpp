#include "tests/drivers/odbc_fixture.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "company/schema/schema.h"
#include "drivers/odbc/odbc_connection.h"
#include "drivers/odbc/odbc_watch.h"

namespace varnel::drivers {

std::string ServerFolder() {
    const char* folder = std::getenv("VARNEL_POSTGRES");
    if (folder == nullptr || !std::filesystem::exists(folder)) return "";
    ::setenv("ODBCSYSINI", folder, 1);
    return folder;
}

OdbcFixture::OdbcFixture() {
    static int count = 0;
    schema_ = "case_" + std::to_string(getpid()) + "_" + std::to_string(++count);
    Prepare("CREATE SCHEMA " + schema_ + ";" + company::kServerPreludeSql);
}

OdbcFixture::~OdbcFixture() { Prepare("DROP SCHEMA " + schema_ + " CASCADE"); }

void OdbcFixture::Prepare(const std::string& script) {
    OdbcWatch watch({});
    const OdbcConnection connection(ConnectionString(), OdbcAccess::kWrite, watch);
    connection.Execute(script);
    connection.Commit();
}

std::string OdbcFixture::ConnectionString() {
    return "Driver={PostgreSQL Unicode};Server=" + ServerFolder() +
           ";Database=postgres;UID=varnel;ConnSettings={SET search_path TO " + schema_ +
           "; SET application_name TO " + schema_ + "};";
}

}  // namespace varnel::drivers
