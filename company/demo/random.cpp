#include "company/demo/random.h"

namespace varnel::company::demo {

std::uint64_t Random::Next() {
    std::uint64_t z = (state_ += 0x9e3779b97f4a7c15u);
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
    return z ^ (z >> 31);
}

std::int64_t Random::Between(std::int64_t low, std::int64_t high) {
    const auto span = static_cast<std::uint64_t>(high - low) + 1;  // low <= high
    return low + static_cast<std::int64_t>(Next() % span);
}

std::int64_t Random::About(std::int64_t mean, int percent) {
    const std::int64_t reach = (mean < 0 ? -mean : mean) * percent / 100;
    return mean + (Between(-reach, reach) + Between(-reach, reach)) / 2;
}

}  // namespace varnel::company::demo
