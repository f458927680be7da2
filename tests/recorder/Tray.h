// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/DriveMemory.h"

#include <string_view>

/// What happens to tray and disc, whoever causes it. Under the drive's lock.
namespace recorder {

/// Puts the tray out. The disc lies on it.
void openTray(DriveMemory &memory);

/// Takes the tray in; the host is told of a new medium and finds it becoming ready for
/// `notReadyPolls` commands.
void closeTray(DriveMemory &memory, unsigned notReadyPolls);

/// Puts the disc of this folder on the tray, which must be open; an empty path takes it away. False
/// if the path is too long to be kept.
bool placeDisc(DriveMemory &memory, std::string_view folder);

} // namespace recorder
