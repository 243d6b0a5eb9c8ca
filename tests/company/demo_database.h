#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include "company/demo/demo_company.h"

struct sqlite3;

namespace varnel::company {

/// A folder of its own, gone at the end.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        static int count = 0;
        path_ = std::filesystem::temp_directory_path() /
                ("varnel-demo-" + std::to_string(getpid()) + "-" + std::to_string(++count));
        std::filesystem::create_directory(path_);
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::filesystem::path operator/(const char* name) const { return path_ / name; }
    const std::filesystem::path& Path() const { return path_; }

  private:
    std::filesystem::path path_;
};

inline std::string ReadAll(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// A demo company to ask single integers of, with plain SQL.
class DemoDatabase {
  public:
    explicit DemoDatabase(std::int64_t lines, std::uint64_t seed = 1);

    std::int64_t Ask(const std::string& sql) const;

  private:
    struct Close {
        void operator()(sqlite3* handle) const;
    };
    TemporaryFolder folder_;
    std::unique_ptr<sqlite3, Close> handle_;
};

/// The company of the default size and seed, written once.
inline const DemoDatabase& Demo() {
    static const DemoDatabase demo(12'000);
    return demo;
}

/// A column of amounts as exact ten-thousandths.
inline std::string Exact(const std::string& column) {
    return "CAST(round(" + column + " * 10000) AS INTEGER)";
}

inline std::string AccountIs(const std::string& number) {
    return "ExAcctId = (SELECT InGLAcctId FROM GLAcct WHERE GLAcctId = '" + number + "')";
}

}  // namespace varnel::company
