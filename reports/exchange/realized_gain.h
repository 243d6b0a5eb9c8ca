#pragma once

#include <cstdint>

#include "host/currency_info.h"

namespace varnel::reports {

/// What a payment is, by the number that databases give it. Others realize nothing.
namespace payment_type {
inline constexpr std::int32_t kCustomerPayment = 1;
inline constexpr std::int32_t kSupplierCheque = 2;
inline constexpr std::int32_t kDeposit = 3;
}  // namespace payment_type

/// A payment as far as it was applied to one invoice. Amounts in the invoice's currency; the
/// discount was taken besides the amount paid.
struct AppliedPayment {
    std::int32_t type = 0;
    Currency amount;
    Currency discount;
    Rate invoice_rate;
    Rate payment_rate;

    Currency Settled() const { return amount + discount; }
};

/// The exchange gain in home currency that the payment realized, to the cent; a loss is negative.
/// Every product is exact and rounded once, by the host's rounding service. Error 6 for what does
/// not fit.
///
/// With a discount the three products are rounded one by one before they are combined, so that a
/// payment at the invoice's own rate may show a cent. Deposits gain as if they had none.
Currency RealizedGain(CurrencyInfo& rounding, const AppliedPayment& payment);

}  // namespace varnel::reports
