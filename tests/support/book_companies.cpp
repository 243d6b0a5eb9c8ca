#include "tests/support/book_companies.h"

#include <cstdlib>

#include "company/scripted_dialogs.h"

namespace varnel::test {

namespace {

constexpr const char* kCompany = R"sql(
INSERT INTO CompanySetting VALUES ('HomeCurrencyId', '1'), ('UseAccountNumbers', 'True');
INSERT INTO WorldCurrency (InCurrencyId, CurrencyCode) VALUES (1, 'CAD'), (2, 'USD'), (3, 'EUR');
INSERT INTO AcctTypeInfo VALUES (1, 1, 'Assets', 0), (2, 1, 'Liabilities', 0), (3, 1, 'Equity', 0),
    (4, 2, 'Revenue', 0), (5, 2, 'Expenses', 0), (6, 2, 'Sundry', 1), (7, 2, 'Taxes', 1);
INSERT INTO ProjInfo VALUES (1, 'P1', 'Kitchen'), (2, 'P2', 'Shop');
)sql";

std::uint64_t FromEnvironment(const char* name, std::uint64_t otherwise) {
    const char* const value = std::getenv(name);
    return value == nullptr ? otherwise : std::strtoull(value, nullptr, 10);
}

std::shared_ptr<Application> Open(const company::CompanyFile& file) {
    company::HostOptions options;
    options.language = "en-CA";
    options.dialogs = std::make_shared<company::ScriptedDialogs>(
        company::ScriptedDialogs::Answers{{"chkIncludeZeroBalanceAccount", "True"}});
    options.message_sink = [](const std::string& text) { ADD_FAILURE() << text; };
    return company::OpenCompany(file.Path(), options);
}

}  // namespace

BookCompany::BookCompany() : file_(kCompany), host_(Open(file_)) {}

void BookCompany::Put(const std::string& script) {
    file_.Run(script);
    host_->CurrentContext().CurrentCompany().BeginRun();
}

void BookCompany::Reopen() { host_ = Open(file_); }

void ForEverySeed(
    const std::function<void(BookCompany& company, company::demo::Random& random)>& check,
    std::uint64_t seeds) {
    BookCompany company;
    const std::uint64_t first = FromEnvironment("VARNEL_SEED", 1);
    const std::uint64_t end = first + FromEnvironment("VARNEL_COMPANIES", seeds);
    ASSERT_LT(first, end) << "VARNEL_COMPANIES is a number";
    for (std::uint64_t seed = first; seed < end && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE("VARNEL_SEED=" + std::to_string(seed));
        company::demo::Random random(seed);
        check(company, random);
    }
}

}  // namespace varnel::test
