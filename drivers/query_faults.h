#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace varnel::drivers {

// What is wrong with a query, in the same words whichever database it is for.

std::string WrongParameterCount(std::size_t wanted, std::size_t given);
/// `first_word` is where the second statement begins.
std::string MoreThanOneStatement(std::string_view first_word);
std::string TimeLimitReached(int seconds);

inline constexpr const char* kNoStatement = "The command text holds no statement.";
inline constexpr const char* kNoConnection =
    "The command has no active connection: set it before executing.";
inline constexpr const char* kCancelled = "The query was cancelled.";

}  // namespace varnel::drivers
