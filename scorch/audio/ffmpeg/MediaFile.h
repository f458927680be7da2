// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/audio/ffmpeg/AvHandles.h"
#include "scorch/audio/ffmpeg/FileInput.h"
#include "scorch/audio/ffmpeg/MpegAudio.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>

namespace scorch {

/// An opened file with the sound that a person means by it: the best sound stream, whatever
/// pictures stand beside it. Hands out the packets of that stream in order. Used by one thread.
class MediaFile {
public:
    static SourceResult<std::unique_ptr<MediaFile>> open(const std::filesystem::path &path,
                                                         const std::stop_token &stop);

    FileInput &input() { return *input_; }
    AVFormatContext &format() { return *format_; }
    AVStream &stream() { return *stream_; }
    const AVCodecParameters &parameters() const { return *stream_->codecpar; }

    /// The short name of the container ("mp3", "ogg", "mov,mp4,m4a,…").
    std::string_view container() const { return format_->iformat->name; }

    /// The next packet: 0, AVERROR_EOF behind the last, or another error of the library.
    int readPacket(AVPacket &packet);

    /// Set if this is an MP3 that we walk through ourselves: many times faster than the library's
    /// parser, and the same frames when counting and when decoding.
    const std::optional<MpegAudioSummary> &mpegAudio() const { return mpegAudio_; }

    /// How many samples at `decoderRate`, the rate that the decoder turns out to deliver, the song
    /// has once what the decoder takes off at the start is gone; the rest is the encoder's padding.
    /// Nothing if the packets tell.
    std::optional<std::uint64_t> sampleLimit(std::uint32_t decoderRate) const;

private:
    MediaFile() = default;

    std::optional<SourceFailure> openContainer(const std::filesystem::path &path);
    std::optional<SourceFailure> chooseStream();
    std::optional<SourceFailure> failureOf(int code) const;
    void findSampleLimit();
    int readMpegAudio(AVPacket &packet);

    std::unique_ptr<FileInput> input_; ///< Before format_, which reads it until it is closed.
    AvHandle<AVFormatContext> format_;
    AVStream *stream_ = nullptr; ///< Owned by format_.
    std::optional<MpegAudioSummary> mpegAudio_;
    std::optional<MpegAudioWalker> walker_;
    bool isFirstPacket_ = true;

    /// A number of samples at a rate of its own: some encodings double the rate on their way.
    struct Limit {
        std::uint64_t samples = 0;
        std::uint32_t rate = 0;
    };
    std::optional<Limit> limit_;
};

} // namespace scorch
