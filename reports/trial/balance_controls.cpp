#include "reports/trial/balance_controls.h"

#include "framework/cell_values.h"

namespace varnel::reports {

void BalanceControls::Clear() const {
    amount.Clear();
    type.Clear();
}

void BalanceControls::Show(Formats& formats, const framework::KnownSum& balance,
                           std::string& scratch) const {
    Clear();
    if (!balance.Known()) return;
    type.SetText(balance.Value() < Currency() ? "CT" : "DT");
    framework::PutAmount(formats, amount, balance.Value().Abs(), scratch);
}

}  // namespace varnel::reports
