#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "framework/procedure.h"
#include "host/application.h"
#include "host/dialogs.h"
#include "host/member_table.h"

namespace varnel::framework {

/// A control of an options form as it is designed: its built-in caption, and the number of the
/// translated text that replaces it.
struct DesignedOption {
    std::string_view name;
    std::string_view caption;
    std::int16_t text = 0;
    Box box;
};

struct OptionsFormDesign {
    std::string_view name;
    std::string_view caption;
    std::int16_t text = 0;
    Twips inner_width = 0;
    Twips inner_height = 0;
    std::span<const DesignedOption> check_boxes;
    DesignedOption ok;
};

/// What the options dialogs of reports share: check boxes and an OK button on a form whose captions
/// the host translates. Late-bound it has `TranslateForm`, `cmdOk_Click` and the members that the
/// dialog adds. Procedures run in form A under the dialog's name.
///
/// It is shown from the start, for one modal display: make a new one for the next.
class OptionsForm : public Object, public Form {
  public:
    /// What `design` refers to must live as long as the form.
    explicit OptionsForm(const OptionsFormDesign& design);

    std::string_view ObjectName() const override { return design_.name; }
    Variant Get(std::string_view name) override;
    void Put(std::string_view name, const Variant& value) override;
    Variant Call(std::string_view name, std::span<const Variant> arguments) override;

    std::string Caption() const override { return caption_; }
    Twips InnerWidth() const override { return design_.inner_width; }
    Twips InnerHeight() const override { return inner_height_; }
    std::vector<CheckBox*> CheckBoxes() override;
    std::vector<Button*> Buttons() override { return {&cmdOk}; }
    bool Shown() const override { return shown_; }
    void Click(Button& button) override;

    /// Takes the captions from the host's texts.
    void TranslateForm();
    virtual void cmdOk_Click() = 0;

  protected:
    MemberParts& Members() { return members_; }

    void SetApplication(std::shared_ptr<Application> application) {
        application_ = std::move(application);
    }
    void Hide() { shown_ = false; }
    void SetInnerHeight(Twips height) { inner_height_ = height; }
    CheckBox& BoxAt(std::size_t index) { return check_boxes_.at(index); }

    template <class Body>
    void Guard(std::string_view procedure, Body&& body,
               std::uint_least32_t line = __builtin_LINE()) {
        GuardFormA(application_.get(), ObjectName(), procedure, body, line);
    }

    Button cmdOk;

  private:
    Application& App();

    const OptionsFormDesign& design_;
    MemberParts members_;
    std::shared_ptr<Application> application_;
    std::string caption_;
    Twips inner_height_;
    std::vector<CheckBox> check_boxes_;
    bool shown_ = true;
};

/// A reference for a form that goes before the application does.
inline std::shared_ptr<Application> Borrowed(Application& application) {
    return {std::shared_ptr<void>(), &application};
}

}  // namespace varnel::framework
