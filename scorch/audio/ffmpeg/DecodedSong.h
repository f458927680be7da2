// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/audio/SongStream.h"
#include "scorch/audio/ffmpeg/MediaFile.h"
#include "scorch/audio/ffmpeg/SoundDecoder.h"
#include "scorch/audio/ffmpeg/StereoConverter.h"

#include <filesystem>
#include <memory>
#include <vector>

namespace scorch {

/// A song from a file, decoded as it is read.
class DecodedSong final : public SongStream {
public:
    /// Errors name the file.
    static Outcome<std::unique_ptr<SongStream>> open(const std::filesystem::path &path,
                                                     const std::stop_token &stop);

    Outcome<std::size_t> read(std::span<std::int16_t> values, const std::stop_token &stop) override;

private:
    DecodedSong(std::filesystem::path path, std::unique_ptr<MediaFile> file,
                std::unique_ptr<SoundDecoder> decoder);

    std::optional<SourceFailure> decodeMore();

    const std::filesystem::path path_;
    std::unique_ptr<MediaFile> file_;
    std::unique_ptr<SoundDecoder> decoder_; ///< Reads file_.
    StereoConverter converter_;
    std::vector<std::int16_t> ready_; ///< Decoded, and not read yet from `used_` on.
    std::size_t used_ = 0;
    bool hasEnded_ = false;
};

} // namespace scorch
