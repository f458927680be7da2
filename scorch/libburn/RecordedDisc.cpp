// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/RecordedDisc.h"

#include <cstddef>

namespace scorch {
namespace {

std::string differs(const std::string &what, std::int64_t found, std::int64_t planned) {
    return what + ' ' + std::to_string(found) + " instead of " + std::to_string(planned);
}

} // namespace

std::optional<std::string> differenceFromPlan(const MediumState &medium, const SessionPlan &plan) {
    if (medium.contents == MediumState::Contents::blank) {
        return "the disc is still blank";
    }
    if (medium.contents != MediumState::Contents::complete) {
        return "the disc is not closed";
    }
    if (medium.tracks.size() != plan.sectors.size()) {
        return differs("tracks:", static_cast<std::int64_t>(medium.tracks.size()),
                       static_cast<std::int64_t>(plan.sectors.size()));
    }
    for (std::size_t index = 0; index < medium.tracks.size(); ++index) {
        const TocTrack &track = medium.tracks[index];
        const std::string name = "track " + std::to_string(index + 1);
        if (track.number != static_cast<int>(index) + 1) {
            return name + " has the number " + std::to_string(track.number);
        }
        if (track.isData != (plan.kind == TrackKind::data)) {
            return name + (track.isData ? " is data" : " is sound");
        }
        if (track.start != plan.start(index)) {
            return differs(name + " begins at", track.start, plan.start(index));
        }
    }
    if (medium.leadOut != plan.total()) {
        return differs("the lead-out begins at", medium.leadOut, plan.total());
    }
    return std::nullopt;
}

} // namespace scorch
