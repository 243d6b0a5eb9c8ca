#pragma once

#include "host/application.h"

namespace varnel::reports {

struct Period {
    Date from;
    Date to;
};

/// The same days a year earlier, 29 February being 1 March, cut to the fiscal years that the
/// company has there: not before the first nor after the last of those that the days touch. Open
/// limits go back by a year like any other.
Period PeriodOfLastYear(Application& application, const Period& period);

}  // namespace varnel::reports
