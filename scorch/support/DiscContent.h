// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/support/Result.h"
#include "scorch/support/SectorSource.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <stop_token>
#include <string>

namespace scorch {

enum class TrackKind { audio, data };

inline constexpr std::size_t audioSectorBytes = 2352;
inline constexpr std::size_t dataSectorBytes = 2048;
/// The shortest track that the Red Book allows: four seconds.
inline constexpr std::int64_t minimumTrackSectors = 300;
inline constexpr std::size_t maximumTracks = 99;

constexpr std::size_t sectorBytes(TrackKind kind) {
    return kind == TrackKind::audio ? audioSectorBytes : dataSectorBytes;
}

/// One track as it will stand on the disc.
struct TrackLayout {
    TrackKind kind = TrackKind::audio;
    std::int64_t sectors = 0; ///< Exact; at least minimumTrackSectors for sound.
    std::string title;        ///< UTF-8; for CD-TEXT and cue sheets. Sound only.
    std::string performer;    ///< The same.
};

/// What a burn puts on a disc, made by a burner from its list and read by a drive. Used by the burn
/// thread alone.
class DiscContent {
public:
    virtual ~DiscContent() = default;
    DiscContent(const DiscContent &) = delete;
    DiscContent &operator=(const DiscContent &) = delete;

    /// As the user typed it, UTF-8; may be empty.
    virtual const std::string &volumeName() const = 0;

    virtual std::size_t trackCount() const = 0;
    /// `index` from 0.
    virtual const TrackLayout &track(std::size_t index) const = 0;

    /// The bytes of a track. Tracks are opened in order, each once, and read to their end before
    /// the next is opened. The content outlives its sources.
    virtual Outcome<std::unique_ptr<SectorSource>> openTrack(std::size_t index,
                                                             const std::stop_token &stop) = 0;

    /// What a person calls the thing at a sector of a track (the song, the file in the image), for
    /// messages. UTF-8. Valid once the track has been read to its end.
    virtual std::string nameAt(std::size_t index, std::int64_t sector) const = 0;

protected:
    DiscContent() = default;
};

} // namespace scorch
