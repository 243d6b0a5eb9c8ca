#pragma once

#include <filesystem>
#include <memory>

#include "company/writing/company_writer.h"
#include "company/writing/unfinished_file.h"

struct sqlite3;

namespace varnel::company {

/// A company in a new SQLite file.
class FileWriter final : public CompanyWriter {
  public:
    FileWriter(const std::filesystem::path& file, const WritingOptions& options);

    std::unique_ptr<WritingStatement> Prepare(std::string_view sql) override;
    void Execute(const char* sql) override;
    std::vector<std::int64_t> Numbers(const std::string& query) override;
    void Finish() override;

    [[noreturn]] void Fail() const;

  private:
    struct Close {
        void operator()(sqlite3* handle) const;
    };

    void Open();

    UnfinishedFile file_;
    std::unique_ptr<sqlite3, Close> handle_;
};

}  // namespace varnel::company
