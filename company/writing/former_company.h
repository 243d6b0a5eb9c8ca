#pragma once

#include <filesystem>
#include <memory>

struct sqlite3;

namespace varnel::company {

/// The company file that another one is about to replace, and the journals beside it. SQLite would
/// play a journal that stayed back into the new file. As long as this lives nobody else writes to
/// the file.
class FormerCompany {
  public:
    /// Takes what the journals hold into the file, so that it is whole without them. There may be
    /// no file, or one that is no database. Raises an error when somebody else is writing to it or
    /// has its write-ahead log open.
    explicit FormerCompany(const std::filesystem::path& file);

    void RemoveJournals() const;

    /// One that is beside a file; empty when there is none.
    static std::filesystem::path Journal(const std::filesystem::path& file);

  private:
    struct Close {
        void operator()(sqlite3* handle) const;
    };

    void Settle();

    std::filesystem::path file_;
    std::unique_ptr<sqlite3, Close> handle_;
};

}  // namespace varnel::company
