#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

struct sqlite3;

namespace varnel::drivers {

/// One open database file that can only be read. For one thread at a time.
class SqliteConnection {
  public:
    /// Opens the file at `path`, which must exist and be an SQLite database; raises error 3709
    /// otherwise. A read waits as long as `busy_wait` for another program that is writing.
    SqliteConnection(std::string path, std::chrono::milliseconds busy_wait,
                     std::function<bool()> cancelled);

    sqlite3* Handle() const { return handle_.get(); }
    const std::string& Path() const { return path_; }
    /// Whether queries can be cancelled, and whether they are.
    bool CanBeCancelled() const { return cancelled_ != nullptr; }
    bool Cancelled() const { return cancelled_ && cancelled_(); }

    /// A sentence for the error that the last call met.
    std::string LastError() const;

  private:
    struct Close {
        void operator()(sqlite3* handle) const;
    };

    void Open();
    void Check(int code) const;

    std::string path_;
    std::function<bool()> cancelled_;
    std::string refusal_;  // Written by the authorizer.
    std::unique_ptr<sqlite3, Close> handle_;
};

}  // namespace varnel::drivers
