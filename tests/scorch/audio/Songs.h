// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/audio/AudioBackend.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

// The songs that tests play with, and what our code and the ffmpeg program make of them.

/// The path of one of the songs that the build made.
std::filesystem::path song(const std::string &name);

/// What a check says.
scorch::AudioProbe probe(const std::filesystem::path &path);
/// What a check finds out; fails the test and is empty if the file was refused.
scorch::AudioInfo accepted(const std::filesystem::path &path);
/// Why a check refuses; fails the test if it does not.
scorch::AudioRefusal refused(const std::filesystem::path &path);

/// The values of a song as our decoder delivers them, without padding. Fails the test if it fails.
std::vector<std::int16_t> decoded(const std::filesystem::path &path);
/// The error with which decoding ends; fails the test if it does not.
ScorchError decodingError(const std::filesystem::path &path);

/// The same song decoded by the ffmpeg program: 16-bit stereo at 44.1 kHz.
std::vector<std::int16_t> decodedByFfmpeg(const std::filesystem::path &path);

/// Sample frames of a vector of values.
inline std::uint64_t samplesIn(const std::vector<std::int16_t> &values) {
    return values.size() / 2;
}

/// How many samples the song that all files were made from has.
inline constexpr std::uint64_t songSamples = 233777;
