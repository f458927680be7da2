// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/ScorchError.h"
#include "scorch/drive/Drive.h"

#include <optional>
#include <string>

namespace scorch {

/// Why the disc in a drive cannot be burned; nothing if it can. Any thread.
std::optional<ScorchError> discError(const std::string &driveName, const DriveState &state);

/// A source that does not keep to its layout would put something else on the disc than was
/// announced: the positions of all that follows would be wrong. Any thread.
ScorchError wrongLengthError(const std::string &name);

} // namespace scorch
