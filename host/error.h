#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace varnel {

/// Error numbers that hosts know. A host may raise others of its own.
namespace error_number {
inline constexpr std::int32_t kInvalidArgument = 5;
inline constexpr std::int32_t kOverflow = 6;
inline constexpr std::int32_t kSubscriptOutOfRange = 9;
inline constexpr std::int32_t kTypeMismatch = 13;
inline constexpr std::int32_t kObjectNotSet = 91;
inline constexpr std::int32_t kCannotCreateObject = 429;
inline constexpr std::int32_t kUnknownMember = 438;
inline constexpr std::int32_t kNotImplemented = 445;
inline constexpr std::int32_t kDuplicateKey = 457;
inline constexpr std::int32_t kNoCurrentRow = 3021;
inline constexpr std::int32_t kUnknownColumn = 3265;
inline constexpr std::int32_t kDatabase = 3709;
inline constexpr std::int32_t kOther = 1000;
}  // namespace error_number

/// The exception of the library, its contracts and its hosts. `what()` is the description: what
/// failed, where, and what to do about it. Only files that are written or read as such raise
/// std::system_error instead.
///
/// `Line()` is the source line of the failing statement when the error was raised inside the
/// library (`Raise`), and 0 when it came from a host service: the procedure guard then uses the
/// last statement that the procedure marked.
class Error : public std::runtime_error {
  public:
    Error(std::int32_t number, std::string source, const std::string& description,
          std::uint_least32_t line = 0)
        : std::runtime_error(description),
          number_(number),
          source_(std::move(source)),
          line_(line) {}

    std::int32_t Number() const noexcept { return number_; }
    /// The object or service that failed, for example "Varnel.CGLAcct" or "SQLite".
    const std::string& Source() const noexcept { return source_; }
    std::string Description() const { return what(); }
    std::uint_least32_t Line() const noexcept { return line_; }

  private:
    std::int32_t number_;
    std::string source_;
    std::uint_least32_t line_;
};

/// Raises an `Error` that carries the caller's line. (The builtin is what std::source_location
/// stands on; clang 14 has only the builtin.)
[[noreturn]] inline void Raise(std::int32_t number, std::string source,
                               const std::string& description,
                               std::uint_least32_t line = __builtin_LINE()) {
    throw Error(number, std::move(source), description, line);
}

}  // namespace varnel
