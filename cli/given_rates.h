#pragma once

#include <string>
#include <vector>

#include "company/services/given_rates.h"

namespace varnel::cli {

/// The rates of --rate and those in the file of --rates: one a line, empty lines and lines that
/// start with "#" passed over. A UsageError names the option, and for a file its line.
std::vector<company::GivenRate> ReadRates(const std::vector<std::string>& rates,
                                          const std::string& file);

}  // namespace varnel::cli
