#pragma once

#include "framework/options_form.h"

namespace varnel::reports {

/// The options dialog of the bank reconciliation: whether the report also lists the items that were
/// reconciled in the selected reconciliation.
class FBankConcilConfig final : public framework::OptionsForm {
  public:
    FBankConcilConfig();

    bool IncludeReconciledAmnt() const { return include_reconciled_; }
    void IncludeReconciledAmnt(bool include);
    /// Keeps the application and translates the form.
    void PrepareConfigDialog(std::shared_ptr<Application> application);

    /// Takes the user's choice over.
    void cmdOk_Click() override;
    /// Leaves the value that was set.
    void CloseBox() override { Hide(); }

  private:
    CheckBox& chkIncludeReconciledAmnt = BoxAt(0);
    bool include_reconciled_ = false;
};

/// Asks the user and returns the answer; `current` is what the dialog opens with, and the answer
/// when it is closed by its close box. A failure of the host's dialog service passes through.
bool AskIncludeReconciledAmount(Application& application, bool current);

}  // namespace varnel::reports
