#include "company/services/given_rates.h"

#include "host/error.h"

namespace varnel::company {

namespace {

constexpr std::string_view kBlanks = " \t\r";

std::string_view Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

[[noreturn]] void Refuse(std::string_view text) {
    throw Error(error_number::kInvalidArgument, "ExchangeRates",
                "\"" + std::string(text) + "\" is no exchange rate; write it as USD=1.3725");
}

Rate ParsePositive(std::string_view number, std::string_view text) {
    Rate rate;
    try {
        rate = Rate::Parse(number);
    } catch (const Error&) {
        Refuse(text);
    }
    if (rate <= Rate()) Refuse(text);
    return rate;
}

}  // namespace

GivenRate ParseGivenRate(std::string_view text) {
    const std::string_view line = Trimmed(text);
    const auto end_of_code = line.find_first_of("=; \t");
    if (end_of_code == std::string_view::npos || end_of_code == 0) Refuse(text);
    std::string_view number = Trimmed(line.substr(end_of_code));
    if (number.starts_with('=') || number.starts_with(';')) number = Trimmed(number.substr(1));
    return {std::string(line.substr(0, end_of_code)), ParsePositive(number, text)};
}

}  // namespace varnel::company
