// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/support/DiscContent.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <stop_token>
#include <string>
#include <vector>

/// Content of a disc made up by a test: each byte follows from its place.
class FakeContent final : public scorch::DiscContent {
public:
    /// `sectors` of each track.
    FakeContent(scorch::TrackKind kind, const std::vector<std::int64_t> &sectors,
                std::string volumeName = "Disc");

    /// Called before each read with the sector of the disc that comes next; what it answers is the
    /// outcome of the read if it is no success.
    std::function<scorch::Outcome<>(std::int64_t sector)> beforeRead;
    /// Sectors that the last track delivers less (or more, if negative) than it announces.
    std::int64_t missingSectors = 0;

    scorch::TrackLayout &layout(std::size_t index) { return tracks_[index]; }

    const std::string &volumeName() const override { return volumeName_; }
    std::size_t trackCount() const override { return tracks_.size(); }
    const scorch::TrackLayout &track(std::size_t index) const override { return tracks_[index]; }
    scorch::Outcome<std::unique_ptr<scorch::SectorSource>>
    openTrack(std::size_t index, const std::stop_token &stop) override;
    std::string nameAt(std::size_t index, std::int64_t sector) const override;

    /// The byte at a place of the disc, all tracks behind each other.
    static std::byte byteAt(std::uint64_t place);
    /// All bytes of the disc.
    std::string bytes() const;

private:
    std::string volumeName_;
    std::vector<scorch::TrackLayout> tracks_;
};
