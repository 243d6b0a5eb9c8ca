#include "tests/support/memory_host.h"

namespace varnel::test {

std::string MemoryHost::GetText(std::int16_t number) {
    calls.Note("GetText");
    const auto found = texts.find(number);
    return found == texts.end() ? std::to_string(number) : found->second;
}

Date MemoryHost::SessionDate() {
    calls.Note("SessionDate");
    return session_date;
}

Context& MemoryHost::CurrentContext() {
    calls.Note("CurrentContext");
    return *this;
}

Formats& MemoryHost::GetFormats() {
    calls.Note("GetFormats");
    return formats;
}

// Not counted: an error must be able to reach the user.
MessageService& MemoryHost::Messages() { return *this; }

DialogService& MemoryHost::Dialogs() {
    calls.Note("Dialogs");
    return *this;
}

Company& MemoryHost::CurrentCompany() {
    calls.Note("CurrentCompany");
    return company;
}

CompanyDatabase& MemoryHost::Database() {
    calls.Note("Database");
    return database;
}

std::string MemoryHost::Message(std::int32_t number, std::string_view source,
                                std::span<const Variant> arguments) {
    calls.Note("Message");
    std::string text = std::to_string(number) + " " + std::string(source);
    for (const auto& argument : arguments)
        text += " (" + std::string(argument.TypeName()) + " " + argument.ToText() + ")";
    return text;
}

void MemoryHost::ShowMessageBox(const std::string& text) { message_boxes.push_back(text); }

void MemoryHost::ShowModal(Form& form) {
    calls.Note("ShowModal");
    use_dialog(form);
}

}  // namespace varnel::test
