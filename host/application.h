#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/company.h"
#include "host/date.h"
#include "host/dialogs.h"
#include "host/object.h"
#include "host/variant.h"

namespace varnel {

/// Message source that the reports' host messages come from.
inline constexpr std::string_view kMessageSource = "Orvotech";

/// Host messages and the message box. Texts come back with their arguments put in.
class MessageService {
  public:
    virtual ~MessageService() = default;
    virtual std::string Message(std::int32_t number, std::string_view source,
                                std::span<const Variant> arguments) = 0;
    /// Shows a modal message with an OK button and returns when it was answered.
    virtual void ShowMessageBox(const std::string& text) = 0;
};

/// How the host's user reads dates and amounts. Every function appends, so that a row loop need not
/// allocate.
class Formats {
  public:
    virtual ~Formats() = default;
    virtual void AppendShortDate(Date date, std::string& out) = 0;
    /// The general currency format: grouping, two decimals, no symbol: "1,234.50", "-1,234.50",
    /// "0.00".
    virtual void AppendAmount(Currency amount, std::string& out) { AppendAmount(amount, 2, out); }
    /// The same with the given number of decimals, 0 to 4.
    virtual void AppendAmount(Currency amount, int decimals, std::string& out) = 0;
    /// A plain number with grouping, for percentages.
    virtual void AppendNumber(double value, int decimals, std::string& out) = 0;
    virtual void AppendCount(std::int64_t count, std::string& out) { out += std::to_string(count); }
};

/// Turns a user's criteria into words and into selections. Reports hand it the tables that criteria
/// may name.
class FilterTool : public Object {
  public:
    std::string_view ObjectName() const override { return "FilterTool"; }
    /// Comma-separated table names.
    virtual void SetTables(std::string_view tables) = 0;
    /// Keys of source documents that the user picked by hand; empty when none were.
    virtual std::vector<std::string> SelectedDocuments() = 0;
    /// The criteria as a person reads them; empty for empty criteria.
    virtual std::string Describe(std::string_view criteria) = 0;
    /// The ordering as a person reads it; empty for an empty one.
    virtual std::string DescribeOrdering(std::string_view ordering) = 0;
    /// Ids of the accounts that match the criteria, comma-separated; "-1" when none does.
    virtual std::string ResolveAccounts(std::string_view criteria) = 0;
};

/// What the host's user works in right now.
class Context {
  public:
    virtual ~Context() = default;
    virtual Company& CurrentCompany() = 0;
    virtual CompanyDatabase& Database() = 0;
};

/// The host application: the one object that a report is given. Everything runs on the host's one
/// user-interface thread; services stay valid as long as the application does.
class Application : public Object {
  public:
    std::string_view ObjectName() const override { return "Application"; }
    /// The translated text of that number; texts may carry "&" accelerator marks. A missing one
    /// reads as its number.
    virtual std::string GetText(std::int16_t number) = 0;
    /// The date the user works at.
    virtual Date SessionDate() = 0;
    virtual Context& CurrentContext() = 0;
    virtual Formats& GetFormats() = 0;
    virtual MessageService& Messages() = 0;
    /// Error 445 in a host that shows no dialogs.
    virtual DialogService& Dialogs();
};

/// The application of the process, for code that was given none. The host sets it once; null until
/// then.
void SetRunningHost(std::weak_ptr<Application> application);
std::shared_ptr<Application> RunningHost();

}  // namespace varnel
