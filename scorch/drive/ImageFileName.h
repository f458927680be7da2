// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/support/DiscContent.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace scorch {

/// The name, without ending, of the files that a disc image with this volume name gets: "/" and
/// control characters become "_", a dot in front too, so that the file is not hidden; an empty or
/// blank name becomes "Untitled". Bytes that are not UTF-8 become U+FFFD. For sound `"` becomes
/// `'`: the cue sheet names its file in quotes and cannot quote a quote.
std::string imageFileStem(std::string_view volumeName, TrackKind kind);

/// The same name for a file system that takes less (FAT and its kin): what they refuse becomes
/// "_", and so do dots and spaces at the end, which they drop.
std::string portableFileStem(std::string_view stem);

/// The name of the n-th image of one name: "NAME.iso", "NAME 2.iso", "NAME 3.iso". The stem is cut
/// at a character so that the whole has at most `maximumBytes`. `ending` includes its dot.
std::string numberedFileName(std::string_view stem, unsigned number, std::string_view ending,
                             std::size_t maximumBytes);

} // namespace scorch
