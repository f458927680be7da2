// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/audio/ffmpeg/FileInput.h"

#include <cstdint>
#include <optional>

namespace scorch {

/// What an ISO base media file (.m4a, .mp4, .mov) says of its sound, beyond what the library tells.
struct Mp4Index {
    bool isEncrypted = false; ///< A sample entry of sound is one that needs a key.
    int soundTracks = 0;
    /// The samples of the last sound track, encoder delay and padding taken off, in its own time
    /// scale; nothing where the file does not say, or where it says more than one edit.
    std::optional<std::uint64_t> samples;
    std::uint64_t mediaDuration = 0; ///< Of that track, delay and padding included.
    std::uint32_t timeScale = 0;     ///< Of that track: units a second.
};

/// Walks the boxes; nothing if the file has no movie box. Reads a few kilobytes and the table of
/// durations.
std::optional<Mp4Index> readMp4Index(FileInput &input);

} // namespace scorch
