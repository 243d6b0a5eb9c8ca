#include "tests/support/allocation_count.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<long> count = 0;
std::atomic<std::size_t> largest = 0;

}  // namespace

// Standard algorithms take their working room by this one.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    ++count;
    if (size > largest) largest = size;
    return std::malloc(size);
}

void* operator new(std::size_t size) {
    if (void* memory = operator new(size, std::nothrow)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace varnel::test {

long AllocationCount() { return count; }

std::size_t LargestAllocation() { return largest; }

void ResetLargestAllocation() { largest = 0; }

}  // namespace varnel::test
