#pragma once

namespace varnel::cli {

/// Whether the program was started from a terminal that can place its cursor.
bool TerminalShowsDialogs();

}  // namespace varnel::cli
