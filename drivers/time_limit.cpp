#include "drivers/time_limit.h"

#include <string>

#include "host/error.h"

namespace varnel::drivers {

int CheckedTimeLimit(int seconds) {
    if (seconds < 0)
        throw Error(error_number::kInvalidArgument, "Command",
                    "A time limit of " + std::to_string(seconds) + " seconds; 0 is no limit");
    return seconds;
}

}  // namespace varnel::drivers
