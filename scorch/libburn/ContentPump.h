// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/libburn/OffsetReference.h"
#include "scorch/libburn/SectorRing.h"
#include "scorch/libburn/SessionPlan.h"
#include "scorch/support/DiscContent.h"
#include "scorch/support/Result.h"

#include <cstdint>
#include <memory>
#include <span>
#include <stop_token>

namespace scorch {

/// Moves what goes on a disc from its sources into the ring, piece by piece, each track with just
/// the sectors that were planned. Used by the burn thread; content, ring and reference outlive it.
class ContentPump {
public:
    ContentPump(DiscContent &content, const SessionPlan &plan, SectorRing &ring,
                OffsetReference &reference)
        : content_(content), plan_(plan), ring_(ring), reference_(reference) {}

    /// Puts one piece, up to a megabyte, as far as there is room; finishes the ring behind the
    /// last. Blocks while the source does. A source that delivers more or less than it announced is
    /// an error: all that follows would stand in the wrong place.
    Outcome<> step(const std::stop_token &stop);

    bool isFinished() const { return track_ == plan_.sectors.size(); }
    std::int64_t sectorsPut() const { return sectorsPut_; }

private:
    Outcome<> fill(std::span<std::byte> room, const std::stop_token &stop);
    Outcome<> endOfSource(const std::stop_token &stop);
    void advance(std::span<const std::byte> bytes);

    DiscContent &content_;
    const SessionPlan &plan_;
    SectorRing &ring_;
    OffsetReference &reference_;
    std::unique_ptr<SectorSource> source_;
    std::size_t track_ = 0;
    std::int64_t sector_ = 0; ///< Of the track, next to be put.
    std::int64_t sectorsPut_ = 0;
};

} // namespace scorch
