// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/ScorchError.h"
#include "scorch/drive/Drive.h"

#include <optional>
#include <string>

namespace scorch {

/// Why the disc in a drive cannot be burned; nothing if it can. Any thread.
std::optional<ScorchError> discError(const std::string &driveName, const DriveState &state);

} // namespace scorch
