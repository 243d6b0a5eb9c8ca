#pragma once

#include <stdexcept>

namespace varnel::cli {

/// How the program ends; docs/command-line.md lists them for its users.
enum ExitCode : int {
    kDone = 0,
    kFailed = 1,
    kUsage = 2,
    kMessagesShown = 3,
    kSignalBase = 128,  // Plus the number of the signal: 130 for an interrupt from the keyboard.
};

/// The command line itself is at fault: an unknown or malformed argument.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The work could not be done: company, database or output.
class Failure : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// A signal asked the program to stop.
class Interrupted : public std::exception {
  public:
    const char* what() const noexcept override { return "interrupted"; }
};

}  // namespace varnel::cli
