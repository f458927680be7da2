// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/SessionPlan.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace scorch {

std::int64_t SessionPlan::start(std::size_t track) const {
    const auto end = sectors.begin() + static_cast<std::ptrdiff_t>(track);
    return std::accumulate(sectors.begin(), end, std::int64_t{0});
}

std::int64_t SessionPlan::total() const {
    return start(sectors.size());
}

SessionPlan planSession(const DiscContent &content) {
    SessionPlan plan;
    for (std::size_t index = 0; index < content.trackCount(); ++index) {
        const TrackLayout &track = content.track(index);
        plan.kind = track.kind;
        plan.sectors.push_back(std::max(track.sectors, minimumTrackSectors));
    }
    return plan;
}

} // namespace scorch
