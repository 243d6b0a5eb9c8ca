// Shows the reports' dialogs as the varnel command does, on the terminal that it runs on:
//
//     dialogs_on_terminal balances|comments|bank en|fr ask|answer [name=yes|no ...]
//
// "balances" and "comments" are frmGLConfig with one and with both options. Prints what each box
// was left at, and how the program would end.

#include <cstdio>

#include "cli/configure_options.h"
#include "cli/errors.h"
#include "cli/interrupt.h"
#include "company/texts/texts.h"
#include "framework/gl_config.h"
#include "reports/bank/bank_concil_config.h"
#include "tests/support/memory_host.h"

namespace varnel::cli {
namespace {

/// Of a report that has options: what its dialog is opened with and what it leaves. The rest of a
/// report is in the way here.
class Options : public IReportConfig {
  public:
    explicit Options(Application& application) : application_(application) {}
    void IReportConfig_ShowConfigurationScreen() override {
        framework::GuardFormA(&application_, "Options", "IReportConfig_ShowConfigurationScreen",
                              [&] { Ask(); });
    }
    virtual void Print() const { std::printf("%s", included_ ? "included" : "left out"); }

  protected:
    virtual void Ask() = 0;
    Application& application_;
    bool included_ = false;
};

class Balances final : public Options {
    using Options::Options;
    void Ask() override { included_ = framework::AskIncludeZeroBalance(application_, included_); }
};

class Comments final : public Options {
    using Options::Options;
    void Ask() override {
        framework::frmGLConfig form;
        form.Properties(1, included_);
        form.Properties(2, comments_);
        form.ShowProperty(2, true);
        form.PrepareInvConfigDialog(framework::Borrowed(application_), 2);
        application_.Dialogs().ShowModal(form);
        included_ = form.Properties(1);
        comments_ = form.Properties(2);
    }
    void Print() const override {
        Options::Print();
        std::printf(comments_ ? ", with comments" : ", no comments");
    }
    bool comments_ = false;
};

class Bank final : public Options {
    using Options::Options;
    void Ask() override {
        included_ = reports::AskIncludeReconciledAmount(application_, included_);
    }
};

std::unique_ptr<Options> MakeOptions(std::string_view name, Application& application) {
    if (name == "balances") return std::make_unique<Balances>(application);
    if (name == "comments") return std::make_unique<Comments>(application);
    return std::make_unique<Bank>(application);
}

std::shared_ptr<test::MemoryHost> MakeHost(std::string_view language, RunDialogs& dialogs) {
    auto host = std::make_shared<test::MemoryHost>();
    company::Texts texts(company::LanguageOf(language), {});
    for (const auto number : std::initializer_list<std::int16_t>{1323, 1449, 5885, 7653, 9581})
        host->texts[number] = texts.Get(number);
    host->use_dialog = [&](Form& form) { dialogs.ShowModal(form); };
    return host;
}

OptionAnswers ReadAnswers(std::span<char*> arguments) {
    OptionAnswers answers;
    for (const char* argument : arguments) answers.push_back(ReadAnswer(argument));
    return answers;
}

int Show(std::span<char*> arguments) {
    RunDialogs dialogs;
    const auto host = MakeHost(arguments[1], dialogs);
    const auto options = MakeOptions(arguments[0], *host);
    const bool ask = std::string_view(arguments[2]) == "ask";
    ConfigureOptions(*options, dialogs, ReadAnswers(arguments.subspan(3)), ask);
    options->Print();
    std::printf("; %zu messages\n", host->message_boxes.size());
    return kDone;
}

}  // namespace
}  // namespace varnel::cli

int main(int argc, char** argv) {
    if (argc < 4) return varnel::cli::kUsage;
    varnel::cli::CatchSignals();
    try {
        return varnel::cli::Show(std::span(argv, static_cast<std::size_t>(argc)).subspan(1));
    } catch (const varnel::cli::Interrupted&) {
        return varnel::cli::kSignalBase + varnel::cli::StopSignal();
    } catch (const std::exception& error) {
        std::printf("%s\n", error.what());
        return varnel::cli::kUsage;
    }
}
