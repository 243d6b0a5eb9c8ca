#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "company/schema/schema_tables.h"

namespace varnel::company {

/// A query of one row of whole numbers that tells whether two tables hold the same, whichever
/// databases they are in: the number of rows; then of each column the number of values that are not
/// null and what they come to, exactly. Of an amount these are the sums of its debits and of its
/// credits in ten-thousandths, of a rate the sum in hundred-millionths, of a text the characters,
/// of a date its digits as a number.
std::string ControlQuery(const SchemaTable& table);

/// What each number of that row is about: an index of `table.columns` and, for amounts, its side.
struct ControlFigure {
    enum class Kind { kRows, kValues, kDebits, kCredits, kOther };
    Kind kind;
    std::size_t column;  ///< Nothing for kRows.
};
std::vector<ControlFigure> ControlFigures(const SchemaTable& table);

/// The numbers themselves.
using ControlRow = std::vector<std::int64_t>;

}  // namespace varnel::company
