// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ffmpeg/Dither.h"

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace {

using scorch::Dither;

constexpr std::size_t many = 1 << 18;

std::vector<std::int16_t> dithered(float value, std::size_t count = many) {
    const std::vector<float> left(count, value);
    const std::vector<float> right(count, value);
    std::vector<std::int16_t> out(count * 2);
    Dither().toStereo(left.data(), right.data(), count, out.data());
    return out;
}

double mean(const std::vector<std::int16_t> &values, std::size_t first) {
    double sum = 0;
    for (std::size_t i = first; i < values.size(); i += 2) {
        sum += values[i];
    }
    return sum / (static_cast<double>(values.size()) / 2);
}

// A tone below one step is what dither is for: it survives in the mean.
TEST(Dither, MeanIsTheExactValueOnBothSides) {
    for (const double steps : {0.0, 0.25, 0.5, -0.75, 100.3, -2000.9}) {
        const std::vector<std::int16_t> out = dithered(static_cast<float>(steps / 32768));
        EXPECT_NEAR(mean(out, 0), steps, 0.01);
        EXPECT_NEAR(mean(out, 1), steps, 0.01);
    }
}

// Triangular noise of that width makes the error's power the same wherever a value lies between
// two steps: a quarter of a step squared. No other simple noise does.
TEST(Dither, PowerOfTheErrorDoesNotDependOnTheSound) {
    for (const double steps : {0.0, 0.1, 0.3, 0.5, 0.9, 7.7}) {
        const std::vector<std::int16_t> out = dithered(static_cast<float>(steps / 32768));
        double power = 0;
        for (const std::int16_t value : out) {
            power += (value - steps) * (value - steps);
        }
        EXPECT_NEAR(power / static_cast<double>(out.size()), 0.25, 0.01) << steps;
    }
}

TEST(Dither, SidesAreIndependent) {
    const std::vector<std::int16_t> out = dithered(0.0F);
    double product = 0;
    for (std::size_t i = 0; i < out.size(); i += 2) {
        product += out[i] * out[i + 1];
    }
    EXPECT_NEAR(product / many, 0.0, 0.01);
}

TEST(Dither, NeighboursAreIndependent) {
    const std::vector<std::int16_t> out = dithered(0.0F);
    for (const std::size_t distance : {2U, 4U, 6U, 8U, 16U}) {
        double product = 0;
        for (std::size_t i = 0; i + distance < out.size(); ++i) {
            product += out[i] * out[i + distance];
        }
        EXPECT_NEAR(product / static_cast<double>(out.size()), 0.0, 0.01) << distance;
    }
}

TEST(Dither, ClipsInsteadOfWrapping) {
    for (const std::int16_t value : dithered(1.5F, 64)) {
        EXPECT_EQ(value, std::numeric_limits<std::int16_t>::max());
    }
    for (const std::int16_t value : dithered(-1.5F, 64)) {
        EXPECT_EQ(value, std::numeric_limits<std::int16_t>::min());
    }
    for (const std::int16_t value : dithered(std::numeric_limits<float>::infinity(), 64)) {
        EXPECT_EQ(value, std::numeric_limits<std::int16_t>::max());
    }
}

TEST(Dither, AnyCountIsWrittenAndNoMore) {
    const std::vector<float> ramp = {0.1F, 0.2F, 0.3F, 0.4F, 0.5F, 0.6F, 0.7F};
    for (std::size_t count = 0; count <= ramp.size(); ++count) {
        std::vector<std::int16_t> out(2 * ramp.size(), -1);
        std::vector<float> negative(ramp);
        for (float &value : negative) {
            value = -value;
        }
        Dither().toStereo(ramp.data(), negative.data(), count, out.data());
        for (std::size_t i = 0; i < ramp.size(); ++i) {
            const float left = i < count ? ramp[i] * 32768 : -1;
            const float right = i < count ? -ramp[i] * 32768 : -1;
            EXPECT_NEAR(out[2 * i], left, 2);
            EXPECT_NEAR(out[2 * i + 1], right, 2);
        }
    }
}

TEST(Dither, OneVoiceGetsOneNoise) {
    const std::vector<float> voice(101, 0.00001F);
    std::vector<std::int16_t> out(202);
    Dither().toStereo(voice.data(), voice.data(), voice.size(), out.data());
    for (std::size_t i = 0; i < out.size(); i += 2) {
        EXPECT_EQ(out[i], out[i + 1]);
    }
}

} // namespace
