// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ffmpeg/StereoConverter.h"

#include "scorch/audio/ffmpeg/AvLog.h"
#include "scorch/support/Text.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace scorch {
namespace {

/// Whether the samples fit into 16 bits as they are.
bool fitsSixteenBits(const SoundShape &shape) {
    switch (shape.sampleFormat) {
    case AV_SAMPLE_FMT_U8:
    case AV_SAMPLE_FMT_U8P:
    case AV_SAMPLE_FMT_S16:
    case AV_SAMPLE_FMT_S16P:
        return true;
    case AV_SAMPLE_FMT_S32:
    case AV_SAMPLE_FMT_S32P:
        return shape.validBits > 0 && shape.validBits <= 16;
    default:
        return false;
    }
}

std::int16_t toSixteenBits(std::uint8_t sample) {
    return static_cast<std::int16_t>((sample - 128) * 256);
}
std::int16_t toSixteenBits(std::int16_t sample) {
    return sample;
}
std::int16_t toSixteenBits(std::int32_t sample) {
    return static_cast<std::int16_t>(sample >> 16);
}

/// Copies samples of the one or two channels of a frame, in the frame's own layout.
template <class Sample>
void copyExact(const AVFrame &frame, bool planar, int channels, std::int16_t *out) {
    const auto count = static_cast<std::size_t>(frame.nb_samples);
    const auto plane = [&frame](int index) {
        return reinterpret_cast<const Sample *>(frame.extended_data[index]);
    };
    const std::size_t step = planar ? 1 : static_cast<std::size_t>(channels);
    const Sample *left = plane(0);
    const Sample *right = channels == 1 ? left : planar ? plane(1) : left + 1;
    for (std::size_t i = 0; i < count; ++i) {
        out[2 * i] = toSixteenBits(left[i * step]);
        out[2 * i + 1] = toSixteenBits(right[i * step]);
    }
}

void copyExact(const AVFrame &frame, const SoundShape &shape, std::int16_t *out) {
    const auto format = static_cast<AVSampleFormat>(shape.sampleFormat);
    const bool planar = av_sample_fmt_is_planar(format) != 0;
    switch (av_get_packed_sample_fmt(format)) {
    case AV_SAMPLE_FMT_U8:
        return copyExact<std::uint8_t>(frame, planar, shape.channels, out);
    case AV_SAMPLE_FMT_S16:
        return copyExact<std::int16_t>(frame, planar, shape.channels, out);
    default:
        return copyExact<std::int32_t>(frame, planar, shape.channels, out);
    }
}

SourceFailure cannotConvert(int channels, int code) {
    return {SourceFailure::Kind::notSound,
            localized("Its %@ channels cannot be mixed down to two.", {std::to_string(channels)}),
            takeAvDetail(code)};
}

} // namespace

SoundShape shapeOf(const AVFrame &frame, int validBits) {
    const bool isKnown = frame.ch_layout.order == AV_CHANNEL_ORDER_NATIVE;
    return {.sampleFormat = frame.format,
            .sampleRate = static_cast<std::uint32_t>(std::max(frame.sample_rate, 0)),
            .channelMask = isKnown ? frame.ch_layout.u.mask : 0,
            .channels = frame.ch_layout.nb_channels,
            .validBits = validBits};
}

void LengthAtDiscRate::add(const SoundShape &shape, std::uint64_t samples) {
    if (!(shape == shape_)) {
        before_ = total();
        inPiece_ = 0;
        shape_ = shape;
    }
    inPiece_ += samples;
}

std::optional<SourceFailure> StereoConverter::start(const AVFrame &frame, const SoundShape &shape) {
    shape_ = shape;
    taken_ = 0;
    given_ = 0;
    resampler_.reset();
    const bool isDiscRate = shape.sampleRate == discSampleRate;
    const bool isOneOrTwo = shape.channels == 1 || shape.channels == 2;
    isExact_ = isDiscRate && isOneOrTwo && fitsSixteenBits(shape);
    mixedChannels_ = shape.channels == 1 ? 1 : 2;
    if (isExact_ || (isDiscRate && isOneOrTwo && shape.sampleFormat == AV_SAMPLE_FMT_FLTP)) {
        return std::nullopt;
    }
    AVChannelLayout from{};
    if (frame.ch_layout.order == AV_CHANNEL_ORDER_UNSPEC) {
        av_channel_layout_default(&from, shape.channels);
    } else {
        av_channel_layout_copy(&from, &frame.ch_layout);
    }
    AVChannelLayout to{};
    if (mixedChannels_ == 1) {
        av_channel_layout_copy(&to, &from); // Any single channel stays itself, at its level.
    } else {
        av_channel_layout_default(&to, 2);
    }
    SwrContext *context = nullptr;
    int code = swr_alloc_set_opts2(&context, &to, AV_SAMPLE_FMT_FLTP, discSampleRate, &from,
                                   static_cast<AVSampleFormat>(shape.sampleFormat),
                                   static_cast<int>(shape.sampleRate), 0, nullptr);
    resampler_.reset(context);
    if (code >= 0) {
        av_opt_set_double(context, "rematrix_maxval", 1.0, 0); // A full mix just reaches the top.
        code = swr_init(context);
    }
    av_channel_layout_uninit(&from);
    av_channel_layout_uninit(&to);
    return code < 0 ? std::optional(cannotConvert(shape.channels, code)) : std::nullopt;
}

