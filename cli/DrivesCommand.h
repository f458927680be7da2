// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/CommandLine.h"
#include "cli/ExitCode.h"
#include "cli/Output.h"

namespace cli {

/// Prints a line for each drive. Waits for the engine's first search. Main thread.
ExitCode runDrivesCommand(const DrivesRequest &request, Output &output, Output &errors);

} // namespace cli
