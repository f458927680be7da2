// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/drive/Drive.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <stop_token>
#include <string>

namespace scorch {

/// The drive for one recording.
struct RecordingTarget {
    std::string driveName; ///< As the user sees it.
    std::filesystem::path node;
};

/// Takes the drive exclusively and prepares one recording. Blocks. See Drive::beginRecording for
/// what it checks; destroying the recording brings the drive to rest and gives it free, unlocked.
/// Given to the drives by whoever puts the engine together, so that finding and watching drives
/// needs no library for burning.
using OpticalRecordingFactory = std::function<Outcome<std::unique_ptr<DiscRecording>>(
    const RecordingTarget &target, const DiscContent &content, const std::stop_token &stop)>;

} // namespace scorch
