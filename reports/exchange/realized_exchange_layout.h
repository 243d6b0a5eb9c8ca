#pragma once

#include "host/layout.h"

namespace varnel::reports {

const Layout& RealizedExchangeLayout();

}  // namespace varnel::reports
