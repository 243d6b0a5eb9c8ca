#pragma once

#include <optional>
#include <vector>

#include "host/data_access.h"

namespace varnel::company {

/// The company's fiscal years, read once.
class FiscalYears {
  public:
    explicit FiscalYears(CompanyDatabase& database) : database_(database) {}

    /// First day of the fiscal year that holds the date, else of the last one that begins before
    /// it, else 1 January.
    Date StartOf(Date date);

    /// The next question reads the database again.
    void Forget() { starts_.reset(); }

  private:
    const std::vector<Date>& Starts();

    CompanyDatabase& database_;
    std::optional<std::vector<Date>> starts_;  // Ascending.
};

}  // namespace varnel::company
