// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/AudioContent.h"

#include "scorch/burner/BurnErrors.h"

#include <cerrno>
#include <unistd.h>
#include <utility>

namespace scorch {

Outcome<std::unique_ptr<DiscContent>> AudioContent::create(const std::vector<ItemRef> &songs,
                                                           std::string discName,
                                                           const FeederFactory &makeFeeder,
                                                           const std::stop_token &stop) {
    std::unique_ptr<AudioContent> content(new AudioContent);
    content->discName_ = std::move(discName);
    std::vector<AudioTrackRequest> requests;
    for (const ItemRef &item : songs) {
        if (stop.stop_requested()) {
            return Interruption(Cancelled{});
        }
        const auto &song = static_cast<const AudioItem &>(*item);
        if (access(song.path.c_str(), R_OK) != 0) {
            return Interruption(sourceError(song.path, errno));
        }
        content->tracks_.push_back({TrackKind::audio, song.sectors, song.title, song.artist});
        content->names_.push_back(song.displayName);
        requests.push_back({song.path, song.samples});
    }
    auto feeder = makeFeeder(std::move(requests));
    if (!feeder) {
        return Interruption(feeder.error());
    }
    content->feeder_ = std::move(*feeder);
    return std::unique_ptr<DiscContent>(std::move(content));
}

Outcome<std::unique_ptr<SectorSource>> AudioContent::openTrack(std::size_t index,
                                                               const std::stop_token & /*stop*/) {
    return feeder_->openTrack(index);
}

std::string AudioContent::nameAt(std::size_t index, std::int64_t /*sector*/) const {
    return names_[index];
}

} // namespace scorch
