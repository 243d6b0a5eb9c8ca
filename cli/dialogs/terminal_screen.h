#pragma once

#include <memory>

#include "cli/dialogs/dialog_model.h"

namespace varnel::cli {

/// The terminal that the program was started from, whatever its standard streams are, as a screen.
/// While it lives the terminal shows that screen; then it is as it was.
class TerminalScreen {
  public:
    /// Raises a UsageError when there is no terminal, or one of a kind that is not known.
    TerminalScreen();
    ~TerminalScreen();
    TerminalScreen(const TerminalScreen&) = delete;
    TerminalScreen& operator=(const TerminalScreen&) = delete;

    ScreenSize Size() const;
    void Draw(const DialogModel& dialog);
    /// Waits a moment for a key, the mouse or a new size of the terminal and passes it on. Throws
    /// Interrupted after a signal, a Failure when the terminal is gone.
    void PassInput(DialogModel& dialog);

  private:
    struct Terminal;
    std::unique_ptr<Terminal> terminal_;
};

}  // namespace varnel::cli
