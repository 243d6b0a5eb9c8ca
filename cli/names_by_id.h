#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "host/application.h"

namespace varnel::cli {

/// Code and description, as "3 - Web shop", of what a company knows by internal ids.
using NamesById = std::map<std::int32_t, std::string>;

/// The query gives id, code and description, which may be null.
NamesById ReadNames(Application& application, const char* query);

/// A UsageError for an id that nothing has: it calls it a `thing` and lists those that there are.
const std::string& NameOf(std::int32_t id, const NamesById& names, std::string_view thing);

}  // namespace varnel::cli
