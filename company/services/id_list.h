#pragma once

#include <cstdint>
#include <string>

namespace varnel::company {

/// Adds an id to a comma-separated list for IN ( ).
inline void AppendId(std::int32_t id, std::string& list) {
    if (!list.empty()) list += ',';
    list += std::to_string(id);
}

/// "-1", an id that nothing has, for an empty list, so that IN ( ) stays valid.
inline std::string ListOrNone(const std::string& list) { return list.empty() ? "-1" : list; }

}  // namespace varnel::company
