// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/ChecksumContent.h"

#include <utility>

#define XXH_INLINE_ALL // Half the cost for inputs as short as a sector.
#include <xxhash.h>

namespace scorch {
namespace {

class ChecksumSource final : public SectorSource {
public:
    ChecksumSource(std::unique_ptr<SectorSource> source, std::size_t bytesPerSector,
                   std::vector<std::uint64_t> &checksums)
        : source_(std::move(source)), bytesPerSector_(bytesPerSector), checksums_(checksums) {}

    Outcome<std::size_t> read(std::span<std::byte> buffer, const std::stop_token &stop) override {
        auto count = source_->read(buffer, stop);
        if (count) {
            for (std::size_t at = 0; at < *count; at += bytesPerSector_) {
                checksums_.push_back(XXH3_64bits(&buffer[at], bytesPerSector_));
            }
        }
        return count;
    }

private:
    std::unique_ptr<SectorSource> source_;
    const std::size_t bytesPerSector_;
    std::vector<std::uint64_t> &checksums_;
};

} // namespace

ChecksumContent::ChecksumContent(DiscContent &content)
    : content_(content), checksums_(content.trackCount()) {}

Outcome<std::unique_ptr<SectorSource>> ChecksumContent::openTrack(std::size_t index,
                                                                  const std::stop_token &stop) {
    auto source = content_.openTrack(index, stop);
    if (!source) {
        return source;
    }
    const TrackLayout &layout = content_.track(index);
    checksums_[index].clear();
    checksums_[index].reserve(static_cast<std::size_t>(layout.sectors));
    return std::unique_ptr<SectorSource>(std::make_unique<ChecksumSource>(
        std::move(*source), sectorBytes(layout.kind), checksums_[index]));
}

std::optional<std::int64_t>
ChecksumContent::firstDifference(std::size_t index, std::int64_t first,
                                 std::span<const std::byte> sectors) const {
    const std::size_t bytesPerSector = sectorBytes(content_.track(index).kind);
    const std::vector<std::uint64_t> &sent = checksums_[index];
    auto sector = static_cast<std::size_t>(first);
    for (std::size_t at = 0; at < sectors.size(); at += bytesPerSector, ++sector) {
        if (sector >= sent.size() || sent[sector] != XXH3_64bits(&sectors[at], bytesPerSector)) {
            return static_cast<std::int64_t>(sector);
        }
    }
    return std::nullopt;
}

} // namespace scorch
