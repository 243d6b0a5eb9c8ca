#pragma once

#include <string>
#include <string_view>

#include "host/rate.h"

namespace varnel::company {

/// An exchange rate that the user gives instead of the company's table.
struct GivenRate {
    std::string currency_code;
    Rate rate;
};

/// Reads "USD=1.3725": code, then "=", ";" or a blank, then home-currency units per unit with a
/// decimal point. Error 5 that names the text for anything else, and for a rate that is not
/// positive.
GivenRate ParseGivenRate(std::string_view text);

}  // namespace varnel::company