std::optional<SourceFailure> StereoConverter::add(const AVFrame &frame, int validBits,
                                                  std::vector<std::int16_t> &out) {
    const SoundShape shape = shapeOf(frame, validBits);
    if (shape.sampleRate == 0 || shape.channels <= 0) {
        return cannotConvert(shape.channels, 0);
    }
    if (!(shape == shape_)) {
        std::optional<SourceFailure> failure = finish(out);
        if (!failure) {
            failure = start(frame, shape);
        }
        if (failure) {
            return failure;
        }
    }
    const auto count = static_cast<std::size_t>(frame.nb_samples);
    taken_ += count;
    if (isExact_) {
        const std::size_t before = out.size();
        out.resize(before + 2 * count);
        copyExact(frame, shape, out.data() + before);
        given_ += count;
        return std::nullopt;
    }
    if (!resampler_) {
        const auto plane = [&frame](int index) {
            return reinterpret_cast<const float *>(frame.extended_data[index]);
        };
        addDithered(plane(0), plane(mixedChannels_ - 1), count, out);
        return std::nullopt;
    }
    // The library's signature has no const; it does not write through these.
    return convert(const_cast<const std::uint8_t **>(frame.extended_data), frame.nb_samples, out);
}

/// Sends samples through the resampler; without data it gives up what it still holds.
std::optional<SourceFailure> StereoConverter::convert(const std::uint8_t **data, int samples,
                                                      std::vector<std::int16_t> &out) {
    const int room = swr_get_out_samples(resampler_.get(), samples) + 1;
    const auto wanted = static_cast<std::size_t>(std::max(room, 1));
    left_.resize(std::max(left_.size(), wanted));
    right_.resize(std::max(right_.size(), wanted));
    std::array<std::uint8_t *, 2> planes = {reinterpret_cast<std::uint8_t *>(left_.data()),
                                            reinterpret_cast<std::uint8_t *>(right_.data())};
    const int got =
        swr_convert(resampler_.get(), planes.data(), static_cast<int>(wanted), data, samples);
    if (got < 0) {
        return cannotConvert(shape_.channels, got);
    }
    // The resampler's own idea of the end may be a sample later than ours.
    const std::uint64_t most = resampledLength(taken_, shape_.sampleRate) - given_;
    addDithered(left_.data(), mixedChannels_ == 1 ? left_.data() : right_.data(),
                std::min(static_cast<std::uint64_t>(got), most), out);
    return std::nullopt;
}

std::optional<SourceFailure> StereoConverter::finish(std::vector<std::int16_t> &out) {
    if (!resampler_ || taken_ == 0) {
        return std::nullopt;
    }
    if (std::optional<SourceFailure> failure = convert(nullptr, 0, out)) {
        return failure;
    }
    // Or a sample earlier; the last one is held until the end. A piece that is shorter than the
    // filter leaves nothing to hold and is too short to hear.
    const std::uint64_t missing = resampledLength(taken_, shape_.sampleRate) - given_;
    const std::size_t size = out.size();
    const std::array<std::int16_t, 2> last = {size >= 2 ? out[size - 2] : std::int16_t{0},
                                              size >= 2 ? out[size - 1] : std::int16_t{0}};
    for (std::uint64_t i = 0; i < missing; ++i) {
        out.insert(out.end(), last.begin(), last.end());
    }
    given_ += missing;
    return std::nullopt;
}

void StereoConverter::addDithered(const float *left, const float *right, std::size_t count,
                                  std::vector<std::int16_t> &out) {
    const std::size_t before = out.size();
    out.resize(before + 2 * count);
    dither_.toStereo(left, right, count, out.data() + before);
    given_ += count;
}

} // namespace scorch
