#pragma once

#include <string_view>

#include "cli/dialogs/dialog_layout.h"

namespace varnel::cli {

/// What keys do in a dialog.
enum class DialogKey {
    kNext,
    kPrevious,
    kSpace,  // Turns a check box over, presses a button.
    kEnter,  // Presses the button that has the focus, else OK.
    kClose,  // The window's close box.
};

/// A form while a person works in it: where it stands, which item has the focus, and what keys and
/// the mouse do. It knows no terminal.
class DialogModel {
  public:
    DialogModel(Form& form, ScreenSize screen);

    const DialogLayout& Layout() const { return layout_; }
    std::size_t Focus() const { return focus_; }
    bool Done() const { return !form_.Shown(); }

    void Resize(ScreenSize screen);
    void Press(DialogKey key);
    /// A character, alone or with Alt: turns over or presses the item whose accelerator it is, in
    /// either case.
    void PressCharacter(std::string_view utf8);
    void ClickAt(int row, int column);

  private:
    void LayOut();
    void Move(std::size_t steps);
    void Activate(std::size_t item);
    void PressDefault();

    Form& form_;
    ScreenSize screen_;
    std::size_t focus_ = 0;
    DialogLayout layout_;
};

}  // namespace varnel::cli
