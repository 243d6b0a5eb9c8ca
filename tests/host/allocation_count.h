#pragma once

namespace varnel::test {

/// How often this program has asked for memory until now.
long AllocationCount();

}  // namespace varnel::test
