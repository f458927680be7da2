// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/ScorchError.h"
#include "scorch/drive/DiscError.h"
#include "scorch/support/DiscContent.h"

#include <cstdint>
#include <filesystem>
#include <string>

namespace scorch {

/// The errors of a burn that are not the disc's (see DiscError.h), each with a text that says what
/// happened, to what, and what can be done. Any thread.

ScorchError noDriveError(const std::string &name);
ScorchError burnerCheckingError();
ScorchError burnerBurningError();
ScorchError finishedBeforeStopError();
ScorchError internalError(const std::string &detail);

/// A song that is gone or cannot be opened, from what the system answered (an errno value).
ScorchError sourceError(const std::filesystem::path &path, int error);

/// What was read back is not what was sent. `name` is what a person calls the thing at that place;
/// empty for the parts of a data disc between files.
ScorchError differenceError(TrackKind kind, std::size_t track, std::int64_t sector,
                            const std::string &name);

} // namespace scorch
