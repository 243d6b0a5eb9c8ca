#pragma once

#include <cstdint>

#include "host/company.h"

namespace varnel::framework {

/// The company's accounts of earnings, by internal id; 0 where it has none.
struct EarningsAccounts {
    std::int32_t retained = 0;
    std::int32_t current = 0;

    bool Hold(std::int32_t account_id) const {
        return account_id == retained || account_id == current;
    }
};

EarningsAccounts ReadEarningsAccounts(Company& company);

}  // namespace varnel::framework
