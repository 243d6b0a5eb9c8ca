#include "cli/nearest_name.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <vector>

namespace varnel::cli {

namespace {

/// Row by row over `a`; two rows back for the swap of two neighbours.
std::size_t Distance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> before(b.size() + 1), last(b.size() + 1), row(b.size() + 1);
    std::iota(last.begin(), last.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t replaced = last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, replaced});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[j] = std::min(row[j], before[j - 2] + 1);
        }
        before.swap(last);
        last.swap(row);
    }
    return last[b.size()];
}

}  // namespace

std::string_view NearestName(std::string_view text, std::span<const std::string_view> names) {
    std::string_view nearest;
    // More than a third of it wrong is another word.
    std::size_t least = text.size() / 3 + 2;
    for (const auto name : names) {
        const std::size_t distance = Distance(text, name);
        if (distance >= least) continue;
        least = distance;
        nearest = name;
    }
    return nearest;
}

std::string DidYouMean(std::string_view text, std::span<const std::string_view> names) {
    const auto nearest = NearestName(text, names);
    return nearest.empty() ? std::string() : "; did you mean " + std::string(nearest) + "?";
}

}  // namespace varnel::cli
