// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/ScorchError.h"
#include "scorch/support/Result.h"

#include <cstdint>
#include <variant>

namespace scorch {

/// The stages of a burn, in their order; the three in the middle come for each track.
enum class BurnStageKind {
    preparing,
    openingTrack,
    writingTrack,
    closedTrack,
    closedSession,
    finishing,
    verifying,
};

/// A stage has begun. Tracks count from 1; both are 0 for stages without a track.
struct BurnStage {
    BurnStageKind kind = BurnStageKind::preparing;
    std::uint64_t track = 0;
    std::uint64_t count = 0;

    bool operator==(const BurnStage &) const = default;
};

struct BurnProgress {
    double fraction = 0;          ///< Of the whole job, 0 to 1.
    std::uint64_t leftFrames = 0; ///< CD frames, 75 a second.
};

/// The disc is complete.
struct BurnDone {};

/// How a burn ended.
using BurnEnd = std::variant<BurnDone, Cancelled, ScorchError>;

/// Told of a burn while it runs, on the burn thread. Must not block.
class BurnObserver {
public:
    virtual ~BurnObserver() = default;
    virtual void stageBegan(const BurnStage &stage) = 0;
    virtual void progressed(const BurnProgress &progress) = 0;
};

} // namespace scorch
