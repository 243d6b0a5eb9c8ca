#pragma once

#include "cli/commands/command.h"
#include "cli/run_options.h"
#include "cli/run_request.h"

namespace varnel::cli {

/// Makes an option of `varnel run` one of `app`, which puts its value into `request`.
void AddRunOption(CLI::App& app, const RunOption& option, RunRequest& request);

}  // namespace varnel::cli
