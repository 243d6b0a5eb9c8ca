#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "company/company_host.h"
#include "host/error.h"
#include "host/exchange_rates.h"

namespace varnel::company {

inline Date Day(std::string_view text) { return Date::ParseIso(text); }
inline Currency Amount(std::string_view text) { return Currency::Parse(text); }
inline std::string Text(Currency amount) { return amount.ToText(2); }

/// An SQLite file that is gone with the object.
class CompanyFile {
  public:
    /// An empty company, then what the script does to it.
    explicit CompanyFile(const std::string& script);
    ~CompanyFile();
    CompanyFile(const CompanyFile&) = delete;
    CompanyFile& operator=(const CompanyFile&) = delete;

    const std::string& Path() const { return path_; }
    /// Runs statements that may write.
    void Run(const std::string& script) const;
    /// The one integer that a query gives.
    std::int64_t Ask(const std::string& query) const;

  private:
    std::string path_;
};

/// A company of a few accounts, lines and rates: the same one as script and in memory.
extern const char* const kSmallCompany;

/// A way to have the small company: over its database, or in memory.
struct HostKind {
    const char* name;
    std::shared_ptr<Application> (*make)();
};
extern const HostKind kHostKinds[2];
inline std::string NameOf(const testing::TestParamInfo<HostKind>& kind) { return kind.param.name; }

/// A report's side of revaluation.
class Rates final : public IExchangeRates {
  public:
    using Collection = std::shared_ptr<RateCollection>;
    const Collection& IExchangeRates_ExchangeRates() override { return rates; }
    void IExchangeRates_ExchangeRates(Collection value) override { rates = std::move(value); }
    const std::string& IExchangeRates_ExchangeRatesDate() override { return date; }
    void IExchangeRates_ExchangeRatesDate(const std::string& value) override { date = value; }
    bool IExchangeRates_Reevaluate() override { return reevaluate; }
    void IExchangeRates_Reevaluate(bool value) override { reevaluate = value; }

    Collection rates;
    std::string date;
    bool reevaluate = false;
};

/// The description of the error that the action raises; empty when it raises none.
template <class Action>
std::string ErrorOf(Action action) {
    try {
        action();
    } catch (const Error& error) {
        return error.Description();
    }
    return {};
}

}  // namespace varnel::company
