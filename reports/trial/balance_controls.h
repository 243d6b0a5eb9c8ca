#pragma once

#include <string>

#include "framework/known_sum.h"
#include "host/application.h"
#include "host/surface.h"

namespace varnel::reports {

/// A balance in print: its absolute value, and "DT" or "CT" beside it. Zero is "DT".
struct BalanceControls {
    Control& amount;
    Control& type;

    void Clear() const;
    /// Empty when it is not known. `scratch` is overwritten.
    void Show(Formats& formats, const framework::KnownSum& balance, std::string& scratch) const;
};

}  // namespace varnel::reports
