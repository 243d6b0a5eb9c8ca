#include "company/demo/demo_company.h"

#include <string>
#include <system_error>

#include "company/demo/books.h"
#include "company/demo/database.h"
#include "company/demo/keeper.h"
#include "company/demo/master_data.h"
#include "company/schema/schema.h"
#include "host/error.h"

namespace varnel::company {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void Refuse(const std::string& description) {
    throw Error(error_number::kInvalidArgument, "demo company", description);
}

void CheckArguments(const fs::path& file, const DemoOptions& options) {
    if (options.lines < kDemoLinesMin || options.lines > kDemoLinesMax) {
        Refuse("a demo company has from " + std::to_string(kDemoLinesMin) + " to " +
               std::to_string(kDemoLinesMax) + " ledger lines, not " +
               std::to_string(options.lines));
    }
    std::error_code ignored;
    const fs::path folder = file.parent_path();
    if (!folder.empty() && !fs::is_directory(folder, ignored)) {
        Refuse("cannot create " + file.string() + ": there is no folder " + folder.string() +
               "; create it first");
    }
    if (fs::is_directory(file, ignored)) {
        Refuse("cannot create " + file.string() + ": it is a folder; add the name of a file");
    }
    if (!options.overwrite && fs::exists(file, ignored)) {
        Refuse(file.string() + " exists already; choose another name or ask to overwrite it");
    }
}

/// The file that is being written, beside the one that it is to become. Gone unless kept.
class UnfinishedFile {
  public:
    explicit UnfinishedFile(const fs::path& file) : final_(file), path_(file) {
        path_ += ".unfinished";
        std::error_code ignored;
        fs::remove(path_, ignored);
    }
    ~UnfinishedFile() {
        std::error_code ignored;
        fs::remove(path_, ignored);
    }
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    const fs::path& Path() const { return path_; }
    void Keep() const {
        std::error_code failure;
        fs::rename(path_, final_, failure);
        if (failure) Refuse("cannot create " + final_.string() + ": " + failure.message());
    }

  private:
    fs::path final_, path_;
};

void Fill(demo::Database& database, const DemoOptions& options) {
    demo::Books books(database, options.lines, options.seed);
    demo::WriteMasterData(database, books.rates);
    demo::WriteBudgets(database, options.lines);
    demo::KeepBooks(books, options.lines, [&](std::int64_t done) {
        if (options.progress && !options.progress(done, options.lines)) {
            throw Error(error_number::kOther, "demo company", "stopped before it was complete");
        }
    });
    books.BankReconciliations().Write(database);
}

}  // namespace

void CreateDemoCompany(const fs::path& file, const DemoOptions& options) {
    CheckArguments(file, options);
    const UnfinishedFile unfinished(file);
    {
        demo::Database database(unfinished.Path());
        database.Execute(kSchemaSql);
        database.Execute("BEGIN");
        Fill(database, options);
        database.Execute("COMMIT");
        database.Execute(kIndexesSql);
    }
    unfinished.Keep();
}

}  // namespace varnel::company
