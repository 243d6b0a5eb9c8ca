#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "company/database_company.h"
#include "company/filter/filter_tool.h"
#include "company/formats/locale_formats.h"
#include "company/texts/messages.h"
#include "company/texts/texts.h"
#include "host/application.h"

namespace varnel::company {

struct HostOptions {
    /// Locale of texts and formats, for example "fr-CA". Empty takes the company's setting
    /// Language, else "en-CA".
    std::string language{};
    DateStyle date_style = DateStyle::kIso;
    /// When not given: the company's setting SessionDate, else today.
    std::optional<Date> session_date{};
    /// What reports are told about the database; when not given 1 for SQLite and 0 for a server.
    std::optional<int> database_type{};
    /// Takes the text of each message box; null drops it, the box is counted all the same.
    HostMessages::Sink message_sink{};
    /// Called once for each text number that has no text; null stays silent.
    Texts::MissingText missing_text{};
    /// Exchange rates to take instead of the company's table.
    std::vector<GivenRate> rates{};
    /// Asked often while a query is at work, over a server from another thread; when it says yes
    /// the query ends with an error. Null lets every query end by itself.
    std::function<bool()> cancelled{};
    /// Shows the reports' dialogs; null is a service that leaves every choice as it stands and
    /// clicks OK.
    std::shared_ptr<DialogService> dialogs{};
};

/// The reference host: an application that works in one company over its database.
class CompanyHost final : public Application, public Context {
  public:
    CompanyHost(std::unique_ptr<CompanyDatabase> database, const HostOptions& options);

    std::string GetText(std::int16_t number) override { return texts_.Get(number); }
    varnel::Date SessionDate() override { return session_date_; }
    Context& CurrentContext() override { return *this; }
    Formats& GetFormats() override { return formats_; }
    HostMessages& Messages() override { return messages_; }
    DialogService& Dialogs() override { return *dialogs_; }

    DatabaseCompany& CurrentCompany() override { return company_; }
    CompanyDatabase& Database() override { return *database_; }

    varnel::company::Language Language() const { return language_; }
    /// A filter tool for one report. It may be kept, but not used, after the host is gone.
    std::shared_ptr<CompanyFilterTool> NewFilterTool();

  private:
    std::unique_ptr<CompanyDatabase> database_;
    Settings settings_;
    std::string locale_;
    varnel::company::Language language_;
    Texts texts_;
    LocaleFormats formats_;
    HostMessages messages_;
    Date session_date_;
    std::shared_ptr<DialogService> dialogs_;
    DatabaseCompany company_;
};

/// Opens the company at `address`, an SQLite file or a database on a server (company_address.h).
/// Raises an `Error` naming it when it cannot be read or lacks a table, a column or its home
/// currency.
///
/// The host is not made the running one: a program that wants `RunningHost()` calls
/// `SetRunningHost(host)`, and keeps the host alive.
std::shared_ptr<CompanyHost> OpenCompany(const std::string& address,
                                         const HostOptions& options = {});

/// The same over any database; `name` stands for it in messages. `options.database_type` and
/// `options.cancelled` make no difference: they are the database's own.
std::shared_ptr<CompanyHost> OpenCompany(std::unique_ptr<CompanyDatabase> database,
                                         const std::string& name, const HostOptions& options = {});

}  // namespace varnel::company
