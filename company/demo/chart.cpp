#include "company/demo/chart.h"

#include <string>

#include "host/error.h"

namespace varnel::company::demo {

AccountIndex Account(std::string_view number) {
    std::size_t low = 0, high = kChart.size();
    while (low < high) {
        const std::size_t middle = (low + high) / 2;
        if (std::string_view(kChart[middle].number) < number) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    if (low == kChart.size() || number != kChart[low].number) {
        throw Error(error_number::kSubscriptOutOfRange, "demo company",
                    "no account " + std::string(number) + " in the chart");
    }
    return low;
}

// 37 shares no factor with the number of rows: ids are distinct and in another order than numbers.
std::int64_t AccountId(AccountIndex index) {
    static_assert(kChartRows % 37 != 0);
    return 1001 + static_cast<std::int64_t>(index * 37 % kChartRows);
}

bool IsIncomeStatement(AccountIndex index) { return kChart[index].type >= kRevenue; }

AccountIndex BankAccount(int currency) {
    constexpr const char* kNumbers[] = {"1020", "1030", "1040"};
    return Account(kNumbers[currency - 1]);
}

AccountIndex ReceivableAccount(int currency) {
    constexpr const char* kNumbers[] = {"1060", "1062", "1064"};
    return Account(kNumbers[currency - 1]);
}

AccountIndex PayableAccount(int currency) {
    constexpr const char* kNumbers[] = {"2010", "2012", "2014"};
    return Account(kNumbers[currency - 1]);
}

}  // namespace varnel::company::demo
