#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "company/demo/random.h"
#include "host/application.h"
#include "tests/company/host_small_company.h"

namespace varnel::test {

/// A company in a file, open all the time that one made-up set of books after the other is put
/// into it. Every message box fails the test.
class BookCompany {
  public:
    BookCompany();

    /// Runs statements that replace the books.
    void Put(const std::string& script);
    /// Opens the company again: a host keeps the list of currencies and their control accounts.
    void Reopen();
    const std::shared_ptr<Application>& Host() const { return host_; }

  private:
    company::CompanyFile file_;
    std::shared_ptr<Application> host_;
};

/// Takes so many seeds in turn, until a test fails. VARNEL_COMPANIES is their number instead and
/// VARNEL_SEED the first of them, to see one that failed again.
void ForEverySeed(
    const std::function<void(BookCompany& company, company::demo::Random& random)>& check,
    std::uint64_t seeds = 1'000);

}  // namespace varnel::test
