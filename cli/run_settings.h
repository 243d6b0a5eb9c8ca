#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/configure_options.h"
#include "cli/run_request.h"
#include "company/services/given_rates.h"
#include "engine/document.h"
#include "host/currency.h"
#include "host/date.h"

namespace varnel::cli {

/// A request whose values were read and checked.
struct RunSettings {
    struct Property {
        std::string name;
        std::string value;
    };

    Date from = kOpenStart;
    Date to = kOpenEnd;
    /// Of statements that show a second period; none for a day that is not given.
    struct {
        std::optional<Date> from, to;
    } cumulative;
    /// Of bank reconciliations.
    struct {
        std::optional<std::int32_t> history;
        Date date;
        Currency ending_balance;
    } statement;
    std::int32_t account_type = 0;  // 0 is all.
    std::vector<std::int32_t> projects;
    std::vector<std::int32_t> segments;
    std::optional<Date> session_date;
    std::optional<int> database_type;  // What the report is told of the database: 0 or 1.
    std::vector<company::GivenRate> rates;
    std::vector<Property> properties;
    OptionAnswers options;
    std::string language;
    engine::PageSetup page;
};

/// A UsageError that names the option for each value that is not well formed.
RunSettings ReadSettings(const RunRequest& request);

/// A language of --lang, in any case, as a locale. A UsageError for another one; empty is the
/// company's and stays empty.
std::string ReadLanguage(std::string_view language);

}  // namespace varnel::cli
