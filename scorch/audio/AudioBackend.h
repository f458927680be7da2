// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/AddFilesResult.h"
#include "scorch/support/Result.h"
#include "scorch/support/SectorSource.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <stop_token>
#include <string>
#include <variant>
#include <vector>

namespace scorch {

/// What a check finds out about a song.
struct AudioInfo {
    /// Sample frames (one for both channels) at 44.1 kHz that the song will decode to, encoder
    /// delay and padding taken off. Exact.
    std::uint64_t samples = 0;
    std::string artist; ///< From the tags, UTF-8, empty where there is none.
    std::string title;
    std::string album;
};

enum class RefusalKind { protectedFile, incompatibleFile };

struct AudioRefusal {
    RefusalKind kind = RefusalKind::incompatibleFile;
    std::string reason; ///< For a person, UTF-8, localized.
};

using AudioProbe = std::variant<AudioInfo, AudioRefusal, Cancelled>;

/// One song of a disc: the file and what the check counted.
struct AudioTrackRequest {
    std::filesystem::path path;
    std::uint64_t samples = 0; ///< As AudioInfo::samples.
};

/// Decodes the songs of a disc in order, several at once ahead of the reader, within a bounded
/// amount of memory. Owned and read by one thread; its destructor stops and joins its workers.
class AudioFeeder {
public:
    virtual ~AudioFeeder() = default;
    AudioFeeder(const AudioFeeder &) = delete;
    AudioFeeder &operator=(const AudioFeeder &) = delete;

    /// The samples of song `index` (0, 1, 2, …: in order, each once), its last sector padded with
    /// zeros, and padded to 300 sectors if it is shorter. The feeder outlives the source. A song
    /// that decodes to less than was counted, or cannot be read, is an error that names the file.
    virtual std::unique_ptr<SectorSource> openTrack(std::size_t index) = 0;

protected:
    AudioFeeder() = default;
};

/// All that the engine asks of the decoding library. It lives in a loadable module of its own,
/// since that library brings more than a hundred others along, which a window that has no songs yet
/// need not wait for. Any thread; several calls may run at once.
class AudioBackend {
public:
    virtual ~AudioBackend() = default;
    AudioBackend(const AudioBackend &) = delete;
    AudioBackend &operator=(const AudioBackend &) = delete;

    /// Looks at a file: is it sound that can be decoded, how long exactly, what do its tags say.
    /// Blocks; reads the file without decoding all of it.
    virtual AudioProbe probe(const std::filesystem::path &path,
                             const std::stop_token &stop) const = 0;

    /// Starts decoding ahead with up to `workers` threads.
    virtual std::unique_ptr<AudioFeeder> makeFeeder(std::vector<AudioTrackRequest> tracks,
                                                    unsigned workers) const = 0;

protected:
    AudioBackend() = default;
};

/// The sectors that a song takes: its samples rounded up to a whole sector (588 sample frames), at
/// least 300.
constexpr std::int64_t sectorsForSamples(std::uint64_t samples) {
    const auto sectors = static_cast<std::int64_t>((samples + 587) / 588);
    return sectors < 300 ? 300 : sectors;
}

/// The function that the module exports under the name of scorchAudioBackendSymbol. The object
/// lives as long as the process.
using AudioBackendEntry = const AudioBackend *(*)();
inline constexpr const char *scorchAudioBackendSymbol = "scorchAudioBackend";

/// Loads the module on first use (it stands in ../scorch relative to the engine's own binary's
/// folder; see AudioBackendLoader.cpp) and keeps it for the life of the process. Any thread; blocks
/// for the time of loading. An error if it is missing.
Result<const AudioBackend *> audioBackend();

} // namespace scorch
