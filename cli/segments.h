#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "company/company_host.h"

namespace varnel::cli {

/// The segment filter in words, for the head of a report: codes and descriptions of the segments,
/// then that lines without one count too. A UsageError names an id that no segment has, and lists
/// the segments that there are.
std::string DescribeSegments(company::CompanyHost& host, std::span<const std::int32_t> ids,
                             bool also_none);

}  // namespace varnel::cli
