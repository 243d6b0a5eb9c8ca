#pragma once

#include <string>

#include "host/error.h"

namespace varnel::test {

/// The number of the error that `action` raises, 0 when it raises none. Its description goes to
/// `description`.
template <class Action>
std::int32_t ErrorOf(Action&& action, std::string* description = nullptr) {
    try {
        action();
    } catch (const Error& error) {
        if (description != nullptr) *description = error.Description();
        return error.Number();
    }
    return 0;
}

/// The description of the error that `action` raises; empty when it raises none.
template <class Action>
std::string DescriptionOf(Action&& action) {
    std::string description;
    ErrorOf(action, &description);
    return description;
}

}  // namespace varnel::test
