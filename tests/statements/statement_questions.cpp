#include "tests/statements/statement_questions.h"

#include <algorithm>

namespace varnel::test {

using company::demo::Random;

void ForEveryCompany(std::uint64_t companies, const StatementCheck& check) {
    const auto make_up = [&](BookCompany& company, Random& random) {
        const StatementBooks books = MakeStatementBooks(random);
        company.Put(ScriptOf(books));
        company.Reopen();
        check(books, company.Host(), random);
    };
    ForEverySeed(make_up, companies);
}

StatementQuestion SomeStatement(const Books& books, Random& random) {
    StatementQuestion question{SomePeriod(books, random)};
    if (random.Chance(600)) {
        const Question other = SomePeriod(books, random);
        question.cumul_from = other.from;
        question.cumul_to = other.to;
    }
    question.include_zero = random.Chance(300);
    return question;
}

StatementQuestion Anything(const Books& books, Random& random) {
    StatementQuestion question = SomeStatement(books, random);
    if (random.Chance(500)) static_cast<Question&>(question) = SomeSegments(question, random);
    question.revalue = random.Chance(500);
    question.foreign = random.Chance(500);
    return question;
}

StatementQuestion WholeBalanceSheet(const Books& books, Random& random) {
    StatementQuestion question{SomePeriod(books, random)};
    const bool all_active = std::none_of(books.accounts.begin(), books.accounts.end(),
                                         [](const auto& account) { return account.inactive; });
    question.include_zero = !all_active || random.Chance(300);
    return question;
}

}  // namespace varnel::test
