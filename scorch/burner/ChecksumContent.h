// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/support/DiscContent.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <stop_token>
#include <string>
#include <vector>

namespace scorch {

/// Passes a disc's content on and keeps a checksum (XXH3, 64 bits) of each sector that went
/// through, so that what is read back can be compared and a difference be named to the sector: a
/// disc of 80 minutes costs less than three megabytes.
class ChecksumContent final : public DiscContent {
public:
    /// `content` outlives this.
    explicit ChecksumContent(DiscContent &content);

    const std::string &volumeName() const override { return content_.volumeName(); }
    std::size_t trackCount() const override { return content_.trackCount(); }
    const TrackLayout &track(std::size_t index) const override { return content_.track(index); }
    Outcome<std::unique_ptr<SectorSource>> openTrack(std::size_t index,
                                                     const std::stop_token &stop) override;
    std::string nameAt(std::size_t index, std::int64_t sector) const override {
        return content_.nameAt(index, sector);
    }

    /// The sectors of a track that went through.
    std::int64_t sectorsSent(std::size_t index) const {
        return static_cast<std::int64_t>(checksums_[index].size());
    }

    /// The first sector of `sectors`, read back from position `first` of a track, that is another
    /// than was sent, counted from the start of the track; none if all are the same.
    std::optional<std::int64_t> firstDifference(std::size_t index, std::int64_t first,
                                                std::span<const std::byte> sectors) const;

private:
    DiscContent &content_;
    std::vector<std::vector<std::uint64_t>> checksums_; ///< By track and sector.
};

} // namespace scorch
