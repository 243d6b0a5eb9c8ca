#include "company/scripted_dialogs.h"

#include <algorithm>

#include "host/error.h"
#include "host/object.h"
#include "host/variant.h"

namespace varnel::company {

namespace {

std::string WithoutAccelerator(std::string caption) {
    caption.erase(std::remove(caption.begin(), caption.end(), '&'), caption.end());
    return caption;
}

[[noreturn]] void RaiseAbout(const Form& form, const std::string& fault) {
    throw Error(error_number::kInvalidArgument, "Dialogs",
                "The dialog \"" + WithoutAccelerator(form.Caption()) + "\" " + fault);
}

[[noreturn]] void RaiseNoBox(Form& form, const std::string& name) {
    std::string known;
    for (const auto* box : form.CheckBoxes())
        if (box->visible) known += (known.empty() ? "" : ", ") + std::string(box->name);
    RaiseAbout(form,
               "has no check box \"" + name + "\"; it has " + (known.empty() ? "none" : known));
}

CheckBox& FindBox(Form& form, const std::string& name) {
    for (auto* box : form.CheckBoxes()) {
        const bool named =
            SameName(box->name, name) || SameName(WithoutAccelerator(box->caption), name);
        if (box->visible && named) return *box;
    }
    RaiseNoBox(form, name);
}

Button& OkButton(Form& form) {
    const auto buttons = form.Buttons();
    if (buttons.empty()) RaiseAbout(form, "has no button");
    for (auto* button : buttons)
        if (SameName(button->name, "cmdOk")) return *button;
    return *buttons.front();
}

}  // namespace

void ScriptedDialogs::Answer(Form& form) {
    for (const auto& [name, value] : answers_)
        FindBox(form, name).checked = Variant(value).ToBool();
}

void ScriptedDialogs::Record(Form& form) {
    ShownDialog& dialog = shown_.emplace_back();
    dialog.caption = form.Caption();
    for (const auto* box : form.CheckBoxes())
        if (box->visible)
            dialog.boxes.push_back({std::string(box->name), box->caption, box->checked});
}

void ScriptedDialogs::ShowModal(Form& form) {
    Answer(form);
    Record(form);
    form.Click(OkButton(form));
    if (form.Shown()) RaiseAbout(form, "does not close when OK is clicked");
}

}  // namespace varnel::company
