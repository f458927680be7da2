// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/ScorchError.h"
#include "scorch/drive/DiscError.h"
#include "scorch/libburn/LibburnMessage.h"
#include "scorch/libburn/SessionPlan.h"
#include "scorch/mmc/DriveErrors.h"
#include "scorch/mmc/MediumState.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace scorch {

/// Why a recording on an optical drive did not succeed, in words for a person. Any thread.

/// What keeps this content from being burned on this disc; nothing if it can be.
std::optional<ScorchError> refusalOf(const MediumState &medium, const SessionPlan &plan,
                                     const std::string &driveName);

/// From what libburn said: the drive is gone, it does not answer, or the sense of the command that
/// failed. May ask the system who holds the drive.
ScorchError writingError(const std::vector<LibburnMessage> &messages, DriveErrorContext context);

/// The same; where libburn gave no such reason the drive itself is asked, which blocks until it
/// answers.
ScorchError recordingError(const std::vector<LibburnMessage> &messages,
                           const DriveErrorContext &context);

/// The disc was written, and something about it is not as it was meant. `detail` for the log.
ScorchError wrongDiscError(const std::string &driveName, const std::string &detail);

/// The disc is complete, and it is not the disc that keeps it from being read back.
ScorchError unverifiedError(const std::string &driveName, const std::string &detail);

/// A recorded sector cannot be read. `name` is that of the song or file there; empty for what
/// stands before the files of an image.
ScorchError readBackError(TrackKind kind, std::size_t track, const std::string &name,
                          const std::string &detail);

} // namespace scorch
