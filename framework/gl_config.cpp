#include "framework/gl_config.h"

namespace varnel::framework {

namespace {

constexpr DesignedOption kCheckBoxes[] = {
    {"chkIncludeZeroBalanceAccount",
     "Afficher les comptes dont le solde est à zero",
     5885,
     {120, 120, 6000, 285}},
    {"chkShowCommentsGLAccount",
     "Afficher les commentaires provenant du détail du journal général",
     9581,
     {120, 525, 6000, 285}},
};

constexpr OptionsFormDesign kDesign{
    .name = "frmGLConfig",
    .caption = "Filtre avancé",
    .text = 1449,
    .inner_width = 6240,
    .inner_height = 1365,
    .check_boxes = kCheckBoxes,
    .ok = {"cmdOk", "OK", 1323, {4905, 930, 1215, 375}},
};

constexpr Twips kBoxGap = 120;       // Goes with the box of option 2 when that is hidden.
constexpr Twips kBottomMargin = 60;  // Below OK.

constexpr std::int16_t kTrue = -1;

constexpr std::int16_t kIncludeZeroBalance = 1;
constexpr std::int16_t kShowComments = 2;

Variant CallProperties(frmGLConfig& form, std::span<const Variant> arguments) {
    const auto index = ArgumentAt(arguments, 0).ToInteger16();
    if (arguments.size() == 1) return form.Properties(index);
    form.Properties(index, arguments[1].ToInteger16() == kTrue);
    return {};
}

Variant CallShowProperty(frmGLConfig& form, std::span<const Variant> arguments) {
    const auto index = ArgumentAt(arguments, 0).ToInteger16();
    form.ShowProperty(index, ArgumentAt(arguments, 1).ToBool());
    return {};
}

Variant CallPrepare(frmGLConfig& form, std::span<const Variant> arguments) {
    auto application = ObjectAs<Application>(ArgumentAt(arguments, 0));
    form.PrepareInvConfigDialog(std::move(application), ArgumentAt(arguments, 1).ToInteger16());
    return {};
}

constexpr Member<frmGLConfig> kMembers[] = {
    {"Properties", nullptr, nullptr, CallProperties},
    {"ShowProperty", nullptr, nullptr, CallShowProperty},
    {"PrepareInvConfigDialog", nullptr, nullptr, CallPrepare},
};

}  // namespace

frmGLConfig::frmGLConfig() : OptionsForm(kDesign) {
    Members().Add<frmGLConfig>(*this, kMembers);
    Form_Load();
}

void frmGLConfig::Form_Load() {
    Guard("Form_Load", [&] {
        full_height_ = InnerHeight();
        chkShowCommentsGLAccount.visible = false;
        Resize();
    });
}

void frmGLConfig::Form_QueryUnload() {
    Guard("Form_QueryUnload", [&] { Hide(); });
}

void frmGLConfig::cmdOk_Click() {
    Guard("cmdOk_Click", [&] { Hide(); });
}

CheckBox* frmGLConfig::BoxOf(std::int16_t index) {
    if (index == kIncludeZeroBalance) return &chkIncludeZeroBalanceAccount;
    if (index == kShowComments) return &chkShowCommentsGLAccount;
    return nullptr;
}

bool frmGLConfig::Properties(std::int16_t index) {
    const auto* box = BoxOf(index);
    return box != nullptr && box->checked;
}

void frmGLConfig::Properties(std::int16_t index, bool value) {
    if (auto* box = BoxOf(index)) box->checked = value;
}

void frmGLConfig::ShowProperty(std::int16_t index, bool visible) {
    Guard("ShowProperty", [&] {
        if (auto* box = BoxOf(index)) box->visible = visible;
        Resize();
    });
}

void frmGLConfig::Resize() {
    Guard("Resize", [&] {
        const auto& comments = chkShowCommentsGLAccount;
        const Twips saved = comments.visible ? 0 : comments.box.height + kBoxGap;
        SetInnerHeight(full_height_ - saved);
        cmdOk.box.top = InnerHeight() - kBottomMargin - cmdOk.box.height;
    });
}

void frmGLConfig::PrepareInvConfigDialog(std::shared_ptr<Application> application, std::int16_t) {
    Guard("PrepareInvConfigDialog", [&] {
        SetApplication(std::move(application));
        TranslateForm();
    });
}

LedgerOptions AskLedgerOptions(Application& application, const LedgerOptions& current) {
    const auto form = std::make_shared<frmGLConfig>();
    form->Properties(kIncludeZeroBalance, current.include_zero_balances);
    form->Properties(kShowComments, current.show_comments);
    for (const auto option : {kIncludeZeroBalance, kShowComments}) form->ShowProperty(option, true);
    form->PrepareInvConfigDialog(Borrowed(application), kIncludeZeroBalance);
    Mark(), application.Dialogs().ShowModal(*form);
    return {form->Properties(kIncludeZeroBalance), form->Properties(kShowComments)};
}

bool AskIncludeZeroBalance(Application& application, bool current) {
    const auto form = std::make_shared<frmGLConfig>();
    form->Properties(kIncludeZeroBalance, current);
    form->ShowProperty(kIncludeZeroBalance, true);
    form->PrepareInvConfigDialog(Borrowed(application), kIncludeZeroBalance);
    Mark(), application.Dialogs().ShowModal(*form);
    return form->Properties(kIncludeZeroBalance);
}

}  // namespace varnel::framework
