#include "tests/trial/trial_books.h"

#include <algorithm>

namespace varnel::test {

namespace {

using company::demo::Random;

constexpr const char* kGifiCodes[] = {"", "", "1000", "1001", "8299"};

std::vector<BookAccount> MakeAccounts(Random& random, int currencies) {
    std::vector<BookAccount> accounts;
    const int count = Small(random, 5, 12);
    for (int id = 1; id <= count; ++id) {
        const bool foreign = random.Chance(300);
        accounts.push_back({.id = id,
                            .number = std::to_string(random.Between(10, 99)) + std::to_string(id),
                            .type = Small(random, 1, 6),
                            .currency_id = foreign ? Small(random, 1, currencies) : 0,
                            .inactive = random.Chance(150),
                            .gifi = random.Choose(kGifiCodes)});
    }
    std::sort(accounts.begin(), accounts.end(),
              [](const auto& a, const auto& b) { return a.number < b.number; });
    return accounts;
}

// Retained earnings accumulate; the others may be of any type.
void ChooseSpecialAccounts(Books& books, Random& random) {
    const auto some = [&]() -> BookAccount& {
        const auto last = static_cast<std::int64_t>(books.accounts.size()) - 1;
        return books.accounts[static_cast<std::size_t>(random.Between(0, last))];
    };
    BookAccount& retained = some();
    retained.type = 3;
    books.retained_earnings = retained.id;
    const int current = some().id;
    if (current != retained.id && random.Chance(800)) books.current_earnings = current;
    const int unrealized = some().id;
    if (unrealized != retained.id && unrealized != books.current_earnings && random.Chance(800))
        books.unrealized = unrealized;
}

}  // namespace

Books MakeBooks(Random& random) {
    Books books;
    const int currencies = Small(random, 1, kCurrencies);
    books.accounts = MakeAccounts(random, currencies);
    books.years = MakeYears(random);
    ChooseSpecialAccounts(books, random);
    AddEntries(books, random, currencies, SomeAmount);
    return books;
}

}  // namespace varnel::test
