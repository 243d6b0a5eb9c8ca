#include "reports/trial/debit_credit.h"

#include "framework/cell_values.h"

namespace varnel::reports {

void PutOnItsSide(Formats& formats, Control& debit, Control& credit, Currency amount,
                  std::string& scratch) {
    debit.Clear();
    credit.Clear();
    if (amount.IsZero()) return;
    framework::PutAmount(formats, amount > Currency() ? debit : credit, amount.Abs(), scratch);
}

void Adjust(Formats& formats, Control& debit, Control& credit, DebitCredit& totals,
            std::string& scratch) {
    const Currency missing = -totals.Difference();
    totals.Add(missing);
    PutOnItsSide(formats, debit, credit, missing, scratch);
}

}  // namespace varnel::reports
