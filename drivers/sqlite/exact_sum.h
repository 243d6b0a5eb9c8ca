#pragma once

struct sqlite3;

namespace varnel::drivers {

/// Replaces the aggregate sum() of a connection by an exact one, for amounts of up to four decimals
/// that are stored as binary numbers: each is taken as a whole number of ten-thousandths, and these
/// are added without rounding.
///
/// Over integers it gives an integer, over no values null, otherwise a real number. A sum too large
/// for a real number to carry its four decimals (they go from 5e11 on) is given as the decimal text
/// "1000000000000.0100", which `Row::Amount` reads exactly and SQL arithmetic takes as a number;
/// compared in SQL, such a text is different from every number and greater than all of them. What
/// is no amount is an error: other texts, binary data, more than 922 trillion in one value (the sum
/// may be more, though it is then too large for a `Currency`). avg() and total() stay SQLite's own.
/// Returns an SQLite result code.
int RegisterExactSum(sqlite3* database);

}  // namespace varnel::drivers
