// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/audio/ffmpeg/AvHandles.h"
#include "scorch/audio/ffmpeg/Dither.h"
#include "scorch/audio/ffmpeg/SourceFailure.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace scorch {

inline constexpr std::uint32_t discSampleRate = 44100;

/// How many samples at 44.1 kHz `samples` at `rate` become: as many as begin before they end. The
/// one rule, for the count and for the sound.
constexpr std::uint64_t resampledLength(std::uint64_t samples, std::uint32_t rate) {
    if (rate == discSampleRate || rate == 0) {
        return samples;
    }
    return (samples * discSampleRate + rate - 1) / rate;
}

/// What decides how samples are converted; while it stays the same they are one piece of sound.
struct SoundShape {
    int sampleFormat = AV_SAMPLE_FMT_NONE;
    std::uint32_t sampleRate = 0;
    std::uint64_t channelMask = 0; ///< 0 where the order of the channels is unknown.
    int channels = 0;
    int validBits = 0; ///< Of a sample, where fewer than its format holds; else 0.

    bool operator==(const SoundShape &) const = default;
};

/// The shape of a decoder's frame. `validBits` as its context says.
SoundShape shapeOf(const AVFrame &frame, int validBits);

/// Adds up the length that a sequence of frames has at 44.1 kHz.
class LengthAtDiscRate {
public:
    void add(const SoundShape &shape, std::uint64_t samples);
    std::uint64_t total() const { return before_ + resampledLength(inPiece_, shape_.sampleRate); }

private:
    SoundShape shape_;
    std::uint64_t inPiece_ = 0;
    std::uint64_t before_ = 0; ///< What the pieces before this one come to.
};

/// Makes what a disc holds, 16-bit stereo at 44.1 kHz, of whatever a decoder delivers.
///
/// What is that already stays as it is, bit for bit; one channel goes to both sides at its own
/// level; more are mixed down so that they cannot clip. Samples of more than 16 bits, and those
/// that were mixed or brought to another rate, are dithered. The sound may change its shape at any
/// frame: what came before is finished first, and its length follows resampledLength(). Used by one
/// thread.
class StereoConverter {
public:
    /// Appends what the frame becomes to `out`, two values a sample.
    std::optional<SourceFailure> add(const AVFrame &frame, int validBits,
                                     std::vector<std::int16_t> &out);

    /// Appends what is still on its way through the resampler. Behind the last frame.
    std::optional<SourceFailure> finish(std::vector<std::int16_t> &out);

private:
    std::optional<SourceFailure> start(const AVFrame &frame, const SoundShape &shape);
    std::optional<SourceFailure> convert(const std::uint8_t **data, int samples,
                                         std::vector<std::int16_t> &out);
    void addDithered(const float *left, const float *right, std::size_t count,
                     std::vector<std::int16_t> &out);

    SoundShape shape_;
    bool isExact_ = false;           ///< No bits are lost: copied, not dithered.
    int mixedChannels_ = 2;          ///< What the resampler delivers: 1 for one voice.
    std::uint64_t taken_ = 0;        ///< Samples that came in since the shape is this one.
    std::uint64_t given_ = 0;        ///< Samples that went out since then.
    AvHandle<SwrContext> resampler_; ///< Where rate, channels or format ask for one.
    std::vector<float> left_;
    std::vector<float> right_;
    Dither dither_;
};

} // namespace scorch
