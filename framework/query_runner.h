#pragma once

#include <memory>
#include <span>
#include <string>

#include "host/application.h"

namespace varnel::framework {

/// One query of a report over the current company's database.
std::shared_ptr<Recordset> RunQuery(Application& application, const std::string& text,
                                    std::span<const Variant> parameters);

/// A yes-or-no setting of the company; off when it is not set.
bool ReadSwitch(Application& application, std::string_view setting);

}  // namespace varnel::framework
