#pragma once

#include "host/dialogs.h"

namespace varnel::cli {

/// Shows dialogs on the terminal that the program was started from; its standard streams may go
/// elsewhere. A UsageError when there is no terminal, Interrupted after a signal; the terminal is
/// put back in any case.
class TerminalDialogs final : public DialogService {
  public:
    void ShowModal(Form& form) override;
};

}  // namespace varnel::cli
