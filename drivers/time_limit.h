#pragma once

namespace varnel::drivers {

/// A query's time limit in seconds, 0 for none; error 5 when it is negative.
int CheckedTimeLimit(int seconds);

}  // namespace varnel::drivers
