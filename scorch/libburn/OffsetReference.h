// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace scorch {

/// Samples of sound (both channels, four bytes) in a sector.
inline constexpr std::int64_t samplesPerSector = 588;

/// A piece of the sound that was sent, to be looked for in what is read.
struct SoundPiece {
    std::int64_t firstSector = 0; ///< Of the disc.
    std::vector<std::byte> bytes;
};

/// Keeps the beginnings of the sound of some tracks on its way to the disc. With them the offset is
/// found by which a drive reads sound early or late; it is the same for all discs of a drive, up to
/// some thousand samples, and no drive tells it. The burn thread alone.
class OffsetReference {
public:
    /// For data nothing is kept.
    explicit OffsetReference(bool isSound) : isSound_(isSound) {}

    /// Sound of a track goes by, whole sectors, `firstSector` of the disc the first of them. In
    /// order.
    void look(std::size_t track, std::int64_t firstSector, std::span<const std::byte> bytes);

    /// At most a few, from the first sector of a track that is not silent on, with the one before.
    const std::vector<SoundPiece> &pieces() const { return pieces_; }

private:
    bool isGrowing() const;

    const bool isSound_;
    std::optional<std::size_t> coveredTrack_; ///< The one that the last piece is of.
    std::vector<SoundPiece> pieces_;
    std::vector<std::byte> sectorBefore_;
};

/// The range that offsets of drives are in, in samples, either way.
inline constexpr std::int64_t mostOffset = 5000;

/// The offsets at which `piece` is found in `read`, sound from `firstSample` of the disc on that
/// was read from a drive; positive where the drive reads late. `among`: the only ones that are
/// asked for, or all; nearest first. Where it stands nowhere exactly, a few wrong samples are no
/// obstacle: the comparison that follows finds them.
std::vector<std::int64_t> offsetsOf(const SoundPiece &piece, std::span<const std::byte> read,
                                    std::int64_t firstSample,
                                    const std::optional<std::vector<std::int64_t>> &among);

} // namespace scorch
