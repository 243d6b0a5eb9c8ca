#pragma once

#include "cli/console.h"

namespace varnel::cli {

/// Says what the exception being handled is about and returns the exit code that goes with it. Only
/// inside a catch block.
int TellFailure(Console& console);

}  // namespace varnel::cli
