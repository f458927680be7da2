// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/CommandLine.h"
#include "cli/ExitCode.h"
#include "cli/Output.h"

#include <chrono>

namespace cli {

/// Prints a line for each drive. Waits for the engine's first search, and for at most `patience`
/// until the drives have examined their discs. Main thread.
ExitCode runDrivesCommand(const DrivesRequest &request, Output &output, Output &errors,
                          std::chrono::milliseconds patience = std::chrono::seconds(30));

} // namespace cli
