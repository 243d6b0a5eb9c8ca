#pragma once

#include "host/layout.h"

namespace varnel::reports {

const Layout& UnrealizedExchangeDetailLayout();

}  // namespace varnel::reports
