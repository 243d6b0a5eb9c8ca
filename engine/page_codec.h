#pragma once

#include <string>
#include <string_view>

#include "engine/document.h"

namespace varnel::engine {

/// Appends the page in a compact form that is good for this process only.
void EncodePage(const Page& page, std::string& bytes);
/// Reads what EncodePage wrote; the page's storage is reused.
void DecodePage(std::string_view bytes, Page& page);

}  // namespace varnel::engine
