// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/ContentPump.h"

#include "scorch/libburn/RecordingErrors.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace scorch {
namespace {

constexpr std::int64_t pieceSectors = 512;

} // namespace

Outcome<> ContentPump::step(const std::stop_token &stop) {
    if (stop.stop_requested()) {
        return Interruption(Cancelled{});
    }
    const std::size_t size = plan_.bytesPerSector();
    const auto roomSectors = static_cast<std::int64_t>(ring_.room().size() / size);
    if (isFinished() || roomSectors == 0) {
        return {};
    }
    if (source_ == nullptr) {
        auto source = content_.openTrack(track_, stop);
        if (!source) {
            return source.error();
        }
        source_ = std::move(*source);
    }
    const std::int64_t announced = content_.track(track_).sectors;
    const bool isFilling = sector_ >= announced; // A short track is filled up with silence.
    const std::int64_t end = isFilling ? plan_.sectors[track_] : announced;
    const std::int64_t count = std::min({roomSectors, pieceSectors, end - sector_});
    const auto room = ring_.room().first(static_cast<std::size_t>(count) * size);
    if (isFilling) {
        std::fill(room.begin(), room.end(), std::byte{});
        advance(room);
    } else if (auto filled = fill(room, stop); !filled) {
        return filled;
    }
    if (sector_ == announced && !isFilling) {
        if (auto ended = endOfSource(stop); !ended) {
            return ended;
        }
    }
    if (sector_ == plan_.sectors[track_]) {
        source_.reset();
        sector_ = 0;
        ++track_;
    }
    if (isFinished()) {
        ring_.finish();
    }
    return {};
}

Outcome<> ContentPump::fill(std::span<std::byte> room, const std::stop_token &stop) {
    const auto count = source_->read(room, stop);
    if (!count) {
        return count.error();
    }
    if (*count == 0) {
        return Interruption(wrongLengthError(content_.nameAt(track_, sector_)));
    }
    advance(room.first(*count));
    return {};
}

Outcome<> ContentPump::endOfSource(const std::stop_token &stop) {
    std::vector<std::byte> more(plan_.bytesPerSector());
    const auto count = source_->read(more, stop);
    if (!count) {
        return count.error();
    }
    if (*count != 0) {
        return Interruption(wrongLengthError(content_.nameAt(track_, sector_)));
    }
    return {};
}

void ContentPump::advance(std::span<const std::byte> bytes) {
    reference_.look(track_, sectorsPut_, bytes);
    const auto sectors = static_cast<std::int64_t>(bytes.size() / plan_.bytesPerSector());
    ring_.put(bytes.size());
    sector_ += sectors;
    sectorsPut_ += sectors;
}

} // namespace scorch
