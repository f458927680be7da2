// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ffmpeg/MediaFile.h"

#include "scorch/audio/ffmpeg/AvLog.h"
#include "scorch/audio/ffmpeg/Bytes.h"
#include "scorch/audio/ffmpeg/Mp4Index.h"
#include "scorch/audio/ffmpeg/Protection.h"
#include "scorch/support/Text.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace scorch {
namespace {

/// How far the library may read ahead to find out what a stream is, where its header does not say.
constexpr std::int64_t analyzeMicroseconds = 2'000'000;

SourceFailure notSound(std::string reason, std::string detail = {}) {
    return {SourceFailure::Kind::notSound, std::move(reason), std::move(detail)};
}

SourceFailure protectedBy(Protection protection) {
    std::string reason;
    if (protection == Protection::mp4Encryption) {
        reason = localized("It is a copy-protected MP4 file, which only its shop's own player can "
                           "play.");
    } else if (protection == Protection::asfEncryption) {
        reason = localized("It is a copy-protected Windows Media file, which only its shop's own "
                           "player can play.");
    } else {
        reason = localized("It is an encrypted book from Audible.");
    }
    return {SourceFailure::Kind::protectedFile, std::move(reason), {}};
}

/// A song is one file. Lists and streams that lead to others, on this computer or not, are none.
int refuseOtherFiles(AVFormatContext *, AVIOContext **, const char *, int, AVDictionary **) {
    return AVERROR(EACCES);
}

/// Whether the header alone told what a decoder needs to know.
bool isComplete(const AVCodecParameters &parameters) {
    return parameters.codec_id != AV_CODEC_ID_NONE && parameters.sample_rate > 0 &&
           parameters.ch_layout.nb_channels > 0;
}

bool isFlac(FileInput &input) {
    std::array<std::byte, 4> start{};
    return input.readAt(id3v2Bytes(input, 0), start) == start.size() &&
           bigEndian32(start.data()) == fourCharacters("fLaC");
}

/// Where Ogg files were joined, the headers of the next stand between packets of sound. A Vorbis
/// decoder knows its own and takes them; an Opus decoder would take them for damage.
bool isOpusHeader(const AVPacket &packet) {
    return packet.size >= 8 && (std::memcmp(packet.data, "OpusHead", 8) == 0 ||
                                std::memcmp(packet.data, "OpusTags", 8) == 0);
}

bool isSound(const AVStream *stream) {
    return stream->codecpar->codec_type == AVMEDIA_TYPE_AUDIO;
}

} // namespace

SourceResult<std::unique_ptr<MediaFile>> MediaFile::open(const std::filesystem::path &path,
                                                         const std::stop_token &stop) {
    captureAvLog();
    SourceResult<std::unique_ptr<FileInput>> input = FileInput::open(path, stop);
    if (!input) {
        return input.error();
    }
    if ((*input)->sizeBytes() == 0) {
        return notSound(localized("It is empty."));
    }
    if (const Protection protection = findProtection(**input); protection != Protection::none) {
        return protectedBy(protection);
    }
    std::unique_ptr<MediaFile> file(new MediaFile);
    file->input_ = std::move(*input);
    std::optional<SourceFailure> failure = file->openContainer(path);
    if (!failure) {
        failure = file->chooseStream();
    }
    if (failure) {
        return *std::move(failure);
    }
    file->findSampleLimit();
    return file;
}

/// The system's own reason if there is one: the library only knows that something went wrong.
std::optional<SourceFailure> MediaFile::failureOf(int code) const {
    if (code >= 0) {
        return std::nullopt;
    }
    if (std::optional<SourceFailure> failure = input_->failure()) {
        return failure;
    }
    return notSound(localized("It is not a sound file, or its beginning is damaged."),
                    takeAvDetail(code));
}

std::optional<SourceFailure> MediaFile::openContainer(const std::filesystem::path &path) {
    // Known beforehand, the format need not be guessed, which takes longest where a large picture
    // stands before the sound.
    mpegAudio_ = summariseMpegAudio(*input_);
    if (isFlac(*input_)) {
        // Tags of other formats behind the last frame would be taken for a part of it.
        input_->setStreamEnd(endBeforeTags(*input_));
    }
    const AVInputFormat *known = mpegAudio_ ? av_find_input_format("mp3") : nullptr;

    AVFormatContext *context = avformat_alloc_context();
    if (context == nullptr) {
        return notSound(localized("There is not enough memory."));
    }
    context->pb = input_->stream();
    context->flags |= AVFMT_FLAG_CUSTOM_IO;
    context->io_open = refuseOtherFiles;
    context->max_analyze_duration = analyzeMicroseconds;
    AVDictionary *options = nullptr;
    // The parser is asked once per this many bytes; the default makes a small song thousands.
    av_dict_set(&options, "raw_packet_size", "32768", 0);
    // The ending helps the guess where the content leaves a doubt; the rest of the name must not,
    // as "a%03d" would mean many files.
    const std::string name = "song" + path.extension().string();
    const int code = avformat_open_input(&context, name.c_str(), known, &options);
    av_dict_free(&options);
    if (code >= 0) {
        format_.reset(context); // On failure it has been freed.
    }
    return failureOf(code);
}

