#include "reports/exchange/realized_gain.h"

#include "host/decimal.h"

namespace varnel::reports {

namespace {

constexpr int kCents = 2;

Rate Difference(Rate rate, Rate less) {
    return Rate::FromScaled(
        decimal::Narrow(Int128{rate.Scaled()} - less.Scaled(), "The difference of two rates"));
}

/// Of money that was worth `before` when it was invoiced and `after` when it moved.
Currency PlainGain(CurrencyInfo& rounding, Currency amount, Rate before, Rate after) {
    return rounding.RoundProduct(amount, Difference(after, before), kCents);
}

Currency DiscountedGain(CurrencyInfo& rounding, const AppliedPayment& payment, Rate before,
                        Rate after) {
    const Currency now = rounding.RoundProduct(payment.Settled(), after, kCents);
    const Currency discount_then = rounding.RoundProduct(payment.discount, before, kCents);
    const Currency amount_then = rounding.RoundProduct(payment.amount, before, kCents);
    return rounding.Round(now - (discount_then + amount_then), kCents);
}

Currency Gain(CurrencyInfo& rounding, const AppliedPayment& payment, Rate before, Rate after) {
    return payment.discount.IsZero() ? PlainGain(rounding, payment.amount, before, after)
                                     : DiscountedGain(rounding, payment, before, after);
}

}  // namespace

// What a higher rate gains on money received, it loses on money paid: a cheque is a customer's
// payment with the two rates exchanged.
Currency RealizedGain(CurrencyInfo& rounding, const AppliedPayment& payment) {
    switch (payment.type) {
        case payment_type::kCustomerPayment:
            return Gain(rounding, payment, payment.invoice_rate, payment.payment_rate);
        case payment_type::kSupplierCheque:
            return Gain(rounding, payment, payment.payment_rate, payment.invoice_rate);
        case payment_type::kDeposit:
            return PlainGain(rounding, payment.amount, payment.invoice_rate, payment.payment_rate);
        default:
            return {};
    }
}

}  // namespace varnel::reports
