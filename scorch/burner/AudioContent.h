// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/audio/AudioBackend.h"
#include "scorch/burner/Item.h"
#include "scorch/support/DiscContent.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <stop_token>
#include <string>
#include <vector>

namespace scorch {

/// Starts decoding the songs of a disc. Any thread.
using FeederFactory =
    std::function<Result<std::unique_ptr<AudioFeeder>>(std::vector<AudioTrackRequest> tracks)>;

/// An audio disc: one track a song, one behind the other without a gap. Used by one thread.
class AudioContent final : public DiscContent {
public:
    /// Looks whether every song is still there, since a disc that stops half way is lost, and
    /// starts to decode. Blocks on the file system.
    static Outcome<std::unique_ptr<DiscContent>> create(const std::vector<ItemRef> &songs,
                                                        std::string discName,
                                                        const FeederFactory &makeFeeder,
                                                        const std::stop_token &stop);

    const std::string &volumeName() const override { return discName_; }
    std::size_t trackCount() const override { return tracks_.size(); }
    const TrackLayout &track(std::size_t index) const override { return tracks_[index]; }
    Outcome<std::unique_ptr<SectorSource>> openTrack(std::size_t index,
                                                     const std::stop_token &stop) override;
    std::string nameAt(std::size_t index, std::int64_t sector) const override;

private:
    AudioContent() = default;

    std::string discName_;
    std::vector<TrackLayout> tracks_;
    std::vector<std::string> names_; ///< As the list shows them.
    std::unique_ptr<AudioFeeder> feeder_;
};

} // namespace scorch
