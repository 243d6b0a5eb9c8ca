#include "framework/debit_credit.h"

#include "framework/cell_values.h"

namespace varnel::framework {

void PutSum(Formats& formats, Control& control, const KnownSum& sum, std::string& scratch) {
    control.Clear();
    if (sum.Known()) PutAmount(formats, control, sum.Value(), scratch);
}

void PutOnItsSide(Formats& formats, Control& debit, Control& credit, Currency amount,
                  std::string& scratch) {
    debit.Clear();
    credit.Clear();
    if (amount.IsZero()) return;
    PutAmount(formats, amount > Currency() ? debit : credit, amount.Abs(), scratch);
}

Currency Adjust(DebitCredit& totals) {
    const Currency missing = totals.credit.Value() - totals.debit.Value();
    totals.Add(missing);
    return missing;
}

}  // namespace varnel::framework
