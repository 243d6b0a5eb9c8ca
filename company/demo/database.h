#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>

#include "host/currency.h"
#include "host/date.h"
#include "host/rate.h"

struct sqlite3;
struct sqlite3_stmt;

namespace varnel::company::demo {

/// A new database file to write to; every failure is an `Error` that names the file.
class Database {
  public:
    explicit Database(const std::filesystem::path& file);

    void Execute(const char* sql);
    sqlite3* Handle() const { return handle_.get(); }
    [[noreturn]] void Fail() const;

  private:
    struct Close {
        void operator()(sqlite3* handle) const;
    };
    std::filesystem::path file_;
    std::unique_ptr<sqlite3, Close> handle_;
};

/// A prepared insert. Texts must live until `Run` returns.
class Statement {
  public:
    Statement(Database& database, std::string_view sql);

    template <class... Values>
    void Run(const Values&... values) {
        int position = 0;
        (Bind(++position, values), ...);
        Step();
    }

  private:
    void Bind(int position, std::int64_t value);
    void Bind(int position, int value) { Bind(position, std::int64_t{value}); }
    void Bind(int position, std::size_t value) { Bind(position, static_cast<std::int64_t>(value)); }
    void Bind(int position, Currency value);
    void Bind(int position, Rate value);
    void Bind(int position, Date value);
    void Bind(int position, std::string_view value);
    void Bind(int position, const char* value);  // a null pointer is a null
    void Bind(int position, std::nullptr_t);
    template <class Value>
    void Bind(int position, const std::optional<Value>& value) {
        if (value) {
            Bind(position, *value);
        } else {
            Bind(position, nullptr);
        }
    }
    void Step();

    struct Finalize {
        void operator()(sqlite3_stmt* statement) const;
    };
    Database& database_;
    std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

/// Keys of which 0 stands for none.
inline std::optional<std::int64_t> KeyOrNull(std::int64_t key) {
    return key == 0 ? std::nullopt : std::optional(key);
}

}  // namespace varnel::company::demo
