#include "reports/bank/bank_concil_config.h"

namespace varnel::reports {

namespace {

using framework::DesignedOption;
using framework::Mark;
using framework::OptionsFormDesign;

constexpr DesignedOption kCheckBoxes[] = {
    {"chkIncludeReconciledAmnt", "Inclure les montants conciliés", 7653, {120, 120, 4080, 285}},
};

constexpr OptionsFormDesign kDesign{
    .name = "FBankConcilConfig",
    .caption = "Filtre avancé",
    .text = 1449,
    .inner_width = 4320,
    .inner_height = 960,
    .check_boxes = kCheckBoxes,
    .ok = {"cmdOk", "OK", 1323, {2985, 525, 1215, 375}},
};

constexpr Member<FBankConcilConfig> kMembers[] = {
    {"IncludeReconciledAmnt",
     [](FBankConcilConfig& form) { return Variant(form.IncludeReconciledAmnt()); },
     [](FBankConcilConfig& form, const Variant& value) {
         form.IncludeReconciledAmnt(value.ToBool());
     }},
    {"PrepareConfigDialog", nullptr, nullptr,
     [](FBankConcilConfig& form, std::span<const Variant> arguments) {
         form.PrepareConfigDialog(ObjectAs<Application>(ArgumentAt(arguments, 0)));
         return Variant();
     }},
};

}  // namespace

FBankConcilConfig::FBankConcilConfig() : OptionsForm(kDesign) {
    Members().Add<FBankConcilConfig>(*this, kMembers);
}

void FBankConcilConfig::IncludeReconciledAmnt(bool include) {
    Guard("IncludeReconciledAmnt", [&] {
        include_reconciled_ = include;
        chkIncludeReconciledAmnt.checked = include;
    });
}

void FBankConcilConfig::PrepareConfigDialog(std::shared_ptr<Application> application) {
    Guard("PrepareConfigDialog", [&] {
        SetApplication(std::move(application));
        TranslateForm();
    });
}

void FBankConcilConfig::cmdOk_Click() {
    Guard("cmdOk_Click", [&] {
        IncludeReconciledAmnt(chkIncludeReconciledAmnt.checked);
        Hide();
    });
}

bool AskIncludeReconciledAmount(Application& application, bool current) {
    const auto form = std::make_shared<FBankConcilConfig>();
    form->IncludeReconciledAmnt(current);
    form->PrepareConfigDialog(framework::Borrowed(application));
    Mark(), application.Dialogs().ShowModal(*form);
    return form->IncludeReconciledAmnt();
}

}  // namespace varnel::reports
