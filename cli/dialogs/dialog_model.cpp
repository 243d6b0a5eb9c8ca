#include "cli/dialogs/dialog_model.h"

#include <algorithm>

#include "host/object.h"

namespace varnel::cli {

DialogModel::DialogModel(Form& form, ScreenSize screen) : form_(form), screen_(screen) { LayOut(); }

/// After every event: it may have changed what the form shows.
void DialogModel::LayOut() {
    layout_ = LayOutDialog(form_, screen_, focus_);
    if (focus_ < layout_.items.size()) return;
    focus_ = 0;
    layout_ = LayOutDialog(form_, screen_, focus_);
}

void DialogModel::Resize(ScreenSize screen) {
    screen_ = screen;
    LayOut();
}

void DialogModel::Move(std::size_t steps) {
    if (!layout_.items.empty()) focus_ = (focus_ + steps) % layout_.items.size();
}

void DialogModel::Activate(std::size_t index) {
    if (index >= layout_.items.size()) return;
    focus_ = index;
    const auto& item = layout_.items[index];
    if (item.box != nullptr)
        item.box->checked = !item.box->checked;
    else
        form_.Click(*item.button);
}

void DialogModel::PressDefault() {
    const auto buttons = form_.Buttons();
    const auto ok = std::ranges::find_if(
        buttons, [](const Button* button) { return SameName(button->name, "cmdOk"); });
    if (ok != buttons.end())
        form_.Click(**ok);
    else if (!buttons.empty())
        form_.Click(*buttons.front());
}

void DialogModel::Press(DialogKey key) {
    const bool on_button = focus_ < layout_.items.size() && layout_.items[focus_].button != nullptr;
    switch (key) {
        case DialogKey::kNext:
            Move(1);
            break;
        case DialogKey::kPrevious:
            Move(layout_.items.size() - 1);
            break;
        case DialogKey::kSpace:
            Activate(focus_);
            break;
        case DialogKey::kEnter:
            on_button ? Activate(focus_) : PressDefault();
            break;
        case DialogKey::kClose:
            form_.CloseBox();
            break;
    }
    LayOut();
}

void DialogModel::PressCharacter(std::string_view utf8) {
    if (utf8.empty()) return;
    const auto item = std::ranges::find_if(layout_.items, [&](const PlacedItem& one) {
        return SameName(one.caption.accelerator, utf8);
    });
    if (item == layout_.items.end()) return;
    Activate(static_cast<std::size_t>(item - layout_.items.begin()));
    LayOut();
}

void DialogModel::ClickAt(int row, int column) {
    if (layout_.close_mark.Contains(row, column)) return Press(DialogKey::kClose);
    for (std::size_t i = 0; i < layout_.items.size(); ++i) {
        if (!layout_.items[i].area.Contains(row, column)) continue;
        Activate(i);
        return LayOut();
    }
}

}  // namespace varnel::cli
