#pragma once

#include <string>
#include <string_view>

namespace varnel::cli {

/// A UsageError, which begins with the option, for the address of a server that cannot be used as
/// it stands: one that is malformed or holds a password.
void CheckCompany(std::string_view option, const std::string& company);

}  // namespace varnel::cli
