// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ffmpeg/MpegAudio.h"

#include "scorch/audio/ffmpeg/Bytes.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace scorch {
namespace {

constexpr std::size_t windowBytes = std::size_t{256} << 10;
/// How far behind its tags a file may begin with something else (zeros that an editor left).
constexpr std::uint64_t mostLeadingBytes = std::uint64_t{64} << 10;
/// The polyphase filter and the transform of every Layer III decoder delay the sound by this much,
/// on top of what the encoder says of itself.
constexpr std::uint32_t decoderDelay = 528 + 1;

constexpr std::array<std::uint16_t, 16> bitRatesMpeg1 = {0,   32,  40,  48,  56,  64,  80,  96,
                                                         112, 128, 160, 192, 224, 256, 320, 0};
constexpr std::array<std::uint16_t, 16> bitRatesMpeg2 = {0,  8,  16, 24,  32,  40,  48,  56,
                                                         64, 80, 96, 112, 128, 144, 160, 0};

bool startsWith(std::span<const std::byte> bytes, std::string_view text) {
    return bytes.size() >= text.size() && std::memcmp(bytes.data(), text.data(), text.size()) == 0;
}

} // namespace

std::optional<MpegAudioHeader> parseMpegAudioHeader(std::uint32_t bytes) {
    const std::uint32_t version = (bytes >> 19U) & 3U; // 0: 2.5, 2: 2, 3: 1
    const std::uint32_t layer = (bytes >> 17U) & 3U;   // 1: III
    const std::uint32_t bitRateIndex = (bytes >> 12U) & 15U;
    const std::uint32_t rateIndex = (bytes >> 10U) & 3U;
    if ((bytes >> 21U) != 0x7FFU || version == 1 || layer != 1 || rateIndex == 3) {
        return std::nullopt;
    }
    MpegAudioHeader header;
    header.mpeg1 = version == 3;
    const std::uint32_t kilobits =
        header.mpeg1 ? bitRatesMpeg1.at(bitRateIndex) : bitRatesMpeg2.at(bitRateIndex);
    if (kilobits == 0) {
        return std::nullopt;
    }
    constexpr std::array<std::uint32_t, 3> rates = {44100, 48000, 32000};
    header.sampleRate = rates.at(rateIndex) >> (version == 3 ? 0U : version == 2 ? 1U : 2U);
    header.samples = header.mpeg1 ? 1152 : 576;
    header.mono = ((bytes >> 6U) & 3U) == 3;
    const std::uint32_t padding = (bytes >> 9U) & 1U;
    header.frameBytes = header.samples / 8 * kilobits * 1000 / header.sampleRate + padding;
    return header;
}

std::uint64_t id3v2Bytes(FileInput &input, std::uint64_t offset) {
    std::uint64_t at = offset;
    std::array<std::byte, 10> header{};
    while (input.readAt(at, header) == header.size() && startsWith(header, "ID3")) {
        const bool hasFooter = (header[5] & std::byte{0x10}) != std::byte{0};
        at += header.size() + syncSafe32(header.data() + 6) + (hasFooter ? header.size() : 0);
    }
    return at - offset;
}

std::uint64_t endBeforeTags(FileInput &input) {
    std::uint64_t end = input.sizeBytes();
    std::array<std::byte, 32> bytes{};
    if (end >= 128 && input.readAt(end - 128, bytes) == bytes.size() && startsWith(bytes, "TAG")) {
        end -= 128;
    }
    if (end >= bytes.size() && input.readAt(end - bytes.size(), bytes) == bytes.size() &&
        startsWith(bytes, "APETAGEX")) {
        const bool hasHeader = (littleEndian32(bytes.data() + 20) & 0x80000000U) != 0;
        const std::uint64_t tag =
            std::uint64_t{littleEndian32(bytes.data() + 12)} + (hasHeader ? bytes.size() : 0);
        end -= std::min(tag, end);
    }
    return end;
}

