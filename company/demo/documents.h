#pragma once

#include "company/demo/books.h"
#include "host/date.h"

namespace varnel::company::demo {

/// The documents of the company. Each function writes one document of `date` and returns true, or
/// finds nothing to do (nothing due, nothing in the bank) and returns false.

bool MakeSale(Books& books, Date date);
bool MakePurchase(Books& books, Date date);
bool MakeCustomerPayment(Books& books, Date date);
bool MakeDeposit(Books& books, Date date);
bool MakeCheque(Books& books, Date date);
bool MakeTransfer(Books& books, Date date);
bool MakeBankCharge(Books& books, Date date);

// Journal entries.
bool MakePayroll(Books& books, Date date);
bool MakeCardStatement(Books& books, Date date);
bool MakeAccrual(Books& books, Date date);
bool MakeAmortization(Books& books, Date date);
bool MakePrepaidUse(Books& books, Date date);
bool MakeProvision(Books& books, Date date);
bool MakeLoanPayment(Books& books, Date date);
bool MakeSundryEntry(Books& books, Date date);
/// Entries that the calendar asks for.
void ReverseAccruals(Books& books, Date date);
bool RemitTaxes(Books& books, Date date);
bool RemitPayroll(Books& books, Date date);
bool ProvideForIncomeTaxes(Books& books, Date date);
bool PayIncomeTaxes(Books& books, Date date);
bool PayEndingContract(Books& books, Date date);
/// `wanted`, or as much of it as the bank account can spare.
bool PayDividend(Books& books, Date date, Currency wanted);

/// The balances that the company starts from, with the invoices that were unpaid then.
void OpenBooks(Books& books);

/// True when the Canadian account cannot wait for its next transfer.
bool IsShortOfCash(const Books& books);

}  // namespace varnel::company::demo
