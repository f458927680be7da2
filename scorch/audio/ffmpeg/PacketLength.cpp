// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ffmpeg/PacketLength.h"

#include "scorch/audio/ffmpeg/Bytes.h"

#include <algorithm>

namespace scorch {

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
    const bool jumps =
        packet.pts != AV_NOPTS_VALUE && nextTime_ != AV_NOPTS_VALUE && packet.pts != nextTime_;
    if (packet.duration <= 0 || (packet.flags & AV_PKT_FLAG_CORRUPT) != 0 || jumps) {
        isCertain_ = false;
        return;
    }
    nextTime_ = packet.pts == AV_NOPTS_VALUE ? AV_NOPTS_VALUE : packet.pts + packet.duration;
    if (rate_ == 0) {
        waiting_.push_back(piece);
    } else {
        count(piece);
    }
}

/// In the time base. Two kinds of packets do not decode to the time that they last.
std::int64_t PacketLength::durationOf(const AVPacket &packet) {
    const bool isFirst = firstDuration_ == 0;
    if (isFirst) {
        firstDuration_ = packet.duration;
    }
    if (codec_ == AV_CODEC_ID_VORBIS && isFirst) {
        return 0; // Half of the first window has nothing before it to be added to.
    }
    if (codec_ == AV_CODEC_ID_AAC) {
        return firstDuration_; // The last one may be marked shorter, but is a whole frame.
    }
    return packet.duration;
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
