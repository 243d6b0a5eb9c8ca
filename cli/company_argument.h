#pragma once

#include <string>
#include <string_view>

namespace varnel::cli {

/// A UsageError, which begins with the option, for the address of a server that cannot be used as
/// it stands: one that is malformed or holds a password.
void CheckCompany(std::string_view option, const std::string& company);

/// The same for the place of a new company; a Failure when a file is there that is to stay.
void CheckNewCompany(std::string_view option, const std::string& company, bool overwrite);

}  // namespace varnel::cli
