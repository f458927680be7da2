// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/ScorchError.h"
#include "scorch/mmc/MmcError.h"
#include "scorch/mmc/Sense.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace scorch {

/// What went wrong with a drive, in words for a person: what happened, and what can be done. Any
/// thread. The detail of each error names the sense triple or what the system said.

/// Which drive, and what of it, the words are about.
struct DriveErrorContext {
    std::string driveName;              ///< As the user sees it.
    std::filesystem::path node;         ///< For the owner's group and for who holds the drive.
    std::optional<std::int64_t> sector; ///< LBA where writing failed, if that is known.
};

/// From a command that failed, or from a device that could not be opened. Asks the system for the
/// group of the device node (no permission) and for the program that holds the drive (busy).
/// Blocks for as long as that takes.
ScorchError driveError(const MmcError &error, const DriveErrorContext &context);

/// The same for an ejection: the kernel keeps the drive's sense data to itself then, and says EIO.
ScorchError ejectError(const MmcError &error, const DriveErrorContext &context);

/// From what a drive said about a command that was sent by somebody else; `detail` is their
/// message, and may be empty. The sense triple is put in front of it.
ScorchError senseError(const Sense &sense, const DriveErrorContext &context,
                       const std::string &detail = {});

} // namespace scorch
