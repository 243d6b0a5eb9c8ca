#pragma once

#include <filesystem>
#include <memory>

#include "company/writing/company_writer.h"

struct sqlite3;

namespace varnel::company {

/// The file that is being written, beside the one that it is to become. Gone unless kept.
class UnfinishedFile {
  public:
    explicit UnfinishedFile(const std::filesystem::path& file);
    ~UnfinishedFile();
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    void Keep() const;

  private:
    std::filesystem::path final_, path_;
};

/// A company in a new SQLite file.
class FileWriter final : public CompanyWriter {
  public:
    FileWriter(const std::filesystem::path& file, bool overwrite);

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
