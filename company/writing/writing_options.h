#pragma once

#include <functional>

#include "company/writing/unfinished_file.h"

namespace varnel::company {

/// How a company is made, whatever it is made from.
struct WritingOptions {
    /// Replace a company that is there; otherwise it is an error.
    bool overwrite = false;
    /// Asked often, while a server works from another thread: true stops the work with an error.
    std::function<bool()> cancelled = {};
    /// Hears which file is unfinished.
    UnfinishedFileListener unfinished_file = {};
};

}  // namespace varnel::company
