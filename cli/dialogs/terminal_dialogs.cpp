#include "cli/dialogs/terminal_dialogs.h"

#include "cli/dialogs/dialog_model.h"
#include "cli/dialogs/terminal_screen.h"

namespace varnel::cli {

void TerminalDialogs::ShowModal(Form& form) {
    TerminalScreen screen;
    DialogModel dialog(form, screen.Size());
    while (!dialog.Done()) {
        screen.Draw(dialog);
        screen.PassInput(dialog);
    }
}

}  // namespace varnel::cli
