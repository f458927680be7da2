// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/ScorchError.h"
#include "scorch/drive/Drive.h"
#include "scorch/mmc/MediumState.h"
#include "scorch/mmc/MmcCommands.h"
#include "scorch/mmc/MmcDevice.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <stop_token>
#include <string>

namespace scorch {

/// Opens a drive; MmcDevice::open, or a test's own.
using OpenDrive = std::function<Result<MmcDevice, MmcError>(const std::filesystem::path &node)>;

/// Which drive is examined, and how.
struct ExaminedDrive {
    std::string name; ///< As the user sees it.
    std::filesystem::path node;
    OpenDrive open;
    std::chrono::milliseconds patience; ///< With a drive that is becoming ready.
};

/// What an examination found out.
struct DriveFindings {
    std::optional<bool> canWriteCd; ///< Nothing where the drive could not be asked.
    std::optional<MediaEvent> tray; ///< As it was just before the medium was examined.
    MediumState medium;             ///< Empty after a failure.
    std::optional<MmcError> failure;
    std::optional<ScorchError> obstacle; ///< The failure in words.

    bool isInterrupted() const { return failure && failure->kind == MmcError::Kind::interrupted; }
};

/// Why a drive has to be left alone, if another program has it open for writing: it burns, and may
/// rely on a door that it has locked. Looks into /proc, and may block for it.
std::optional<MmcError> otherWriter(const std::filesystem::path &node);

/// One whole examination, from opening the device to closing it. Blocks.
DriveFindings examineDrive(const ExaminedDrive &drive, const std::stop_token &stop);

/// A glance at tray and disc that disturbs nobody. `before` is what the last one saw, for drives
/// that tell of no events and can only be compared.
Result<MediaEvent, MmcError> glanceAtDrive(const ExaminedDrive &drive,
                                           const std::optional<MediaEvent> &before);

/// What a client sees of a medium.
DiscState discState(const MediumState &medium);

} // namespace scorch
