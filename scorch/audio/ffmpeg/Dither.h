// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

namespace scorch {

/// Rounds samples to 16 bits with triangular dither of two least significant bits' width, so that
/// the error is noise that does not depend on the sound. Values from -1 to 1, clipped there.
///
/// The noise starts from the same seed each time: the same song gives the same bytes.
class Dither {
public:
    /// Writes `count` sample frames, left and right in turn, to `out`. With the same pointer twice
    /// both channels get the same values, noise included: one voice stays in the middle.
    void toStereo(const float *left, const float *right, std::size_t count, std::int16_t *out);

private:
    using Lanes = std::uint32_t __attribute__((vector_size(16)));

    Lanes left_ = {0x9E3779B9U, 0x243F6A88U, 0xB7E15162U, 0x6A09E667U};
    Lanes right_ = {0x85EBCA6BU, 0xC2B2AE35U, 0x27D4EB2FU, 0x165667B1U};
};

} // namespace scorch
