// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/audio/ffmpeg/AvHandles.h"

#include <cstdint>
#include <vector>

namespace scorch {

/// Whether a codec is no codec at all, but samples as they are.
constexpr bool isRawSound(AVCodecID codec) {
    return codec >= AV_CODEC_ID_PCM_S16LE && codec < AV_CODEC_ID_ADPCM_IMA_QT;
}

/// What the duration of a last packet tells of the padding that it is marked to lose.
enum class PaddingIn {
    duration,   ///< The padding is part of it, and still to be taken off.
    markingOnly ///< The duration ends where the padding starts, as Ogg's does.
};

/// Adds up how many samples packets decode to, with the marks on them that make a decoder drop
/// some. Says so when the packets do not tell for certain: a duration is missing or is no whole
/// number of samples, a packet is damaged, or time jumps, as where one stream was joined to
/// another.
class PacketLength {
public:
    PacketLength(const AVStream &stream, PaddingIn padding);

    /// The rate of the decoded samples. Packets added before are counted once it is known.
    void setSampleRate(std::uint32_t rate);

    void add(const AVPacket &packet);

    bool isCertain() const { return isCertain_; }
    std::uint64_t samples() const { return samples_; }

private:
    struct Piece {
        std::int64_t duration = 0; ///< In the time base.
        std::int64_t skip = -1;    ///< Samples to drop from here on, −1 for what remains.
        std::int64_t discard = 0;  ///< Samples to drop at the end of this packet.
        bool dropped = false;      ///< Decoded, but not played.
    };

    std::int64_t durationOf(const AVPacket &packet);
    void count(const Piece &piece);

    AVRational timeBase_;
    AVCodecID codec_;
    AvHandle<AVVorbisParseContext> vorbis_; ///< Where the codec is that.
    PaddingIn padding_;
    bool isFirstPacket_ = true;
    std::int64_t firstDuration_ = 0;
    std::int64_t rate_ = 0;
    bool isCertain_ = true;
    std::uint64_t samples_ = 0;
    std::int64_t skip_ = 0;
    std::int64_t lastTime_ = AV_NOPTS_VALUE;
    std::int64_t nextTime_ = AV_NOPTS_VALUE;
    std::vector<Piece> waiting_; ///< Came before the rate was known.
};

} // namespace scorch
