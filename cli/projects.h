#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "host/application.h"

namespace varnel::cli {

/// The ids as reports take them: "3,7". A UsageError names one that no project has, and lists the
/// projects that there are.
std::string ListProjects(Application& application, std::span<const std::int32_t> ids);

}  // namespace varnel::cli
