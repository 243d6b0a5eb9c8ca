#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/application.h"
#include "tests/support/book_questions.h"

namespace varnel::test {

/// The figures that a report prints. Amounts are debit positive; foreign ones 0 when not printed.
struct Summary {
    struct Line {
        std::string account;
        Units amount;
        std::string key;
        Units foreign;
    };
    std::vector<Line> lines{};
    Units adjustment = 0, debit = 0, credit = 0;

    /// 0 for an account without a line.
    Units Of(const std::string& account) const;
};

struct Detail {
    struct Line {
        Date date;
        int entry;
        Units amount;
        std::string key;
        Units foreign;
    };
    struct Account {
        std::string account;
        std::string key;
        Units forward = 0, unrealized = 0;
        /// By date, entry, amount and foreign amount.
        std::vector<Line> lines{};
        bool has_footer = false;
        Units debit = 0, credit = 0, closing = 0;
    };
    std::vector<Account> accounts{};
    Units adjustment = 0, debit = 0, credit = 0, balance = 0;

    /// One without lines and balances when it is not printed.
    Account Of(const std::string& account) const;
};

struct Gifi {
    struct Line {
        std::string account;
        Units amount;
        std::string key;
    };
    struct Code {
        std::string code;
        std::vector<Line> lines{};
        Units total = 0;
    };
    std::vector<Code> codes{};
    int count = 0;
};

/// Runs the report over the company and reads its figures. Accounts are named by number. Fails the
/// test when a running balance is not the one before it and the line.
Summary RunSummary(const std::shared_ptr<Application>& host, const Question& question);
Detail RunDetail(const std::shared_ptr<Application>& host, const Question& question);
/// The ledger by account, which neither revalues nor adjusts.
Detail RunLedger(const std::shared_ptr<Application>& host, const Question& question);
Gifi RunGifi(const std::shared_ptr<Application>& host, const Question& question);

struct DebitAndCredit {
    Units debit = 0, credit = 0;
};

/// The grand totals of the general ledger, of accounts of one type or of all (0).
DebitAndCredit RunGeneralLedger(const std::shared_ptr<Application>& host, int type,
                                const Question& question);

/// The figures in words, one piece each, to compare and to print.
std::vector<std::string> InWords(const Summary& summary);
std::vector<std::string> InWords(const Detail& detail);
std::vector<std::string> InWords(const Gifi& gifi);

}  // namespace varnel::test
