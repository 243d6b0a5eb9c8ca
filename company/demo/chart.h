#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "company/demo/amounts.h"

namespace varnel::company::demo {

/// Account types of the demo company. 6 and 7 are shown together as "other items".
enum AccountType {
    kAsset = 1,
    kLiability,
    kEquity,
    kRevenue,
    kExpense,
    kOtherIncome,
    kOtherExpense
};

/// A row's part in a statement. Posting accounts carry one of three roles by where they stand:
/// inside a level-1 block, inside a level-2 block only, or outside both.
enum RowRole {
    kText = 0,
    kBlock1 = 1,
    kPost1 = 2,
    kSubtotal1 = 3,
    kPost2 = 4,
    kSubtotal2 = 5,
    kPost = 6,
    kBlock2 = 7,
};

constexpr bool IsPosting(RowRole role) { return role == kPost1 || role == kPost2 || role == kPost; }

/// One row of the chart. Null texts, `currency` 0 and a null `inactive` become database nulls.
struct ChartRow {
    const char* number;
    const char* descr;
    AccountType type;
    RowRole role;
    const char* gifi = nullptr;
    int currency = 0;
    const char* inactive = nullptr;  // "0", "1" or null
    int budget = 0;  // dollars a month, debit positive, for a company of the reference size
    bool bank = false;
};

inline constexpr std::size_t kChartRows = 178;
extern const std::array<ChartRow, kChartRows> kChart;

struct AccountNote {
    const char* account;
    const char* note;
};

inline constexpr std::size_t kAccountNotes = 10;
extern const std::array<AccountNote, kAccountNotes> kNotes;

/// A row's place in `kChart`. Its `InGLAcctId` is another number, so that neither is taken for the
/// other.
using AccountIndex = std::size_t;

/// The row with this number; the number must be in the chart.
AccountIndex Account(std::string_view number);
std::int64_t AccountId(AccountIndex index);
inline std::int64_t AccountId(std::string_view number) { return AccountId(Account(number)); }

bool IsIncomeStatement(AccountIndex index);

/// Accounts of a currency.
AccountIndex BankAccount(int currency);
AccountIndex ReceivableAccount(int currency);
AccountIndex PayableAccount(int currency);

}  // namespace varnel::company::demo
