// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/OffsetReference.h"

#include "scorch/support/DiscContent.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <iterator>

namespace scorch {
namespace {

constexpr std::size_t mostPieces = 4;
/// More than twice what the largest offset reaches over: half of a piece at the very beginning of a
/// disc is left whatever the offset.
constexpr std::size_t pieceSectors = 24;
constexpr std::size_t sampleBytes = 4;
/// One wrong sample in so many is taken for damage rather than for the wrong place.
constexpr std::int64_t damagedShare = 20;

bool isSilent(std::span<const std::byte> bytes) {
    return std::all_of(bytes.begin(), bytes.end(),
                       [](std::byte byte) { return byte == std::byte{}; });
}

/// Whether the piece stands at this offset, judged by what of it was read: half of it at least.
bool standsAt(std::int64_t offset, const SoundPiece &piece, std::span<const std::byte> read,
              std::int64_t firstSample, bool isDamageAllowed) {
    const auto pieceSamples = static_cast<std::int64_t>(piece.bytes.size() / sampleBytes);
    const auto readSamples = static_cast<std::int64_t>(read.size() / sampleBytes);
    const std::int64_t place = piece.firstSector * samplesPerSector + offset - firstSample;
    const std::int64_t begin = std::max<std::int64_t>(0, -place);
    const std::int64_t end = std::min(pieceSamples, readSamples - place);
    if (end - begin < pieceSamples / 2) {
        return false;
    }
    std::int64_t allowed = isDamageAllowed ? (end - begin) / damagedShare : 0;
    for (std::int64_t at = begin; at < end; ++at) {
        const auto sent = static_cast<std::size_t>(at) * sampleBytes;
        const auto found = static_cast<std::size_t>(place + at) * sampleBytes;
        if (std::memcmp(&piece.bytes[sent], &read[found], sampleBytes) != 0 && --allowed < 0) {
            return false;
        }
    }
    return true;
}

} // namespace

bool OffsetReference::isGrowing() const {
    return !pieces_.empty() && pieces_.back().bytes.size() < pieceSectors * audioSectorBytes;
}

void OffsetReference::look(std::size_t track, std::int64_t firstSector,
                           std::span<const std::byte> bytes) {
    if (!isSound_ || bytes.empty()) {
        return;
    }
    for (std::size_t at = 0; at < bytes.size(); at += audioSectorBytes, ++firstSector) {
        const auto sector = bytes.subspan(at, audioSectorBytes);
        if (isGrowing()) {
            pieces_.back().bytes.insert(pieces_.back().bytes.end(), sector.begin(), sector.end());
        } else if (coveredTrack_ == track || pieces_.size() == mostPieces) {
            break;
        } else if (!isSilent(sector)) {
            coveredTrack_ = track;
            const auto before = static_cast<std::int64_t>(sectorBefore_.size() / audioSectorBytes);
            pieces_.push_back({firstSector - before, sectorBefore_});
            pieces_.back().bytes.insert(pieces_.back().bytes.end(), sector.begin(), sector.end());
        }
        sectorBefore_.assign(sector.begin(), sector.end());
    }
    const auto last = bytes.last(audioSectorBytes);
    sectorBefore_.assign(last.begin(), last.end());
}

std::vector<std::int64_t> offsetsOf(const SoundPiece &piece, std::span<const std::byte> read,
                                    std::int64_t firstSample,
                                    const std::optional<std::vector<std::int64_t>> &among) {
    std::vector<std::int64_t> asked;
    if (among) {
        asked = *among;
    } else {
        asked.push_back(0);
        for (std::int64_t distance = 1; distance <= mostOffset; ++distance) {
            asked.push_back(distance);
            asked.push_back(-distance);
        }
    }
    std::vector<std::int64_t> found;
    for (const bool isDamageAllowed : {false, true}) {
        std::copy_if(asked.begin(), asked.end(), std::back_inserter(found),
                     [&](std::int64_t offset) {
                         return standsAt(offset, piece, read, firstSample, isDamageAllowed);
                     });
        if (!found.empty()) {
            break;
        }
    }
    return found;
}

} // namespace scorch
