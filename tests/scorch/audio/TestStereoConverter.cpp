// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ffmpeg/StereoConverter.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace {

using scorch::AvHandle;
using scorch::resampledLength;
using scorch::StereoConverter;

/// A frame of float samples in `channels` planes.
AvHandle<AVFrame> frameOf(int rate, int channels, int samples, double level = 0.25) {
    AvHandle<AVFrame> frame(av_frame_alloc());
    frame->format = AV_SAMPLE_FMT_FLTP;
    frame->sample_rate = rate;
    frame->nb_samples = samples;
    av_channel_layout_default(&frame->ch_layout, channels);
    EXPECT_EQ(av_frame_get_buffer(frame.get(), 0), 0);
    for (int channel = 0; channel < channels; ++channel) {
        auto *plane = reinterpret_cast<float *>(frame->extended_data[channel]);
        for (int i = 0; i < samples; ++i) {
            plane[i] = static_cast<float>(level);
        }
    }
    return frame;
}

std::size_t convertedLength(int rate, int channels, const std::vector<int> &frames) {
    StereoConverter converter;
    std::vector<std::int16_t> out;
    for (const int samples : frames) {
        EXPECT_FALSE(converter.add(*frameOf(rate, channels, samples), 0, out));
    }
    EXPECT_FALSE(converter.finish(out));
    return out.size() / 2;
}

TEST(StereoConverter, LengthFollowsTheRuleAtEveryRateAndForEveryLength) {
    for (const int rate : {8000, 11025, 22050, 32000, 37800, 44100, 48000, 88200, 96000, 192000}) {
        for (const int samples : {1, 2, 17, 100, 999, 4097}) {
            EXPECT_EQ(convertedLength(rate, 2, {samples}),
                      resampledLength(static_cast<std::uint64_t>(samples),
                                      static_cast<std::uint32_t>(rate)))
                << rate << " " << samples;
        }
    }
}

TEST(StereoConverter, LengthDoesNotDependOnTheSizeOfFrames) {
    EXPECT_EQ(convertedLength(48000, 2, {1000, 1000, 1000}), convertedLength(48000, 2, {3000}));
    EXPECT_EQ(convertedLength(48000, 1, std::vector<int>(300, 10)),
              convertedLength(48000, 1, {3000}));
}

TEST(StereoConverter, EachPieceOfAnotherShapeIsFinishedFirst) {
    StereoConverter converter;
    scorch::LengthAtDiscRate length;
    std::vector<std::int16_t> out;
    const std::vector<std::pair<int, int>> shapes = {{48000, 2}, {48000, 1}, {44100, 1}, {44100, 2},
                                                     {32000, 6}, {32000, 6}, {48000, 2}};
    for (const auto &[rate, channels] : shapes) {
        const AvHandle<AVFrame> frame = frameOf(rate, channels, 1001);
        EXPECT_FALSE(converter.add(*frame, 0, out));
        length.add(scorch::shapeOf(*frame, 0), 1001);
    }
    EXPECT_FALSE(converter.finish(out));
    EXPECT_EQ(out.size() / 2, length.total());
    EXPECT_EQ(length.total(),
              resampledLength(1001, 48000) * 3 + 2002 + resampledLength(2002, 32000));
}

TEST(StereoConverter, OneChannelKeepsItsLevelAtAnyRate) {
    for (const int rate : {44100, 48000}) {
        StereoConverter converter;
        std::vector<std::int16_t> out;
        EXPECT_FALSE(converter.add(*frameOf(rate, 1, 5000), 0, out));
        EXPECT_NEAR(out[4000], 0.25 * 32768, 2);
        EXPECT_EQ(out[4000], out[4001]);
    }
}

TEST(StereoConverter, MixNeverPassesTheTop) {
    for (const int channels : {3, 4, 5, 6, 7, 8}) {
        StereoConverter converter;
        std::vector<std::int16_t> out;
        EXPECT_FALSE(converter.add(*frameOf(44100, channels, 5000, 0.999), 0, out));
        EXPECT_FALSE(converter.finish(out));
        for (const std::int16_t value : out) {
            ASSERT_LT(value, 32767) << channels;
        }
        EXPECT_GT(out[4000], 16000) << channels;
    }
}

// Of full scale and half a step: dither decides, so both neighbours must occur.
TEST(StereoConverter, SamplesOfMoreThanSixteenBitsAreDithered) {
    StereoConverter converter;
    std::vector<std::int16_t> out;
    EXPECT_FALSE(converter.add(*frameOf(44100, 2, 1000, 100.5 / 32768), 0, out));
    EXPECT_NE(std::count(out.begin(), out.end(), std::int16_t{100}), 0);
    EXPECT_NE(std::count(out.begin(), out.end(), std::int16_t{101}), 0);
}

TEST(StereoConverter, WideSamplesOfFewBitsStayExact) {
    AvHandle<AVFrame> frame(av_frame_alloc());
    frame->format = AV_SAMPLE_FMT_S32;
    frame->sample_rate = 44100;
    frame->nb_samples = 500;
    av_channel_layout_default(&frame->ch_layout, 2);
    ASSERT_EQ(av_frame_get_buffer(frame.get(), 0), 0);
    auto *values = reinterpret_cast<std::int32_t *>(frame->data[0]);
    for (int i = 0; i < 1000; ++i) {
        values[i] = (i * 60 - 30000) * 65536;
    }
    StereoConverter converter;
    std::vector<std::int16_t> out;
    EXPECT_FALSE(converter.add(*frame, 16, out));
    for (int i = 0; i < 1000; ++i) {
        ASSERT_EQ(out[static_cast<std::size_t>(i)], i * 60 - 30000);
    }
}

TEST(StereoConverter, FrameWithoutARateIsRefused) {
    StereoConverter converter;
    std::vector<std::int16_t> out;
    AvHandle<AVFrame> frame = frameOf(44100, 2, 10);
    frame->sample_rate = 0;
    EXPECT_TRUE(converter.add(*frame, 0, out));
}

} // namespace
