#pragma once

#include <string>

#include "host/application.h"
#include "tests/support/host_calls.h"

namespace varnel::test {

/// Dates in ISO, numbers with the marks that are set: "1,234.50".
class MemoryFormats final : public Formats {
  public:
    explicit MemoryFormats(HostCalls& calls) : calls_(calls) {}

    std::string decimal_mark = ".";
    std::string group_mark = ",";

    void AppendShortDate(Date date, std::string& out) override;
    void AppendAmount(Currency amount, std::string& out) override;
    void AppendAmount(Currency amount, int decimals, std::string& out) override;
    void AppendNumber(double value, int decimals, std::string& out) override;
    void AppendCount(std::int64_t count, std::string& out) override;

  private:
    /// `plain` is like "-1234.50".
    void AppendMarked(const std::string& plain, std::string& out) const;
    HostCalls& calls_;
};

}  // namespace varnel::test
