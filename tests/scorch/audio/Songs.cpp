// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/audio/Songs.h"

#include "scorch/audio/ffmpeg/DecodedSong.h"
#include "scorch/audio/ffmpeg/FfmpegBackend.h"
#include "tests/support/CommandResult.h"
#include "tests/support/TemporaryFolder.h"

#include <cstring>
#include <gtest/gtest.h>

namespace {

/// Decodes to the end or to the error, which is handed out.
std::optional<scorch::Interruption> decodeInto(std::vector<std::int16_t> &values,
                                               const std::filesystem::path &path) {
    scorch::Outcome<std::unique_ptr<scorch::SongStream>> song = scorch::DecodedSong::open(path, {});
    if (!song) {
        return song.error();
    }
    std::vector<std::int16_t> part(10000);
    while (true) {
        const scorch::Outcome<std::size_t> got = (*song)->read(part, {});
        if (!got) {
            return got.error();
        }
        if (*got == 0) {
            return std::nullopt;
        }
        values.insert(values.end(), part.begin(), part.begin() + static_cast<std::ptrdiff_t>(*got));
    }
}

} // namespace

std::filesystem::path song(const std::string &name) {
    return std::filesystem::path(TEST_MEDIA_DIR) / name;
}

scorch::AudioProbe probe(const std::filesystem::path &path) {
    return scorch::FfmpegBackend().probe(path, {});
}

scorch::AudioInfo accepted(const std::filesystem::path &path) {
    const scorch::AudioProbe result = probe(path);
    if (const auto *info = std::get_if<scorch::AudioInfo>(&result)) {
        return *info;
    }
    const auto *refusal = std::get_if<scorch::AudioRefusal>(&result);
    ADD_FAILURE() << path << " was refused: " << (refusal ? refusal->reason : "cancelled");
    return {};
}

scorch::AudioRefusal refused(const std::filesystem::path &path) {
    const scorch::AudioProbe result = probe(path);
    if (const auto *refusal = std::get_if<scorch::AudioRefusal>(&result)) {
        return *refusal;
    }
    ADD_FAILURE() << path << " was not refused";
    return {};
}

std::vector<std::int16_t> decoded(const std::filesystem::path &path) {
    std::vector<std::int16_t> values;
    const std::optional<scorch::Interruption> failure = decodeInto(values, path);
    if (failure) {
        const auto *error = std::get_if<ScorchError>(&*failure);
        ADD_FAILURE() << path << ": "
                      << (error ? error->localizedDescription() + " " + error->detail()
                                : "cancelled");
    }
    return values;
}

ScorchError decodingError(const std::filesystem::path &path) {
    std::vector<std::int16_t> values;
    const std::optional<scorch::Interruption> failure = decodeInto(values, path);
    if (!failure || scorch::isCancelled(*failure)) {
        ADD_FAILURE() << path << " was decoded to its end";
        return {ScorchErrorCode::internal, {}};
    }
    return std::get<ScorchError>(*failure);
}

std::vector<std::int16_t> decodedByFfmpeg(const std::filesystem::path &path) {
    const TemporaryFolder folder;
    const std::filesystem::path out = folder / "out.pcm";
    const CommandResult result =
        runCommand({"ffmpeg", "-nostdin", "-v", "error", "-i", path.string(), "-vn", "-f", "s16le",
                    "-ac", "2", "-ar", "44100", out.string()});
    EXPECT_EQ(result.exitCode, 0) << result.output;
    const std::string bytes = readFile(out);
    std::vector<std::int16_t> values(bytes.size() / sizeof(std::int16_t));
    std::memcpy(values.data(), bytes.data(), values.size() * sizeof(std::int16_t));
    return values;
}
