// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ffmpeg/PacketLength.h"

#include "scorch/audio/ffmpeg/Bytes.h"

#include <algorithm>
#include <utility>

namespace scorch {

PacketLength::PacketLength(const AVStream &stream, PaddingIn padding)
    : timeBase_(stream.time_base), codec_(stream.codecpar->codec_id), padding_(padding) {
    if (codec_ == AV_CODEC_ID_VORBIS) {
        // Where blocks change their length the container's durations are wrong. Those that the
        // packets tell themselves know nothing of padding.
        padding_ = PaddingIn::duration;
        vorbis_.reset(
            av_vorbis_parse_init(stream.codecpar->extradata, stream.codecpar->extradata_size));
        isCertain_ = vorbis_ != nullptr;
    }
}

void PacketLength::setSampleRate(std::uint32_t rate) {
    rate_ = rate;
    for (const Piece &piece : waiting_) {
        count(piece);
    }
    waiting_.clear();
}

void PacketLength::add(const AVPacket &packet) {
    Piece piece;
    piece.duration = durationOf(packet);
    piece.dropped = (packet.flags & AV_PKT_FLAG_DISCARD) != 0;
    std::size_t bytes = 0;
    const std::uint8_t *marks = av_packet_get_side_data(&packet, AV_PKT_DATA_SKIP_SAMPLES, &bytes);
    if (marks != nullptr && bytes >= 8) {
        const auto *at = reinterpret_cast<const std::byte *>(marks);
        piece.skip = static_cast<std::int32_t>(littleEndian32(at));
        if (padding_ == PaddingIn::duration) {
            piece.discard = static_cast<std::int32_t>(littleEndian32(at + 4));
        }
    }
    // Between Vorbis packets the container's time may be off by a part of a window.
    const bool isKnown = packet.pts != AV_NOPTS_VALUE && nextTime_ != AV_NOPTS_VALUE;
    const bool jumps = isKnown && (vorbis_ ? packet.pts < lastTime_ : packet.pts != nextTime_);
    if (piece.duration < 0 || (packet.flags & AV_PKT_FLAG_CORRUPT) != 0 || jumps) {
        isCertain_ = false;
        return;
    }
    lastTime_ = packet.pts;
    nextTime_ = packet.pts == AV_NOPTS_VALUE ? AV_NOPTS_VALUE : packet.pts + packet.duration;
    if (rate_ == 0) {
        waiting_.push_back(piece);
    } else {
        count(piece);
    }
}

/// In the time base, −1 if the packet does not tell. Two kinds of packets do not decode to the time
/// that the container says they last.
std::int64_t PacketLength::durationOf(const AVPacket &packet) {
    const bool isFirst = std::exchange(isFirstPacket_, false);
    if (isFirst) {
        firstDuration_ = packet.duration;
    }
    if (vorbis_) {
        const int samples = av_vorbis_parse_frame(vorbis_.get(), packet.data, packet.size);
        // The first half of the first window has nothing before it to be added to.
        return isFirst ? 0 : samples > 0 ? samples : -1;
    }
    if (codec_ == AV_CODEC_ID_AAC) {
        return firstDuration_; // The last one may be marked shorter, but is a whole frame.
    }
    return packet.duration > 0 ? packet.duration : -1;
}

/// The same steps as the library takes between decoding and delivering.
void PacketLength::count(const Piece &piece) {
    const std::int64_t scaled = piece.duration * timeBase_.num * rate_;
    if (scaled % timeBase_.den != 0) {
        isCertain_ = false;
        return;
    }
    std::int64_t samples = scaled / timeBase_.den;
    if (piece.skip >= 0) {
        skip_ = piece.skip;
    }
    if (piece.dropped) {
        skip_ = std::max<std::int64_t>(skip_ - samples, 0);
        return;
    }
    const std::int64_t skipped = std::min(skip_, samples);
    skip_ -= skipped;
    samples -= skipped;
    if (piece.discard > 0 && piece.discard <= samples) {
        samples -= piece.discard;
    }
    samples_ += static_cast<std::uint64_t>(samples);
}

} // namespace scorch
