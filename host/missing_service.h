#pragma once

#include <string>

#include "host/error.h"

namespace varnel {

/// Error 445: the host was asked for a service that it does not offer.
[[noreturn]] inline void RaiseMissingService(const std::string& service) {
    throw Error(error_number::kNotImplemented, "Host", "The host application offers no " + service);
}

}  // namespace varnel
