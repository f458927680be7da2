// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/audio/ffmpeg/FileInput.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace scorch {

/// The header of one frame of MPEG-1, MPEG-2 or MPEG-2.5 Layer III (ISO/IEC 11172-3, 13818-3).
struct MpegAudioHeader {
    std::uint32_t frameBytes = 0; ///< The header included.
    std::uint32_t sampleRate = 0;
    std::uint32_t samples = 0; ///< 1152 or 576.
    bool mono = false;
    bool mpeg1 = false;

    /// Whether frames of both may follow each other in one piece of sound.
    bool continues(const MpegAudioHeader &other) const {
        return sampleRate == other.sampleRate && samples == other.samples && mono == other.mono;
    }
};

/// Reads the four bytes of a header; nothing if they are none, or if the frame has no fixed size
/// ("free format", which nobody's encoder makes).
std::optional<MpegAudioHeader> parseMpegAudioHeader(std::uint32_t bytes);

/// Goes through an MP3 file frame by frame, reading headers only: tags before, behind and between
/// the frames are stepped over, and after damage it goes on at the next place where two headers
/// follow each other. Both the count and the decoding of a song go through this class, so they
/// agree whatever the file holds.
class MpegAudioWalker {
public:
    struct Frame {
        MpegAudioHeader header;
        std::uint64_t offset = 0;
    };

    /// Nothing if there is no Layer III right behind the tags.
    static std::optional<MpegAudioWalker> open(FileInput &input);

    /// The next whole frame, nothing at the end. A frame that says how the file was made (Xing,
    /// Info, VBRI) holds no sound and is left out.
    std::optional<Frame> next();

    /// The bytes of the frame that next() has just returned; valid until the next call. Nothing if
    /// the file became shorter or cannot be read.
    std::span<const std::byte> bytesOf(const Frame &frame);

    /// What the first frame says of the encoder, all zero where it says nothing.
    struct EncoderInfo {
        std::uint64_t frames = 0;
        std::uint32_t delay = 0;   ///< Samples that the encoder put before the song.
        std::uint32_t padding = 0; ///< Samples that it put behind it.
        bool hasGaps = false;      ///< The two above are known.
    };
    const EncoderInfo &encoderInfo() const { return encoderInfo_; }

    /// Bytes between frames that were neither frames nor tags.
    std::uint64_t junkBytes() const { return junkBytes_; }

private:
    MpegAudioWalker(FileInput &input, std::uint64_t offset, std::uint64_t end);

    std::optional<std::uint32_t> peek32(std::uint64_t offset);
    std::span<const std::byte> window(std::uint64_t offset, std::size_t bytes);
    std::optional<MpegAudioHeader> headerAt(std::uint64_t offset);
    bool isFollowed(std::uint64_t offset, const MpegAudioHeader &header, int frames);
    bool resynchronise();
    void readEncoderInfo();

    FileInput *input_;
    std::uint64_t position_; ///< Where the next frame should be.
    std::uint64_t end_;      ///< Of the frames: tags at the end of the file lie behind it.
    std::uint64_t junkBytes_ = 0;
    EncoderInfo encoderInfo_;
    std::vector<std::byte> buffer_;
    std::uint64_t bufferStart_ = 0;
    std::size_t bufferBytes_ = 0;
};

/// What a whole MP3 file holds.
struct MpegAudioSummary {
    std::uint64_t samples = 0;     ///< At the file's own rate, before anything is trimmed.
    std::uint32_t skipAtStart = 0; ///< Samples that are not the song's: encoder and decoder delay.
    std::uint64_t length = 0;      ///< Samples of the song.
    std::uint32_t sampleRate = 0;
    bool uniform = true; ///< One rate and one number of channels throughout.
};

/// Walks the whole file; nothing if it is no MP3, is too broken to be one, or if a stop was
/// requested meanwhile.
std::optional<MpegAudioSummary> summariseMpegAudio(FileInput &input);

/// The size of the ID3v2 tags at `offset`, one behind the other; 0 if there are none.
std::uint64_t id3v2Bytes(FileInput &input, std::uint64_t offset);

/// Where the content ends and the tags at the end of the file (ID3v1, APEv2) begin.
std::uint64_t endBeforeTags(FileInput &input);

} // namespace scorch
