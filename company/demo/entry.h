#pragma once

#include <optional>
#include <string>
#include <vector>

#include "company/demo/amounts.h"
#include "company/demo/chart.h"
#include "host/date.h"

namespace varnel::company::demo {

/// One ledger line. `foreign` is in `currency`; for the home currency it equals `amount`.
struct Line {
    AccountIndex account = 0;
    Currency amount;
    int currency = kHome;
    Currency foreign;
    Rate rate = kPar;
    int segment = 0;  // 0: none
    int project = 0;  // 0: none
};

/// One entry of the ledger, built line by line; debits positive. Lines take the segment and the
/// project that the entry holds when they are added; only income and expense lines take the
/// project.
struct Entry {
    Date date;
    const char* source = "";
    std::int64_t key = 0;  // the document
    std::string description{};
    std::string reference{};
    std::optional<std::string> remarks{};
    bool plain_home_lines = false;  // home lines without a ForeignAmnt
    int segment = 0;
    int project = 0;
    std::vector<Line> lines{};

    void Add(AccountIndex account, Currency amount);
    void Add(const char* account, Currency amount) { Add(Account(account), amount); }
    void AddForeign(AccountIndex account, int currency, Currency foreign, Rate rate);

    Currency Total() const;
    /// Puts what is missing to a total of zero on a line of its own, if anything is.
    void BalanceOn(const char* account);
    /// Puts the cents that conversion left over on the last line.
    void RoundOffOnLastLine();
};

}  // namespace varnel::company::demo
