#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "company/writing/writing_options.h"
#include "host/currency.h"

namespace varnel::company {

struct CopyOptions : WritingOptions {
    /// Hears now and then how many rows of a table are copied.
    std::function<void(const std::string& table, std::int64_t rows)> progress = {};
};

/// What the amounts of a column come to: debits are positive, credits negative.
struct CopiedAmounts {
    std::string column;
    Currency debits, credits;
};

struct CopiedTable {
    std::string name;
    std::int64_t rows = 0;
    std::vector<CopiedAmounts> amounts;
};

/// Copies every table of a company, from and to a file or a database on a server
/// (company_address.h), and returns what each holds. The new company appears whole, after the
/// figures of every table (control_figures.h) were asked of both databases and found the same;
/// otherwise everything stays as it was. What prevents it is an `Error` that names the place.
///
/// The company is read as it was at the start, whoever posts meanwhile. (A server that shows its
/// snapshots to nobody gives each table as it is when its turn comes: nobody should post then.)
///
/// Texts that are not UTF-8, or hold a zero, go to another file as they are; for a server they are
/// an error, as it cannot hold them.
std::vector<CopiedTable> CopyCompany(const std::string& from, const std::string& to,
                                     const CopyOptions& options = {});

}  // namespace varnel::company
