// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/support/DiscContent.h"

#include <cstdint>
#include <string>
#include <vector>

namespace scorch {

/// How the one session of a disc is laid out: the tracks stand behind each other without pauses,
/// the first at LBA 0 behind its pregap of 150 sectors (Red Book, MMC-5 session at once), and the
/// session is closed.
struct SessionPlan {
    TrackKind kind = TrackKind::audio;
    std::vector<std::int64_t> sectors; ///< Of each track, with what fills a short one up.

    std::int64_t start(std::size_t track) const;
    std::int64_t total() const;
    std::size_t bytesPerSector() const { return sectorBytes(kind); }
};

/// A track that is shorter than the least that drives write is filled up.
SessionPlan planSession(const DiscContent &content);

} // namespace scorch
