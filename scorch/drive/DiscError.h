// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/ScorchError.h"
#include "scorch/drive/Drive.h"
#include "scorch/support/DiscContent.h"

#include <cstdint>
#include <optional>
#include <string>

namespace scorch {

/// Why the disc in a drive cannot be burned; nothing if it can. Any thread.
std::optional<ScorchError> discError(const std::string &driveName, const DriveState &state);

/// What is to be burned is not for one disc, or not for this one. Any thread.
ScorchError nothingToBurnError();
ScorchError tooManyTracksError(std::size_t tracks);
/// The disc is too small. Sectors; the text has playing times for sound and sizes for data.
ScorchError doesNotFitError(TrackKind kind, std::int64_t needed, std::int64_t free);

/// The drive writes another disc. Any thread.
ScorchError driveBusyError(const std::string &driveName);

/// A source that does not keep to its layout would put something else on the disc than was
/// announced: the positions of all that follows would be wrong. Any thread.
ScorchError wrongLengthError(const std::string &name);

} // namespace scorch
