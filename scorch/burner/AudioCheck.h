// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/burner/Check.h"
#include "scorch/burner/ProbePool.h"
#include "scorch/support/AudioFileList.h"

#include <functional>
#include <stop_token>
#include <string>
#include <vector>

namespace scorch {

/// What a check of songs needs.
struct AudioCheckServices {
    /// Replaces folders and playlists by the songs in them; see expandAudioFiles.
    std::function<AudioFileList(const std::vector<BurnFile> &, const std::stop_token &)> expand;
    ProbeFunction probe;
    unsigned threads = 1; ///< That look at songs at once.
    Clock clock;
};

/// A CheckFunction for songs.
CheckRefusals checkSongs(const AudioCheckServices &services, CheckQueue &queue, CheckSink &sink,
                         const std::stop_token &stop);

/// What the list shows for a song: "Artist - Title", the title alone where nobody knows the artist,
/// else the file's name without its ending. The client's own words for a song go before its tags.
std::string songDisplayName(const BurnFile &file, const AudioInfo &info);

} // namespace scorch
