// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ffmpeg/SoundDecoder.h"

#include "scorch/audio/ffmpeg/AvLog.h"
#include "scorch/support/Text.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace scorch {
namespace {

/// Raw samples come in packets of any size; one that was cut off in the middle of a sample frame
/// ends with bytes that are none.
void dropPartSample(const AVCodecParameters &parameters, AVPacket &packet) {
    const bool isPcm = parameters.codec_id >= AV_CODEC_ID_FIRST_AUDIO &&
                       parameters.codec_id < AV_CODEC_ID_ADPCM_IMA_QT;
    if (isPcm && parameters.block_align > 0) {
        packet.size -= packet.size % parameters.block_align;
    }
}

} // namespace

SourceResult<std::unique_ptr<SoundDecoder>> SoundDecoder::open(MediaFile &file) {
    const AVCodecParameters &parameters = file.parameters();
    const char *name = avcodec_get_name(parameters.codec_id);
    const AVCodec *codec = avcodec_find_decoder(parameters.codec_id);
    if (codec == nullptr) {
        const std::string reason =
            parameters.codec_id == AV_CODEC_ID_NONE
                ? localized("Its sound is in a format that is not known here.")
                : localized("There is no decoder for its sound (%@).", {name});
        return SourceFailure{SourceFailure::Kind::notSound, reason, name};
    }
    std::unique_ptr<SoundDecoder> decoder(new SoundDecoder(file));
    decoder->context_.reset(avcodec_alloc_context3(codec));
    decoder->packet_.reset(av_packet_alloc());
    decoder->frame_.reset(av_frame_alloc());
    int code = AVERROR(ENOMEM);
    if (decoder->context_ && decoder->packet_ && decoder->frame_) {
        code = avcodec_parameters_to_context(decoder->context_.get(), &parameters);
    }
    if (code >= 0) {
        // Songs are decoded side by side, each in one thread.
        decoder->context_->thread_count = 1;
        decoder->context_->pkt_timebase = file.stream().time_base;
        code = avcodec_open2(decoder->context_.get(), codec, nullptr);
    }
    if (code < 0) {
        return SourceFailure{SourceFailure::Kind::notSound,
                             localized("Its sound (%@) cannot be decoded.", {name}),
                             takeAvDetail(code)};
    }
    return decoder;
}

SourceFailure SoundDecoder::failureOf(int code) const {
    if (std::optional<SourceFailure> failure = file_.input().failure()) {
        return *std::move(failure);
    }
    return {SourceFailure::Kind::damaged, localized("It is damaged or cut off."),
            takeAvDetail(code)};
}

/// Takes off what lies behind the end of the song. False if nothing is left.
bool SoundDecoder::cutAtLimit() {
    if (!std::exchange(hasFrame_, true)) {
        limit_ = file_.sampleLimit(static_cast<std::uint32_t>(std::max(frame_->sample_rate, 0)));
    }
    if (!limit_) {
        return true;
    }
    const auto samples = static_cast<std::uint64_t>(frame_->nb_samples);
    frame_->nb_samples = static_cast<int>(std::min(samples, *limit_));
    *limit_ -= static_cast<std::uint64_t>(frame_->nb_samples);
    return frame_->nb_samples > 0;
}

SourceResult<AVFrame *> SoundDecoder::nextFrame() {
    while (true) {
        if (file_.input().stopRequested()) {
            return failureOf(AVERROR_EXIT);
        }
        int code = avcodec_receive_frame(context_.get(), frame_.get());
        if (code >= 0) {
            if (frame_->nb_samples > 0 && cutAtLimit()) {
                return frame_.get();
            }
            continue;
        }
        if (code == AVERROR_EOF) {
            return nullptr;
        }
        if (code != AVERROR(EAGAIN)) {
            return failureOf(code);
        }
        code = file_.readPacket(*packet_);
        if (code == AVERROR_EOF && !file_.input().failure()) {
            code = avcodec_send_packet(context_.get(), nullptr);
        } else if (code >= 0) {
            dropPartSample(file_.parameters(), *packet_);
            // An empty packet would mean the end to a decoder.
            code = packet_->size > 0 ? avcodec_send_packet(context_.get(), packet_.get()) : 0;
            av_packet_unref(packet_.get());
        }
        if (code < 0) {
            return failureOf(code);
        }
    }
}

SourceResult<AVFrame *> SoundDecoder::decode(const AVPacket &packet) {
    int code = avcodec_send_packet(context_.get(), &packet);
    if (code >= 0) {
        code = avcodec_receive_frame(context_.get(), frame_.get());
    }
    if (code == AVERROR(EAGAIN)) {
        return nullptr;
    }
    if (code < 0) {
        return failureOf(code);
    }
    return frame_.get();
}

} // namespace scorch
