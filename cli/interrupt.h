#pragma once

#include <string>

namespace varnel::cli {

/// From now on SIGINT, SIGTERM and SIGHUP ask the running work to stop. A second one ends the
/// program at once, without its unfinished file. A write beyond the limit on file sizes fails
/// instead of ending the program.
void CatchSignals();

/// The signal that asked to stop; 0 when none did.
int StopSignal();

/// Throws Interrupted when a signal asked to stop.
void ThrowIfInterrupted();

/// The file that a second signal removes; empty for none.
void SetUnfinishedFile(const std::string& path);

}  // namespace varnel::cli
