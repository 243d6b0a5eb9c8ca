#pragma once

#include <string>
#include <utility>
#include <vector>

#include "host/dialogs.h"

namespace varnel::company {

/// Answers dialogs without a person: sets check boxes as told and clicks OK.
class ScriptedDialogs final : public DialogService {
  public:
    /// Name of a check box ("chkShowZero"), or its caption without "&", and "True" or "False".
    /// Names ignore case; boxes without an answer stay as they are.
    using Answers = std::vector<std::pair<std::string, std::string>>;
    struct ShownBox {
        std::string name, caption;
        bool checked;  // When OK was clicked.
    };
    struct ShownDialog {
        std::string caption;
        std::vector<ShownBox> boxes;  // The visible ones.
    };

    explicit ScriptedDialogs(Answers answers = {}) : answers_(std::move(answers)) {}

    /// Clicks the button "cmdOk", or the first one. Raises error 5 naming dialog and check boxes
    /// for an answer that belongs to none of them, and when the dialog has no button or does not
    /// close.
    void ShowModal(Form& form) override;
    const std::vector<ShownDialog>& Shown() const { return shown_; }

  private:
    void Answer(Form& form);
    void Record(Form& form);

    Answers answers_;
    std::vector<ShownDialog> shown_;
};

}  // namespace varnel::company
