#pragma once

#include <functional>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "host/application.h"
#include "tests/support/host_calls.h"
#include "tests/support/memory_company.h"
#include "tests/support/memory_database.h"
#include "tests/support/memory_formats.h"

namespace varnel::test {

/// A host application without files, for tests. Fill what the test needs, run, look at what was
/// recorded; everything else has a harmless default.
///
///     auto host = std::make_shared<MemoryHost>();
///     host->texts[2656] = "Debit";                       // A text that is not set is its number.
///     host->company.settings["UseAccountNumbers"] = "True";
///     host->database.Answer("FROM GLDet", {{"SeqNo", "DetAmnt"}, {{1, Currency::FromWhole(5)}}});
///     ... run a report with host ...
///     host->database.Commands()[0]->text                 // What it asked.
///     host->message_boxes                                // What it told the user.
///
/// `calls` counts what the host is asked and makes one call fail.
class MemoryHost : public Application, public Context, public MessageService, public DialogService {
  public:
    HostCalls calls;
    std::map<std::int16_t, std::string> texts;
    Date session_date = Date::FromYearMonthDay(2025, 6, 30);
    MemoryFormats formats{calls};
    MemoryDatabase database{calls};
    MemoryCompany company{calls, database, formats};
    /// Texts of the message boxes shown so far.
    std::vector<std::string> message_boxes;
    /// What the user does in a dialog; by default it is closed by its close box.
    std::function<void(Form& form)> use_dialog = [](Form& form) { form.CloseBox(); };

    std::string GetText(std::int16_t number) override;
    Date SessionDate() override;
    Context& CurrentContext() override;
    Formats& GetFormats() override;
    MessageService& Messages() override;
    DialogService& Dialogs() override;
    Company& CurrentCompany() override;
    CompanyDatabase& Database() override;

    /// "12802 Orvotech (date 2025-01-01)": number, source and arguments.
    std::string Message(std::int32_t number, std::string_view source,
                        std::span<const Variant> arguments) override;
    void ShowMessageBox(const std::string& text) override;
    void ShowModal(Form& form) override;
};

}  // namespace varnel::test
