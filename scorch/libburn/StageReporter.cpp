// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/StageReporter.h"

#include <algorithm>
#include <cstddef>

namespace scorch {

void StageReporter::begin() {
    end_ = plan_.sectors.front();
    observer_.openingTrack(1, plan_.sectors.size());
}

void StageReporter::reached(std::int64_t sectors) {
    const std::size_t count = plan_.sectors.size();
    while (track_ < count && sectors > end_ - plan_.sectors[track_]) {
        if (!isWriting_) {
            isWriting_ = true;
            observer_.writingTrack(track_ + 1, count);
        }
        if (const std::int64_t here = std::min(sectors, end_); here > reported_) {
            reported_ = here;
            observer_.wroteSectors(here);
        }
        if (sectors < end_) {
            return;
        }
        observer_.closedTrack(track_ + 1, count);
        isWriting_ = false;
        if (++track_ < count) {
            end_ += plan_.sectors[track_];
            observer_.openingTrack(track_ + 1, count);
        } else {
            observer_.closedSession();
            observer_.finishing();
        }
    }
}

} // namespace scorch