MpegAudioWalker::MpegAudioWalker(FileInput &input, std::uint64_t offset, std::uint64_t end)
    : input_(&input), position_(offset), end_(std::max(offset, end)), buffer_(windowBytes) {}

std::optional<MpegAudioWalker> MpegAudioWalker::open(FileInput &input) {
    const std::uint64_t offset = id3v2Bytes(input, 0);
    MpegAudioWalker walker(input, offset, endBeforeTags(input));
    const std::uint64_t last = std::min(walker.end_, offset + mostLeadingBytes);
    for (std::uint64_t at = offset; at < last; ++at) {
        const std::optional<MpegAudioHeader> header = walker.headerAt(at);
        if (header && walker.isFollowed(at, *header, 3)) {
            walker.position_ = at;
            walker.readEncoderInfo();
            return walker;
        }
    }
    return std::nullopt;
}

/// The bytes at `offset`, as many of the ones asked for as the file has.
std::span<const std::byte> MpegAudioWalker::window(std::uint64_t offset, std::size_t bytes) {
    const bool isThere = offset >= bufferStart_ && offset + bytes <= bufferStart_ + bufferBytes_;
    if (!isThere) {
        bufferStart_ = offset;
        bufferBytes_ = input_->stopRequested() ? 0 : input_->readAt(offset, buffer_);
    }
    const std::size_t from = offset - bufferStart_;
    return std::span<const std::byte>(buffer_).subspan(
        from, std::min(bytes, bufferBytes_ - std::min(from, bufferBytes_)));
}

std::optional<std::uint32_t> MpegAudioWalker::peek32(std::uint64_t offset) {
    if (offset + 4 > end_) {
        return std::nullopt;
    }
    const std::span<const std::byte> bytes = window(offset, 4);
    return bytes.size() < 4 ? std::nullopt : std::optional(bigEndian32(bytes.data()));
}

std::optional<MpegAudioHeader> MpegAudioWalker::headerAt(std::uint64_t offset) {
    const std::optional<std::uint32_t> bytes = peek32(offset);
    return bytes ? parseMpegAudioHeader(*bytes) : std::nullopt;
}

/// Whether `frames` more headers follow the one at `offset`, or the end of the file comes first.
bool MpegAudioWalker::isFollowed(std::uint64_t offset, const MpegAudioHeader &header, int frames) {
    std::uint64_t at = offset + header.frameBytes;
    for (int i = 0; i < frames; ++i) {
        if (at == end_) {
            return true;
        }
        const std::optional<MpegAudioHeader> next = headerAt(at);
        if (!next || !next->continues(header)) {
            return false;
        }
        at += next->frameBytes;
    }
    return true;
}

std::optional<MpegAudioWalker::Frame> MpegAudioWalker::next() {
    while (true) {
        const std::optional<MpegAudioHeader> header = headerAt(position_);
        if (!header) {
            if (!resynchronise()) {
                return std::nullopt;
            }
            continue;
        }
        if (position_ + header->frameBytes > end_) {
            return std::nullopt; // Cut off in the middle.
        }
        const Frame frame{*header, position_};
        position_ += header->frameBytes;
        return frame;
    }
}

/// Goes to the next place that looks like a frame. False at the end.
bool MpegAudioWalker::resynchronise() {
    const std::uint64_t start = position_;
    position_ += id3v2Bytes(*input_, position_);
    if (position_ != start) {
        return position_ < end_;
    }
    const std::span<const std::byte> tag = window(position_, 3);
    if (startsWith(tag, "TAG") && position_ + 128 <= end_) {
        position_ += 128;
        return true;
    }
    while (++position_ < end_) {
        const std::optional<MpegAudioHeader> header = headerAt(position_);
        if (header && isFollowed(position_, *header, 1)) {
            junkBytes_ += position_ - start;
            return true;
        }
        if (const std::span<const std::byte> bytes = window(position_, 3);
            bytes.size() < 3 || startsWith(bytes, "ID3") || startsWith(bytes, "TAG")) {
            junkBytes_ += position_ - start;
            return !bytes.empty();
        }
    }
    junkBytes_ += end_ - start;
    return false;
}

