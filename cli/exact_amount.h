#pragma once

#include <string>

#include "cli/errors.h"
#include "host/currency.h"
#include "host/error.h"

namespace varnel::cli {

/// An amount as the user writes it. A UsageError for what is none, and for one with decimals that
/// would have to be rounded.
inline Currency ReadExactAmount(const std::string& text) try {
    const Currency amount = Currency::Parse(text);
    const auto point = text.find('.');
    if (point != std::string::npos && text.size() - point - 1 > Currency::kDecimals)
        throw UsageError("\"" + text + "\" has more than four decimals; round it first");
    return amount;
} catch (const Error& error) {
    throw UsageError(error.Description());
}

}  // namespace varnel::cli
