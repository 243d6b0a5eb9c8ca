#include "cli/configure_options.h"

#include <utility>

#include "cli/dialogs/terminal_dialogs.h"
#include "cli/errors.h"
#include "company/scripted_dialogs.h"
#include "host/error.h"
#include "host/object.h"

namespace varnel::cli {

namespace {

void AnswerByOptions(IReportConfig& report, RunDialogs& dialogs, const OptionAnswers& answers) {
    company::ScriptedDialogs scripted(answers);
    try {
        dialogs.Configure(report, scripted);
    } catch (const Error& error) {
        throw UsageError("--option: " + error.Description());
    }
}

/// Has a service answer as long as it lives.
class Answering {
  public:
    Answering(DialogService*& current, DialogService& service) : current_(current) {
        current_ = &service;
    }
    ~Answering() { current_ = nullptr; }
    Answering(const Answering&) = delete;
    Answering& operator=(const Answering&) = delete;

  private:
    DialogService*& current_;
};

}  // namespace

OptionAnswers::value_type ReadAnswer(const std::string& option) {
    const auto equals = option.rfind('=');
    if (equals == 0 || equals == std::string::npos)
        throw UsageError("--option: \"" + option + "\" is no option; write name=yes or name=no");
    const std::string name = option.substr(0, equals);
    const std::string value = option.substr(equals + 1);
    for (const auto* yes : {"yes", "true", "1"})
        if (SameName(value, yes)) return {name, "True"};
    for (const auto* no : {"no", "false", "0"})
        if (SameName(value, no)) return {name, "False"};
    throw UsageError("--option " + name + ": \"" + value + "\" is neither yes nor no");
}

void RunDialogs::ShowModal(Form& form) {
    if (service_ == nullptr) return form.CloseBox();
    try {
        service_->ShowModal(form);
    } catch (...) {
        failure_ = std::current_exception();
        form.CloseBox();
    }
}

void RunDialogs::Configure(IReportConfig& report, DialogService& service) {
    {
        const Answering answering(service_, service);
        report.IReportConfig_ShowConfigurationScreen();
    }
    if (failure_ != nullptr) std::rethrow_exception(std::exchange(failure_, nullptr));
}

void ConfigureOptions(IReportConfig& report, RunDialogs& dialogs, const OptionAnswers& answers,
                      bool ask) {
    if (!answers.empty()) AnswerByOptions(report, dialogs, answers);
    if (!ask) return;
    TerminalDialogs terminal;
    dialogs.Configure(report, terminal);
}

}  // namespace varnel::cli
