#include "framework/procedure.h"

#include <cstdio>

namespace varnel::framework {

constinit thread_local Procedure* Procedure::innermost_ = nullptr;

void Mark(std::uint_least32_t line) {
    if (Procedure::innermost_ != nullptr) Procedure::innermost_->line_ = line;
}

Failure DescribeCurrentException(std::uint_least32_t fallback_line) {
    try {
        throw;
    } catch (const Error& error) {
        return {error.Number(), error.Source(), error.Description(),
                error.Line() != 0 ? error.Line() : fallback_line};
    } catch (const std::exception& error) {
        return {error_number::kOther, "Varnel", error.what(), fallback_line};
    } catch (...) {
        return {error_number::kOther, "Varnel", "An unknown failure", fallback_line};
    }
}

std::string FormAMessage(std::string_view object, std::string_view procedure,
                         const Failure& failure) {
    return failure.description + "\r\nin Varnel." + std::string(object) + "." +
           std::string(procedure) + " at line " + std::to_string(failure.line);
}

void ShowFailure(Application* application, std::string_view object, std::string_view procedure,
                 const Failure& failure) noexcept {
    try {
        const std::string text = FormAMessage(object, procedure, failure);
        try {
            const auto running = RunningHost();
            if (application == nullptr) application = running.get();
            if (application != nullptr) return application->Messages().ShowMessageBox(text);
        } catch (...) {
            // A host that cannot show a message must not hide the failure itself.
        }
        std::fprintf(stderr, "%s\n", text.c_str());
    } catch (...) {
        std::fputs("Varnel: out of memory while showing a failure\n", stderr);
    }
}

void RaiseAgain(std::string_view object, std::string_view procedure, const Failure& failure) {
    throw Error(failure.number, failure.source,
                failure.description + " (Varnel." + std::string(object) + "." +
                    std::string(procedure) +
                    " component failure at line:" + std::to_string(failure.line));
}

}  // namespace varnel::framework
