#include "framework/ledger_balance_columns.h"

namespace varnel::framework {

void LedgerBalanceColumns::Resolve(const Columns& columns) {
    currency_id = columns.At("ExCurrencyId");
    booked_rate = columns.At("ExChangeRate");
    foreign = columns.At("AcctBalForeign");
    home = columns.At("AcctBalHome");
}

LedgerBalance LedgerBalanceColumns::Read(const Row& row) const {
    return {.currency_id = row.Integer(currency_id),
            .booked_rate = row.ExchangeRate(booked_rate),
            .foreign = row.Amount(foreign),
            .home = row.Amount(home)};
}

}  // namespace varnel::framework
