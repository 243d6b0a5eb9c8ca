#pragma once

#include "host/layout.h"

namespace varnel::reports {

const Layout& UnrealizedExchangeLayout();

}  // namespace varnel::reports
