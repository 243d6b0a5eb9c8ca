#include "tests/drivers/sqlite_fixture.h"

#include <sqlite3.h>

#include <cstdlib>
#include <stdexcept>

namespace varnel::drivers {

TemporaryFolder::TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "varnel-drivers-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("cannot make " + name);
    path_ = name;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

void RunScript(const std::string& path, const std::string& script) {
    sqlite3* database = nullptr;
    sqlite3_open(path.c_str(), &database);
    const bool failed = sqlite3_exec(database, script.c_str(), nullptr, nullptr, nullptr) != 0;
    const std::string message = sqlite3_errmsg(database);
    sqlite3_close(database);
    if (failed) throw std::runtime_error(message + ": " + script);
}

}  // namespace varnel::drivers
