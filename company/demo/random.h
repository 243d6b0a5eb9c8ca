#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace varnel::company::demo {

/// A small generator (splitmix64) with its own distributions: the same seed gives the same company
/// with every compiler, which the distributions of the standard library do not promise.
class Random {
  public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    std::uint64_t Next();
    /// Evenly from `low` to `high`, both included.
    std::int64_t Between(std::int64_t low, std::int64_t high);
    /// True `permille` times in a thousand.
    bool Chance(int permille) { return Between(0, 999) < permille; }
    /// Around `mean`, mostly near it and never further than `percent` of it.
    std::int64_t About(std::int64_t mean, int percent);

    template <class T, std::size_t N>
    const T& Choose(const T (&table)[N]) {
        return table[static_cast<std::size_t>(Between(0, N - 1))];
    }
    template <class T>
    const T& Choose(std::span<const T> table) {
        return table[static_cast<std::size_t>(
            Between(0, static_cast<std::int64_t>(table.size()) - 1))];
    }

  private:
    std::uint64_t state_;
};

}  // namespace varnel::company::demo
