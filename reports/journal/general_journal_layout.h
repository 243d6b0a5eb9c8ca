#pragma once

#include "host/layout.h"

namespace varnel::reports {

const Layout& GeneralJournalLayout();

}  // namespace varnel::reports
