// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/SoundReader.h"

#include "scorch/support/DiscContent.h"

#include <algorithm>
#include <cstring>

namespace scorch {
namespace {

constexpr std::size_t sampleBytes = audioSectorBytes / static_cast<std::size_t>(samplesPerSector);
/// Sectors that the largest offset reaches over.
constexpr std::int64_t offsetSectors = mostOffset / samplesPerSector + 1;

/// The sector that holds a sample; of negative ones too.
std::int64_t sectorOf(std::int64_t sample) {
    const std::int64_t sector = sample / samplesPerSector;
    return sample % samplesPerSector < 0 ? sector - 1 : sector;
}

} // namespace

Result<std::int64_t, ReadInterruption> SoundReader::offset(const std::stop_token &stop) {
    if (offset_) {
        return *offset_;
    }
    std::optional<std::vector<std::int64_t>> candidates;
    for (const SoundPiece &piece : pieces_) {
        const auto sectors = static_cast<std::int64_t>(piece.bytes.size() / audioSectorBytes);
        const std::int64_t first = std::max<std::int64_t>(piece.firstSector - offsetSectors, 0);
        const std::int64_t end = std::min(piece.firstSector + sectors + offsetSectors, leadOut_);
        std::vector<std::byte> sound(static_cast<std::size_t>(end - first) * audioSectorBytes);
        if (auto read = reader_.readSound(first, sound, stop); !read) {
            return read.error();
        }
        auto found = offsetsOf(piece, sound, first * samplesPerSector, candidates);
        if (!found.empty()) {
            candidates = std::move(found);
        }
    }
    offset_ = candidates ? candidates->front() : 0;
    return *offset_;
}

Result<SectorRange, ReadInterruption> SoundReader::reach(const std::stop_token &stop) {
    const auto shift = offset(stop);
    if (!shift) {
        return shift.error();
    }
    const std::int64_t samples = leadOut_ * samplesPerSector;
    // Sample s is read as sample s + shift, which must be one of the disc.
    const std::int64_t first = std::max<std::int64_t>(-*shift, 0);
    const std::int64_t end = std::min(samples - *shift, samples);
    return SectorRange{sectorOf(first + samplesPerSector - 1), sectorOf(end)};
}

Result<void, ReadInterruption> SoundReader::read(std::int64_t firstSector,
                                                 std::span<std::byte> buffer,
                                                 const std::stop_token &stop) {
    const auto shift = offset(stop);
    if (!shift) {
        return shift.error();
    }
    if (*shift == 0) {
        return reader_.readSound(firstSector, buffer, stop);
    }
    const std::int64_t begin = firstSector * samplesPerSector + *shift;
    const auto count = static_cast<std::int64_t>(buffer.size() / sampleBytes);
    const std::int64_t first = sectorOf(begin);
    const std::int64_t end = sectorOf(begin + count - 1) + 1;
    std::vector<std::byte> sound(static_cast<std::size_t>(end - first) * audioSectorBytes);
    if (auto read = reader_.readSound(first, sound, stop); !read) {
        return read;
    }
    const auto skip = static_cast<std::size_t>(begin - first * samplesPerSector) * sampleBytes;
    std::memcpy(buffer.data(), &sound[skip], buffer.size());
    return {};
}

} // namespace scorch
