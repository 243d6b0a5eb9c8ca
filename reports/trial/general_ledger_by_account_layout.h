#pragma once

#include "host/layout.h"

namespace varnel::reports {

const Layout& GeneralLedgerByAccountLayout();

/// Of the page footer without its note: the line that is carried forward.
inline constexpr Twips kCarriedHeight = 260;

}  // namespace varnel::reports
