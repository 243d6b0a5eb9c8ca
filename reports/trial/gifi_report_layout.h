#pragma once

#include "host/layout.h"

namespace varnel::reports {

const Layout& GifiReportLayout();

}  // namespace varnel::reports
