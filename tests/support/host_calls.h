#pragma once

#include <string>
#include <vector>

#include "host/error.h"

namespace varnel::test {

/// Counts the calls that a host is asked to serve, and makes one of them fail: the lever of a fault
/// sweep.
///
///     for (int k = 1; ; ++k) {
///         MemoryHost host;
///         host.calls.FailAt(k);
///         RunReport(host);
///         if (host.calls.Count() < k) break;  // The run made fewer calls: the sweep is over.
///     }
class HostCalls {
  public:
    /// The call with this number, counted from 1, raises error 1000; 0 lets all pass.
    void FailAt(int number) { failing_ = number; }
    /// Calls are no longer noted, which allocates, and none fails.
    void StopCounting() { counting_ = false; }
    int Count() const { return static_cast<int>(names_.size()); }
    const std::vector<std::string>& Names() const { return names_; }

    // For the host's services.
    void Note(const char* name) {
        if (!counting_) return;
        names_.emplace_back(name);
        if (Count() == failing_)
            throw Error(error_number::kOther, "MemoryHost",
                        "Host call " + std::to_string(failing_) + ", " + name + ", failed");
    }

  private:
    int failing_ = 0;
    bool counting_ = true;
    std::vector<std::string> names_;
};

}  // namespace varnel::test
