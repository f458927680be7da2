// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/audio/ffmpeg/MediaFile.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace scorch {

/// Decodes the sound of a file, frame by frame, without what encoder and decoder added at its ends.
/// Damage is a failure and never skipped: what is missing would be missing on the disc. Used by one
/// thread.
class SoundDecoder {
public:
    /// The file outlives the decoder.
    static SourceResult<std::unique_ptr<SoundDecoder>> open(MediaFile &file);

    /// The next samples, nothing at the end. The frame is valid until the next call.
    SourceResult<AVFrame *> nextFrame();

    /// How many bits of a sample count where its format has more, 0 if all do. Once a frame came.
    int validBits() const { return context_->bits_per_raw_sample; }

    /// Hands a packet over without a look at the file, and takes the samples that come of it, if
    /// any: lets a count that reads packets see what the decoder makes of the first ones.
    SourceResult<AVFrame *> decode(const AVPacket &packet);

private:
    explicit SoundDecoder(MediaFile &file) : file_(file) {}

    SourceFailure failureOf(int code) const;
    bool cutAtLimit();

    MediaFile &file_;
    AvHandle<AVCodecContext> context_;
    AvHandle<AVPacket> packet_;
    AvHandle<AVFrame> frame_;
    bool hasFrame_ = false;              ///< A first one came, and with it the rate.
    std::optional<std::uint64_t> limit_; ///< Samples that are still the song's.
};

} // namespace scorch
