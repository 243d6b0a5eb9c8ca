#pragma once

#include <span>
#include <string>
#include <string_view>

namespace varnel::cli {

/// The name that `text` was probably meant to be: the one that the fewest inserted, removed,
/// replaced or swapped characters lead to. Empty when none is near.
std::string_view NearestName(std::string_view text, std::span<const std::string_view> names);

/// "; did you mean NAME?" for the nearest name, or nothing.
std::string DidYouMean(std::string_view text, std::span<const std::string_view> names);

}  // namespace varnel::cli