std::optional<SourceFailure> MediaFile::chooseStream() {
    const auto streams = [this] {
        return std::span(format_->streams, format_->nb_streams);
    };
    bool complete = mpegAudio_.has_value();
    if (!complete) {
        bool anySound = false;
        complete = true;
        for (const AVStream *stream : streams()) {
            anySound = anySound || isSound(stream);
            complete = complete && (!isSound(stream) || isComplete(*stream->codecpar));
        }
        complete = complete && anySound;
    }
    if (!complete) {
        if (const int code = avformat_find_stream_info(format_.get(), nullptr); code < 0) {
            return failureOf(code);
        }
    }
    // An MP3 has one stream of sound, of which nothing is known yet; the first is taken.
    int index = -1;
    for (const AVStream *stream : streams()) {
        if (mpegAudio_ && index < 0 && isSound(stream)) {
            index = stream->index;
        }
    }
    if (!mpegAudio_) {
        index = av_find_best_stream(format_.get(), AVMEDIA_TYPE_AUDIO, -1, -1, nullptr, 0);
    }
    if (index < 0) {
        if (std::optional<SourceFailure> failure = input_->failure()) {
            return failure;
        }
        for (const AVStream *stream : streams()) {
            if (stream->codecpar->codec_type == AVMEDIA_TYPE_VIDEO) {
                return notSound(localized("It has pictures, but no sound."));
            }
        }
        return notSound(localized("There is no sound in it."));
    }
    for (AVStream *stream : streams()) {
        stream->discard = stream->index == index ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
        if (stream->index == index) {
            stream_ = stream;
        }
    }
    if (mpegAudio_) {
        walker_ = MpegAudioWalker::open(*input_);
    }
    return std::nullopt;
}

std::optional<std::uint64_t> MediaFile::sampleLimit(std::uint32_t decoderRate) const {
    if (!limit_ || limit_->rate == 0) {
        return std::nullopt;
    }
    return static_cast<std::uint64_t>(
        av_rescale(static_cast<std::int64_t>(limit_->samples), decoderRate, limit_->rate));
}

/// MP3 tells in its first frame what an encoder added at the end; MP4 in its tables, or in a note
/// of the encoder that needs no rounding.
void MediaFile::findSampleLimit() {
    if (mpegAudio_) {
        if (mpegAudio_->uniform) {
            limit_ = {mpegAudio_->length, mpegAudio_->sampleRate};
        }
        return;
    }
    if (!container().starts_with("mov") || parameters().codec_id != AV_CODEC_ID_AAC) {
        return;
    }
    const std::optional<Mp4Index> index = readMp4Index(*input_);
    if (!index || index->soundTracks != 1) {
        return;
    }
    if (index->samples) {
        limit_ = {*index->samples, index->timeScale};
    }
    const AVDictionaryEntry *note = av_dict_get(format_->metadata, "iTunSMPB", nullptr, 0);
    unsigned delay = 0;
    unsigned padding = 0;
    unsigned long long samples = 0;
    if (note != nullptr &&
        std::sscanf(note->value, " %*x %x %x %llx", &delay, &padding, &samples) == 3 &&
        samples > 0 && delay + padding + samples == index->mediaDuration) {
        limit_ = {samples, index->timeScale};
    }
}

int MediaFile::readPacket(AVPacket &packet) {
    if (walker_) {
        return readMpegAudio(packet);
    }
    while (true) {
        const int code = av_read_frame(format_.get(), &packet);
        const bool isHeader =
            code >= 0 && parameters().codec_id == AV_CODEC_ID_OPUS && isOpusHeader(packet);
        if (code < 0 || (packet.stream_index == stream_->index && !isHeader)) {
            return code;
        }
        av_packet_unref(&packet);
    }
}

int MediaFile::readMpegAudio(AVPacket &packet) {
    const std::optional<MpegAudioWalker::Frame> frame = walker_->next();
    if (!frame) {
        return input_->failure() ? AVERROR_EXIT : AVERROR_EOF;
    }
    const std::span<const std::byte> bytes = walker_->bytesOf(*frame);
    if (bytes.empty()) {
        return AVERROR(EIO);
    }
    if (const int code = av_new_packet(&packet, static_cast<int>(bytes.size())); code < 0) {
        return code;
    }
    std::memcpy(packet.data, bytes.data(), bytes.size());
    packet.duration = frame->header.samples;
    if (isFirstPacket_ && mpegAudio_->skipAtStart > 0) {
        std::uint8_t *skip = av_packet_new_side_data(&packet, AV_PKT_DATA_SKIP_SAMPLES, 10);
        if (skip == nullptr) {
            return AVERROR(ENOMEM);
        }
        std::memset(skip, 0, 10);
        for (unsigned i = 0; i < 4; ++i) {
            skip[i] = static_cast<std::uint8_t>(mpegAudio_->skipAtStart >> (8 * i));
        }
    }
    isFirstPacket_ = false;
    return 0;
}

} // namespace scorch
