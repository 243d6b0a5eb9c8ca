#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/layout.h"

namespace varnel {

/// A check box of a dialog. Geometry in twips, relative to the form's inner area.
struct CheckBox {
    std::string_view name;
    std::string caption;  // "&" marks the accelerator.
    bool checked = false;
    bool visible = true;
    Box box;
};

struct Button {
    std::string_view name;
    std::string caption;
    Box box;
};

/// A modal dialog as the host shows it. The host moves the user's choices into the boxes and raises
/// the events.
class Form {
  public:
    virtual ~Form() = default;
    virtual std::string Caption() const = 0;
    /// Of the inner area, in twips.
    virtual Twips InnerWidth() const = 0;
    virtual Twips InnerHeight() const = 0;
    virtual std::vector<CheckBox*> CheckBoxes() = 0;
    virtual std::vector<Button*> Buttons() = 0;
    virtual bool Shown() const = 0;
    virtual void Click(Button& button) = 0;
    /// The user closes the window by its close box.
    virtual void CloseBox() = 0;
};

class DialogService {
  public:
    virtual ~DialogService() = default;
    /// Returns when the form is no longer shown.
    virtual void ShowModal(Form& form) = 0;
};

}  // namespace varnel
