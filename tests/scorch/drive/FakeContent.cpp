// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/drive/FakeContent.h"

#include <algorithm>
#include <span>
#include <utility>

using namespace scorch;

namespace {

class FakeSource final : public SectorSource {
public:
    FakeSource(FakeContent &content, std::size_t bytesPerSector, std::int64_t first,
               std::int64_t count)
        : content_(content), bytesPerSector_(bytesPerSector), sector_(first), end_(first + count) {}

    Outcome<std::size_t> read(std::span<std::byte> buffer, const std::stop_token &stop) override {
        if (stop.stop_requested()) {
            return Interruption(Cancelled{});
        }
        if (content_.beforeRead) {
            if (auto outcome = content_.beforeRead(sector_); !outcome) {
                return outcome.error();
            }
        }
        const auto room = static_cast<std::int64_t>(buffer.size() / bytesPerSector_);
        const std::int64_t count = std::min(room, end_ - sector_);
        const std::uint64_t place = static_cast<std::uint64_t>(sector_) * bytesPerSector_;
        const std::size_t size = static_cast<std::size_t>(count) * bytesPerSector_;
        for (std::size_t at = 0; at < size; ++at) {
            buffer[at] = FakeContent::byteAt(place + at);
        }
        sector_ += count;
        return size;
    }

private:
    FakeContent &content_;
    const std::size_t bytesPerSector_;
    std::int64_t sector_;
    const std::int64_t end_;
};

} // namespace

FakeContent::FakeContent(TrackKind kind, const std::vector<std::int64_t> &sectors,
                         std::string volumeName)
    : volumeName_(std::move(volumeName)) {
    for (const std::int64_t count : sectors) {
        tracks_.push_back({kind, count, {}, {}});
    }
}

Outcome<std::unique_ptr<SectorSource>> FakeContent::openTrack(std::size_t index,
                                                              const std::stop_token & /*stop*/) {
    std::int64_t first = 0;
    for (std::size_t before = 0; before < index; ++before) {
        first += tracks_[before].sectors;
    }
    const bool isLast = index + 1 == tracks_.size();
    const std::int64_t count = tracks_[index].sectors - (isLast ? missingSectors : 0);
    return std::unique_ptr<SectorSource>(
        std::make_unique<FakeSource>(*this, sectorBytes(tracks_[index].kind), first, count));
}

std::string FakeContent::nameAt(std::size_t index, std::int64_t sector) const {
    return "song " + std::to_string(index + 1) + " at " + std::to_string(sector);
}

std::byte FakeContent::byteAt(std::uint64_t place) {
    return static_cast<std::byte>((place * 2654435761U) >> 13U);
}

std::string FakeContent::bytes() const {
    std::uint64_t size = 0;
    for (const TrackLayout &track : tracks_) {
        size += static_cast<std::uint64_t>(track.sectors) * sectorBytes(track.kind);
    }
    std::string bytes(size, '\0');
    for (std::uint64_t at = 0; at < size; ++at) {
        bytes[at] = static_cast<char>(byteAt(at));
    }
    return bytes;
}
