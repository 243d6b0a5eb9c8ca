#include "reports/trial/account_sums.h"

namespace varnel::reports {

void AccountSums::BeginAccount() {
    account_ = {};
    balance_ = {};
}

void AccountSums::BringForward(Currency amount) {
    balance_.Add(amount);
    total_balance_.Add(amount);
}

void AccountSums::LoseForward() {
    balance_.Lose();
    total_balance_.Lose();
}

void AccountSums::Add(Currency line) {
    account_.Add(line);
    total_.Add(line);
    BringForward(line);
}

void AccountSums::Lose() {
    account_.Lose();
    total_.Lose();
    LoseForward();
}

Currency AccountSums::AdjustTotals() {
    const Currency missing = framework::Adjust(total_);
    total_balance_.Add(missing);
    return missing;
}

}  // namespace varnel::reports
