// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ffmpeg/Dither.h"

#include <bit>
#include <cstring>

namespace scorch {
namespace {

// Four samples at a time, in the vectors that every compiler we build with knows: dithering must
// not cost what decoding ahead gains, and the library's own dither takes three times as long.
constexpr std::size_t laneCount = 4;
using Floats = float __attribute__((vector_size(16)));
using Integers = std::int32_t __attribute__((vector_size(16)));
using Lanes = std::uint32_t __attribute__((vector_size(16)));

constexpr float full = 32768.0F;

/// Two 16-bit values that are evenly distributed, added: a triangle from -1 to 1.
inline Floats noise(Lanes &state) {
    state ^= state << 13U; // Marsaglia's xorshift
    state ^= state >> 17U;
    state ^= state << 5U;
    const Lanes sum = (state & 0xFFFFU) + (state >> 16U);
    return __builtin_convertvector(reinterpret_cast<Integers>(sum), Floats) * (1.0F / 65536.0F) -
           (65535.0F / 65536.0F);
}

inline Integers rounded(const float *samples, Floats dither) {
    Floats value;
    std::memcpy(&value, samples, sizeof(value));
    value = value * full + dither;
    // In this order a value that is no number becomes a bound and stays out of the arithmetic.
    const Floats top = Floats{} + (full - 1.0F);
    const Floats bottom = Floats{} - full;
    value = value < top ? value : top;
    value = value > bottom ? value : bottom;
    // Adding 1.5 * 2^23 leaves the nearest whole number in the low bits.
    const Floats shifted = value + 12582912.0F;
    return reinterpret_cast<Integers>(shifted) - 0x4B400000;
}

/// Both channels of a sample frame in one 32-bit value, left first in memory.
inline Integers joined(Integers left, Integers right) {
    if constexpr (std::endian::native == std::endian::little) {
        return (left & 0xFFFF) | (right << 16);
    } else {
        return (left << 16) | (right & 0xFFFF);
    }
}

} // namespace

void Dither::toStereo(const float *left, const float *right, std::size_t count, std::int16_t *out) {
    const bool oneVoice = left == right;
    Lanes leftState = left_; // In registers, not behind `this`.
    Lanes rightState = right_;
    const auto convert = [&](const float *fromLeft, const float *fromRight) {
        const Floats leftNoise = noise(leftState);
        const Integers leftValues = rounded(fromLeft, leftNoise);
        return joined(leftValues, oneVoice ? leftValues : rounded(fromRight, noise(rightState)));
    };
    std::size_t done = 0;
    for (; done + laneCount <= count; done += laneCount) {
        const Integers values = convert(left + done, right + done);
        std::memcpy(out + 2 * done, &values, sizeof(values));
    }
    if (const std::size_t rest = count - done; rest > 0) {
        float lastLeft[laneCount] = {};
        float lastRight[laneCount] = {};
        std::memcpy(lastLeft, left + done, rest * sizeof(float));
        std::memcpy(lastRight, right + done, rest * sizeof(float));
        const Integers values = convert(lastLeft, lastRight);
        std::memcpy(out + 2 * done, &values, rest * 2 * sizeof(std::int16_t));
    }
    left_ = leftState;
    right_ = rightState;
}

} // namespace scorch
