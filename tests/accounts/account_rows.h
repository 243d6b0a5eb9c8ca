#pragma once

#include <string>

#include "host/variant.h"
#include "tests/support/memory_database.h"

namespace varnel::test {

inline constexpr const char* kLoadAll = "Select * from GLAcct";
inline constexpr const char* kLoadOneCurrency = "Select * from GLAcct where ExCurrencyId = ? ";

/// A row of GLAcct as a test writes it down.
struct AccountRow {
    Variant id;
    Variant number = "1000";
    Variant description = "Cash";
    Variant inactive = false;
    Variant cheque = false;
    Variant note = Variant::Null{};
    Variant gifi = Variant::Null{};
    Variant currency_id = Variant::Null{};
};

/// The columns of GLAcct, in an order that is not that of the properties.
inline RowSet AccountRows(const std::vector<AccountRow>& accounts) {
    RowSet rows{{"Note", "GLAcctId", "InGLAcctId", "Descr", "AcctType", "GroupType", "Inactive",
                 "ChqAcct", "GIFIAcctId", "ExCurrencyId"},
                {}};
    for (const auto& a : accounts)
        rows.rows.push_back({a.note, a.number, a.id, a.description, 5, 2, a.inactive, a.cheque,
                             a.gifi, a.currency_id});
    return rows;
}

}  // namespace varnel::test
