// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/mmc/MmcError.h"

#include <filesystem>
#include <optional>

namespace scorch {

/// What keeps a drive from working at the moment, in its own words: it is gone, does not answer,
/// its tray is open, it has no disc. Nothing if it is ready with a disc. Blocks until it answers.
std::optional<MmcError> complaintOf(const std::filesystem::path &node);

} // namespace scorch
