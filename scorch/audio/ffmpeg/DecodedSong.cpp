// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ffmpeg/DecodedSong.h"

#include "scorch/audio/SongErrors.h"

#include <algorithm>
#include <utility>

namespace scorch {
namespace {

/// Of a song that was fine when it was checked.
Interruption interruptionOf(const std::filesystem::path &path, const SourceFailure &failure) {
    std::string detail = failure.reason;
    if (!failure.detail.empty()) {
        detail += " (" + failure.detail + ")";
    }
    switch (failure.kind) {
    case SourceFailure::Kind::cancelled:
        return Cancelled{};
    case SourceFailure::Kind::missing:
        return songMissing(path, std::move(detail));
    case SourceFailure::Kind::protectedFile:
    case SourceFailure::Kind::notSound:
        return songChanged(path, std::move(detail));
    case SourceFailure::Kind::unreadable:
    case SourceFailure::Kind::damaged:
        break;
    }
    return songUnreadable(path, std::move(detail));
}

} // namespace

DecodedSong::DecodedSong(std::filesystem::path path, std::unique_ptr<MediaFile> file,
                         std::unique_ptr<SoundDecoder> decoder)
    : path_(std::move(path)), file_(std::move(file)), decoder_(std::move(decoder)) {}

Outcome<std::unique_ptr<SongStream>> DecodedSong::open(const std::filesystem::path &path,
                                                       const std::stop_token &stop) {
    SourceResult<std::unique_ptr<MediaFile>> file = MediaFile::open(path, stop);
    if (!file) {
        return interruptionOf(path, file.error());
    }
    SourceResult<std::unique_ptr<SoundDecoder>> decoder = SoundDecoder::open(**file);
    if (!decoder) {
        return interruptionOf(path, decoder.error());
    }
    return std::unique_ptr<SongStream>(
        new DecodedSong(path, std::move(*file), std::move(*decoder)));
}

/// Puts the next frame into ready_, which is empty.
std::optional<SourceFailure> DecodedSong::decodeMore() {
    ready_.clear();
    used_ = 0;
    const SourceResult<AVFrame *> frame = decoder_->nextFrame();
    if (!frame) {
        return frame.error();
    }
    if (*frame == nullptr) {
        hasEnded_ = true;
        return converter_.finish(ready_);
    }
    return converter_.add(**frame, decoder_->validBits(), ready_);
}

Outcome<std::size_t> DecodedSong::read(std::span<std::int16_t> values,
                                       const std::stop_token &stop) {
    file_->input().setStopToken(stop);
    std::size_t filled = 0;
    while (filled < values.size()) {
        if (used_ == ready_.size()) {
            if (hasEnded_) {
                break;
            }
            if (std::optional<SourceFailure> failure = decodeMore()) {
                return interruptionOf(path_, *failure);
            }
            continue;
        }
        const std::size_t count = std::min(values.size() - filled, ready_.size() - used_);
        std::copy_n(ready_.begin() + static_cast<std::ptrdiff_t>(used_), count,
                    values.begin() + static_cast<std::ptrdiff_t>(filled));
        used_ += count;
        filled += count;
    }
    return filled;
}

} // namespace scorch
