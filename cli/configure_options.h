#pragma once

#include <exception>
#include <string>
#include <utility>
#include <vector>

#include "host/dialogs.h"
#include "host/report.h"

namespace varnel::cli {

/// Check boxes of a report's dialog, by name or caption, with "True" or "False".
using OptionAnswers = std::vector<std::pair<std::string, std::string>>;

/// A value of --option, "name=yes". A UsageError when it is none.
OptionAnswers::value_type ReadAnswer(const std::string& option);

/// The dialog service of a run: hands a report's dialog to whichever service answers it just then.
///
/// Reports guard their dialogs, so no failure can pass through them. It is kept, the dialog is
/// closed, and the failure comes after the report.
class RunDialogs final : public DialogService {
  public:
    void ShowModal(Form& form) override;
    /// Has the report show its dialog, which `service` answers. Throws what failed there.
    void Configure(IReportConfig& report, DialogService& service);

  private:
    DialogService* service_ = nullptr;
    std::exception_ptr failure_;
};

/// Sets the options of a report in its own dialog: first as `answers` say, then, with
/// `ask`, as the person at the terminal says. A UsageError for an option that the dialog does not
/// have.
void ConfigureOptions(IReportConfig& report, RunDialogs& dialogs, const OptionAnswers& answers,
                      bool ask);

}  // namespace varnel::cli
