#include "company/writing/former_company.h"

#include <sqlite3.h>

#include <string>
#include <system_error>

#include "host/error.h"

namespace varnel::company {

namespace {

namespace fs = std::filesystem;

constexpr const char* kEndings[] = {"-journal", "-wal", "-shm"};
constexpr int kBusyWaitMilliseconds = 2'000;

[[noreturn]] void Refuse(const fs::path& file, const std::string& reason) {
    throw Error(error_number::kDatabase, "SQLite",
                "cannot replace " + file.string() + ": " + reason);
}

fs::path Beside(const fs::path& file, const char* ending) {
    fs::path path = file;
    path += ending;
    return path;
}

}  // namespace

void FormerCompany::Close::operator()(sqlite3* handle) const { sqlite3_close(handle); }

FormerCompany::FormerCompany(const fs::path& file) : file_(file) {
    std::error_code ignored;
    if (!fs::exists(file_, ignored)) return;
    sqlite3* handle = nullptr;
    const int result = sqlite3_open_v2(file_.c_str(), &handle,
                                       SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    handle_.reset(handle);
    if (result != SQLITE_OK) Refuse(file_, handle ? sqlite3_errmsg(handle) : "out of memory");
    sqlite3_busy_timeout(handle, kBusyWaitMilliseconds);
    Settle();
}

// Leaving the write-ahead log needs the file alone. Readers of a file without one are let be: they
// go on reading what they opened.
void FormerCompany::Settle() {
    constexpr const char* kSettle = "PRAGMA journal_mode = DELETE; BEGIN IMMEDIATE";
    const int result = sqlite3_exec(handle_.get(), kSettle, nullptr, nullptr, nullptr);
    if (result == SQLITE_BUSY || result == SQLITE_LOCKED)
        Refuse(file_, "another program has it open; try again when nobody uses it");
    // Nothing is left to save of a file that is no database, or a broken one.
    if (result != SQLITE_OK && result != SQLITE_NOTADB && result != SQLITE_CORRUPT)
        Refuse(file_, sqlite3_errmsg(handle_.get()));
}

void FormerCompany::RemoveJournals() const {
    for (const char* ending : kEndings) {
        std::error_code failure;
        const fs::path journal = Beside(file_, ending);
        fs::remove(journal, failure);
        if (failure)
            Refuse(file_, "its journal " + journal.string() + " stays: " + failure.message());
    }
}

fs::path FormerCompany::Journal(const fs::path& file) {
    std::error_code ignored;
    for (const char* ending : kEndings)
        if (fs::exists(Beside(file, ending), ignored)) return Beside(file, ending);
    return {};
}

}  // namespace varnel::company
