#pragma once

#include <cstdint>

#include "host/data_access.h"

namespace varnel::framework {

/// How a statement joins texts: the desktop engine by "&", which reads null as an empty text,
/// servers by "+".
enum class Dialect : std::uint8_t { kServer, kDesktop };

/// Desktop for database type 1; anything else is a server.
inline Dialect DialectOf(CompanyDatabase& database) {
    constexpr int kDesktopType = 1;
    return database.DatabaseType() == kDesktopType ? Dialect::kDesktop : Dialect::kServer;
}

}  // namespace varnel::framework
