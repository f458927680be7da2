// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/support/DiscContent.h"

#include <string>
#include <vector>

namespace scorch {

/// The cue sheet of an audio disc whose sectors stand one behind the other in one raw file
/// (16-bit little-endian samples, 2352 bytes a sector). Text is UTF-8; what a quoted string of a
/// cue sheet cannot hold is put otherwise: `"` as `'`, control characters as a space. Entries that
/// are empty are left out. `binaryName` is written as it is and must hold neither.
std::string cueSheet(const std::string &discTitle, const std::string &binaryName,
                     const std::vector<TrackLayout> &tracks);

} // namespace scorch
