#pragma once

#include <functional>
#include <string>
#include <vector>

namespace varnel::bench {

/// What one process cost.
struct Cost {
    double seconds = 0;     // Wall clock.
    double first_byte = 0;  // Seconds until it wrote to standard output; 0 when it wrote nothing.
    double peak_mebibytes = 0;
    bool failed = false;
};

/// Runs `work` in a child process of its own, so that its peak memory is its own, and returns the
/// median of `runs` by time.
Cost MeasureFunction(const std::function<void()>& work, int runs);

/// The same for a program. Its standard output is read and thrown away.
Cost MeasureProgram(const std::vector<std::string>& arguments, int runs);

}  // namespace varnel::bench