std::span<const std::byte> MpegAudioWalker::bytesOf(const Frame &frame) {
    const std::span<const std::byte> bytes = window(frame.offset, frame.header.frameBytes);
    return bytes.size() == frame.header.frameBytes ? bytes : std::span<const std::byte>();
}

/// The first frame of most files holds no sound but a table of the others, and, from LAME on, what
/// the encoder added at both ends.
void MpegAudioWalker::readEncoderInfo() {
    const std::optional<MpegAudioHeader> header = headerAt(position_);
    if (!header) {
        return;
    }
    const std::span<const std::byte> frame = window(position_, header->frameBytes);
    const std::size_t sideBytes =
        header->mpeg1 ? (header->mono ? 17 : 32) : (header->mono ? 9 : 17);
    const auto at = [frame](std::size_t offset) {
        return frame.subspan(std::min(offset, frame.size()));
    };
    if (startsWith(at(4 + 32), "VBRI")) {
        position_ += header->frameBytes;
        return;
    }
    std::size_t offset = 4 + sideBytes;
    if (!startsWith(at(offset), "Xing") && !startsWith(at(offset), "Info")) {
        return;
    }
    position_ += header->frameBytes;
    if (at(offset).size() < 8) {
        return;
    }
    const std::uint32_t flags = bigEndian32(at(offset + 4).data());
    offset += 8;
    if ((flags & 1U) != 0 && at(offset).size() >= 4) {
        encoderInfo_.frames = bigEndian32(at(offset).data());
    }
    offset += ((flags & 1U) != 0 ? 4U : 0U) + ((flags & 2U) != 0 ? 4U : 0U) +
              ((flags & 4U) != 0 ? 100U : 0U) + ((flags & 8U) != 0 ? 4U : 0U);
    const std::span<const std::byte> lame = at(offset);
    const bool isKnown =
        startsWith(lame, "LAME") || startsWith(lame, "Lavf") || startsWith(lame, "Lavc");
    if (isKnown && lame.size() >= 24) {
        const std::uint32_t gaps =
            (bigEndian16(lame.data() + 21) << 8U) | std::to_integer<std::uint32_t>(lame[23]);
        encoderInfo_.hasGaps = true;
        encoderInfo_.delay = gaps >> 12U;
        encoderInfo_.padding = gaps & 0xFFFU;
    }
}

std::optional<MpegAudioSummary> summariseMpegAudio(FileInput &input) {
    std::optional<MpegAudioWalker> walker = MpegAudioWalker::open(input);
    if (!walker) {
        return std::nullopt;
    }
    MpegAudioSummary summary;
    std::uint64_t frames = 0;
    std::uint64_t bytes = 0;
    std::optional<MpegAudioHeader> first;
    while (const std::optional<MpegAudioWalker::Frame> frame = walker->next()) {
        if (!first) {
            first = frame->header;
        }
        summary.uniform = summary.uniform && frame->header.continues(*first);
        summary.samples += frame->header.samples;
        bytes += frame->header.frameBytes;
        ++frames;
    }
    if (!first || input.failure() || walker->junkBytes() > bytes) {
        return std::nullopt;
    }
    summary.sampleRate = first->sampleRate;
    summary.length = summary.samples;
    const MpegAudioWalker::EncoderInfo &info = walker->encoderInfo();
    if (info.hasGaps && summary.uniform) {
        const std::uint64_t skip = info.delay + decoderDelay;
        summary.skipAtStart = static_cast<std::uint32_t>(std::min(skip, summary.samples));
        summary.length -= summary.skipAtStart;
        // The padding counts from the end that the encoder knew: a file that was cut or joined
        // since has it no longer, or somewhere else.
        if (info.frames == frames && info.padding > decoderDelay) {
            summary.length -= std::min<std::uint64_t>(summary.length, info.padding - decoderDelay);
        }
    }
    return summary;
}

} // namespace scorch
