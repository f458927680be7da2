// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/audio/ffmpeg/FileInput.h"

#include <cstdint>
#include <optional>
#include <span>

namespace scorch {

/// The number of samples of a native FLAC file if its last frame is there, whole, and ends where
/// `streamInfo` (the STREAMINFO block, RFC 9639 section 8.2) says that the song ends. Nothing
/// otherwise: the header is silent or wrong, or the file is cut off. Reads the last 128 KiB at
/// most.
std::optional<std::uint64_t> confirmedFlacLength(FileInput &input,
                                                 std::span<const std::byte> streamInfo);

} // namespace scorch
