#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <string>
#include <string_view>

#include "host/application.h"
#include "host/error.h"

namespace varnel::framework {

/// The procedure that is running, innermost first: what a failure needs to tell its line.
///
/// A failure that the library raises brings its own line. One that comes out of the host or the
/// standard library does not: then the last statement marked in the procedure is the one that
/// failed.
class Procedure {
  public:
    explicit Procedure(std::uint_least32_t line) : line_(line), caller_(innermost_) {
        innermost_ = this;
    }
    ~Procedure() { innermost_ = caller_; }
    Procedure(const Procedure&) = delete;
    Procedure& operator=(const Procedure&) = delete;

    std::uint_least32_t Line() const { return line_; }

    friend void Mark(std::uint_least32_t line);

  private:
    std::uint_least32_t line_;
    Procedure* caller_;
    static constinit thread_local Procedure* innermost_;
};

/// Marks the statement that follows on the same line: the next call that can fail in the host.
void Mark(std::uint_least32_t line = __builtin_LINE());

/// A failure as the guards see it, whatever type was thrown.
struct Failure {
    std::int32_t number = error_number::kOther;
    std::string source;
    std::string description;
    std::uint_least32_t line = 0;
};

/// What the exception being handled says; `fallback_line` when it brings no line. Only inside a
/// catch block.
Failure DescribeCurrentException(std::uint_least32_t fallback_line);

/// The message of form A: description, a line break, "in Varnel.<object>.<procedure> at line " and
/// the line.
std::string FormAMessage(std::string_view object, std::string_view procedure,
                         const Failure& failure);

/// Shows the message of form A. Goes to the application's message box, else to the running host's,
/// else to standard error. Never throws.
void ShowFailure(Application* application, std::string_view object, std::string_view procedure,
                 const Failure& failure) noexcept;

/// Raises the failure again in form B: the description with " (Varnel.<object>.<procedure>
/// component failure at line:" and the line appended, the number unchanged.
[[noreturn]] void RaiseAgain(std::string_view object, std::string_view procedure,
                             const Failure& failure);

/// Runs a procedure body in form A: a failure is shown to the user and the procedure returns what
/// it has.
template <class Body>
void GuardFormA(Application* application, std::string_view object, std::string_view procedure,
                Body&& body, std::uint_least32_t line = __builtin_LINE()) noexcept {
    const Procedure frame(line);
    try {
        body();
    } catch (...) {
        ShowFailure(application, object, procedure, DescribeCurrentException(frame.Line()));
    }
}

/// Runs a procedure body in form B: a failure goes on to the caller with the procedure's name.
template <class Body>
auto GuardFormB(std::string_view object, std::string_view procedure, Body&& body,
                std::uint_least32_t line = __builtin_LINE()) {
    const Procedure frame(line);
    try {
        return body();
    } catch (...) {
        RaiseAgain(object, procedure, DescribeCurrentException(frame.Line()));
    }
}

}  // namespace varnel::framework
