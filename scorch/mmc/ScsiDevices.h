// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/mmc/MmcCommands.h"

#include <filesystem>
#include <optional>
#include <string>

namespace scorch {

/// What the kernel found out about the drive with this name ("sr0") when it came, so that nobody
/// has to open it. Nothing where there is none. `folder` has one entry for each SCSI device.
std::optional<DriveIdentity>
identityFromSystem(const std::string &name,
                   const std::filesystem::path &folder = "/sys/bus/scsi/devices");

} // namespace scorch
