// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/iso/IsoContents.h"
#include "scorch/iso/IsoTree.h"
#include "scorch/support/Result.h"

#include <cstddef>
#include <cstdint>
#include <stop_token>
#include <vector>

namespace scorch {

/// Behind the contents; drives read ahead into it instead of past the end of the track.
inline constexpr std::int64_t isoTailSectors = 150;

/// The size in bytes of the whole image: directories, contents, tail. The same layout that
/// isoDirectories writes.
///
/// libisofs keeps reference counts and a counter of images that it does not guard: its work is done
/// one call at a time here, and a call waits for its turn. A stop request is noticed while waiting
/// and at each file; the layout itself, a quarter of a second for 50 000 files, cannot be stopped.
Outcome<std::uint64_t> isoLayoutSize(const std::vector<IsoRootEntry> &entries,
                                     const IsoContents &contents, const std::stop_token &stop);

/// All that stands in front of the contents: system area, descriptors (with an empty volume name),
/// path tables, directory records with Rock Ridge and Joliet. Whole sectors. Blocks like the above.
Outcome<std::vector<std::byte>> isoDirectories(const std::vector<IsoRootEntry> &entries,
                                               const IsoContents &contents,
                                               const std::stop_token &stop);

} // namespace scorch
