#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/application.h"
#include "host/currency_info.h"
#include "host/row.h"
#include "host/surface.h"

namespace varnel::framework {

// What stands in a control, as text and as value in one. `scratch` is overwritten; it saves
// allocations from row to row.

/// In the user's short date format.
void PutDate(Formats& formats, Control& control, Date date, std::string& scratch);

/// In the general currency format.
void PutAmount(Formats& formats, Control& control, Currency amount, std::string& scratch);

/// In the format of its own currency.
void PutAmountIn(CurrencyInfo& info, Control& control, Currency amount, std::int32_t currency_id,
                 std::string& scratch);

/// The drill-down key of the document that posted a row: its source and its key there, "GJ|1043".
void ReadDocumentKey(const Row& row, Column source, Column key, std::string& out);

/// "1060 - Bank, US dollars"; without number or description the other one alone.
std::string AccountCaption(std::string number, std::string_view description);
/// The same from a row, its number only when that is wanted.
void ReadAccountCaption(const Row& row, Column number, Column description, bool with_number,
                        std::string& out);

/// A whole number as it stands in the row; empty when it is null. `scratch` is overwritten.
void PutNumber(Control& control, const Row& row, Column column, std::string& scratch);

}  // namespace varnel::framework
