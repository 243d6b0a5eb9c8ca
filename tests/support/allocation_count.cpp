#include "tests/support/allocation_count.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<long> count = 0;
std::atomic<std::size_t> largest = 0;

}  // namespace

void* operator new(std::size_t size) {
    ++count;
    if (size > largest) largest = size;
    if (void* memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace varnel::test {

long AllocationCount() { return count; }

std::size_t LargestAllocation() { return largest; }

void ResetLargestAllocation() { largest = 0; }

}  // namespace varnel::test
