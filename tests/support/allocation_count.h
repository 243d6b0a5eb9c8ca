#pragma once

#include <cstddef>

namespace varnel::test {

/// How often this program has asked for memory until now.
long AllocationCount();

/// The largest piece it has asked for since the last reset.
std::size_t LargestAllocation();
void ResetLargestAllocation();

}  // namespace varnel::test
