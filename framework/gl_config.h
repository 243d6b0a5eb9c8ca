#pragma once

#include "framework/options_form.h"

namespace varnel::framework {

/// The options dialog of trial balances and statements: two numbered options, of which a report
/// shows those it has. It stands here because more than one family of reports opens it.
///
/// 1: include accounts with a zero balance; 2: show the comments of the journal detail, hidden
/// until `ShowProperty` shows it.
class frmGLConfig final : public OptionsForm {
  public:
    frmGLConfig();

    /// Whether the box of that option is checked; false for another index. Late-bound a call of
    /// "Properties" with one argument.
    bool Properties(std::int16_t index);
    /// Nothing for another index. Late-bound the call takes the value as a second argument: True
    /// (-1) checks the box, any other value unchecks it.
    void Properties(std::int16_t index, bool value);
    /// Shows or hides the box of that option and fits the form to it.
    void ShowProperty(std::int16_t index, bool visible);
    /// Keeps the application and translates the form. The dialog makes no use of the index.
    void PrepareInvConfigDialog(std::shared_ptr<Application> application, std::int16_t index);

    void cmdOk_Click() override;
    /// The close is cancelled and the form hidden: as OK, it keeps the choices.
    void CloseBox() override { Form_QueryUnload(); }

  private:
    void Form_Load();
    void Form_QueryUnload();
    void Resize();
    /// Null when there is no such option.
    CheckBox* BoxOf(std::int16_t index);

    CheckBox& chkIncludeZeroBalanceAccount = BoxAt(0);
    CheckBox& chkShowCommentsGLAccount = BoxAt(1);
    Twips full_height_ = 0;
};

/// What the general ledger by account asks for.
struct LedgerOptions {
    bool include_zero_balances = false;
    bool show_comments = false;
};

/// Asks the user for both options and returns the answer; `current` is what the dialog opens with.
/// A failure of the host's dialog service passes through.
LedgerOptions AskLedgerOptions(Application& application, const LedgerOptions& current);

/// Asks the user whether to include accounts with a zero balance and returns the answer; `current`
/// is what the dialog opens with. A failure of the host's dialog service passes through.
bool AskIncludeZeroBalance(Application& application, bool current);

}  // namespace varnel::framework
