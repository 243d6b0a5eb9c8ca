#include "company/writing/file_writer.h"

#include <sqlite3.h>

#include <string>
#include <utility>

#include "company/schema/schema.h"
#include "host/error.h"

namespace varnel::company {

namespace {

struct Finalize {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using StatementHandle = std::unique_ptr<sqlite3_stmt, Finalize>;

class SqliteWritingStatement final : public WritingStatement {
  public:
    SqliteWritingStatement(const FileWriter& writer, sqlite3* database, std::string_view sql)
        : writer_(writer) {
        sqlite3_stmt* statement = nullptr;
        const int result = sqlite3_prepare_v3(database, sql.data(), static_cast<int>(sql.size()),
                                              SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
        statement_.reset(statement);
        if (result != SQLITE_OK) writer_.Fail();
    }

    void Bind(int position, std::int64_t value) override {
        sqlite3_bind_int64(statement_.get(), position, value);
    }
    // The division is correctly rounded, so that the column holds the double nearest to the
    // decimal.
    void Bind(int position, Currency value) override {
        sqlite3_bind_double(statement_.get(), position, value.ToDouble());
    }
    void Bind(int position, Rate value) override {
        sqlite3_bind_double(
            statement_.get(), position,
            static_cast<double>(value.Scaled()) / static_cast<double>(Rate::kScale));
    }
    void Bind(int position, Date value) override {
        const std::string text = value.ToIso();
        sqlite3_bind_text(statement_.get(), position, text.data(), static_cast<int>(text.size()),
                          SQLITE_TRANSIENT);
    }
    void Bind(int position, std::string_view value) override {
        sqlite3_bind_text(statement_.get(), position, value.data(), static_cast<int>(value.size()),
                          SQLITE_STATIC);
    }
    void BindNull(int position) override { sqlite3_bind_null(statement_.get(), position); }
    void Run() override {
        if (sqlite3_step(statement_.get()) != SQLITE_DONE) writer_.Fail();
        sqlite3_reset(statement_.get());
    }

  private:
    const FileWriter& writer_;
    StatementHandle statement_;
};

}  // namespace

void FileWriter::Close::operator()(sqlite3* handle) const { sqlite3_close(handle); }

FileWriter::FileWriter(const std::filesystem::path& file, const WritingOptions& options)
    : file_(file, options.overwrite, options.unfinished_file) {
    Open();
    // The file is thrown away on any failure, so a rollback journal would protect nothing.
    Execute(
        "PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; PRAGMA locking_mode = EXCLUSIVE;"
        "PRAGMA cache_size = -32768; PRAGMA temp_store = FILE");
    Execute(kSchemaSql);
    Execute("BEGIN");
}

void FileWriter::Open() {
    sqlite3* handle = nullptr;
    const int result = sqlite3_open_v2(file_.Path().string().c_str(), &handle,
                                       SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    handle_.reset(handle);
    if (result != SQLITE_OK) Fail();
}

std::unique_ptr<WritingStatement> FileWriter::Prepare(std::string_view sql) {
    return std::make_unique<SqliteWritingStatement>(*this, handle_.get(), sql);
}

void FileWriter::Execute(const char* sql) {
    if (sqlite3_exec(handle_.get(), sql, nullptr, nullptr, nullptr) != SQLITE_OK) Fail();
}

std::vector<std::int64_t> FileWriter::Numbers(const std::string& query) {
    sqlite3_stmt* raw = nullptr;
    const int result = sqlite3_prepare_v2(handle_.get(), query.c_str(), -1, &raw, nullptr);
    const StatementHandle statement(raw);
    if (result != SQLITE_OK || sqlite3_step(raw) != SQLITE_ROW) Fail();
    std::vector<std::int64_t> numbers;
    for (int column = 0; column < sqlite3_column_count(raw); ++column)
        numbers.push_back(sqlite3_column_int64(raw, column));
    return numbers;
}

void FileWriter::Fail() const {
    const std::string reason = handle_ ? sqlite3_errmsg(handle_.get()) : "out of memory";
    throw Error(error_number::kDatabase, "SQLite",
                "cannot write " + file_.Name().string() + ": " + reason +
                    " (check the free space and the permissions of its folder)");
}

void FileWriter::Finish() {
    Execute("COMMIT");
    Execute(kIndexesSql);
    handle_.reset();
    file_.Keep();
}

}  // namespace varnel::company
