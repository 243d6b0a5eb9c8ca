#include "framework/designed_report.h"

#include "framework/texts.h"

namespace varnel::framework {

Variant DesignedReport::Get(std::string_view name) {
    Variant value;
    if (members_.Get(name, value)) return value;
    Control* control = surface_.Find(name);
    if (control == nullptr) RaiseUnknownMember(ObjectName(), name);
    // Shares the report's count: the control lives as long as somebody holds it.
    return ObjectRef(shared_from_this(), control);
}

void DesignedReport::Put(std::string_view name, const Variant& value) {
    if (!members_.Put(name, value)) RaiseUnknownMember(ObjectName(), name);
}

Variant DesignedReport::Call(std::string_view name, std::span<const Variant> arguments) {
    Variant result;
    if (!members_.Call(name, arguments, result)) RaiseUnknownMember(ObjectName(), name);
    return result;
}

void DesignedReport::ActiveReport_Initialize() {
    Guard("ActiveReport_Initialize", [&] {
        for (auto& section : surface_.Sections())
            for (auto& control : section.Controls()) {
                const auto number = control.Design().caption;
                if (number != 0) Mark(), control.SetText(PlainText(App(), number));
            }
    });
}

Application& DesignedReport::App() {
    if (application_ == nullptr)
        Raise(error_number::kObjectNotSet, std::string(ObjectName()),
              "The report has no application: set IReport_Application before running it");
    return *application_;
}

}  // namespace varnel::framework
