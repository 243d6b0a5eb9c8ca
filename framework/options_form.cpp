#include "framework/options_form.h"

#include "host/error.h"

namespace varnel::framework {

namespace {

constexpr Member<OptionsForm> kMembers[] = {
    {"TranslateForm", nullptr, nullptr,
     [](OptionsForm& form, std::span<const Variant>) { return form.TranslateForm(), Variant(); }},
    {"cmdOk_Click", nullptr, nullptr,
     [](OptionsForm& form, std::span<const Variant>) { return form.cmdOk_Click(), Variant(); }},
};

}  // namespace

OptionsForm::OptionsForm(const OptionsFormDesign& design)
    : cmdOk{design.ok.name, std::string(design.ok.caption), design.ok.box},
      design_(design),
      caption_(design.caption),
      inner_height_(design.inner_height) {
    members_.Add<OptionsForm>(*this, kMembers);
    for (const auto& option : design.check_boxes)
        check_boxes_.push_back(
            {.name = option.name, .caption = std::string(option.caption), .box = option.box});
}

Variant OptionsForm::Get(std::string_view name) {
    Variant value;
    if (!members_.Get(name, value)) RaiseUnknownMember(ObjectName(), name);
    return value;
}

void OptionsForm::Put(std::string_view name, const Variant& value) {
    if (!members_.Put(name, value)) RaiseUnknownMember(ObjectName(), name);
}

Variant OptionsForm::Call(std::string_view name, std::span<const Variant> arguments) {
    Variant result;
    if (!members_.Call(name, arguments, result)) RaiseUnknownMember(ObjectName(), name);
    return result;
}

std::vector<CheckBox*> OptionsForm::CheckBoxes() {
    std::vector<CheckBox*> boxes;
    for (auto& box : check_boxes_) boxes.push_back(&box);
    return boxes;
}

void OptionsForm::Click(Button& button) {
    if (&button == &cmdOk) cmdOk_Click();
}

Application& OptionsForm::App() {
    if (application_ == nullptr)
        Raise(error_number::kObjectNotSet, std::string(ObjectName()),
              "The dialog has no application to translate its captions: prepare it first");
    return *application_;
}

void OptionsForm::TranslateForm() {
    Guard("TranslateForm", [&] {
        Mark(), cmdOk.caption = App().GetText(design_.ok.text);
        Mark(), caption_ = App().GetText(design_.text);
        for (std::size_t i = 0; i < check_boxes_.size(); ++i)
            Mark(), check_boxes_[i].caption = App().GetText(design_.check_boxes[i].text);
    });
}

}  // namespace varnel::framework
