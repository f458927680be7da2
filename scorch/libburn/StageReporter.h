// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/drive/Drive.h"
#include "scorch/libburn/SessionPlan.h"

#include <cstdint>

namespace scorch {

/// Turns how far a disc has been written into what an observer wants to hear, each stage once and
/// in order, however far one look is from the one before. The burn thread alone; plan and observer
/// outlive it.
class StageReporter {
public:
    StageReporter(const SessionPlan &plan, RecordObserver &observer)
        : plan_(plan), observer_(observer) {}

    /// Sources are opened and the drive gets ready.
    void begin();
    /// So many sectors of the disc have been given to the drive. Behind the last, the drive
    /// finishes.
    void reached(std::int64_t sectors);

private:
    const SessionPlan &plan_;
    RecordObserver &observer_;
    std::size_t track_ = 0;
    bool isWriting_ = false;
    std::int64_t end_ = 0; ///< Of the track, as a sector of the disc.
    std::int64_t reported_ = 0;
};

} // namespace scorch
