// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ffmpeg/SongLength.h"

#include "scorch/audio/ffmpeg/Bytes.h"
#include "scorch/audio/ffmpeg/FlacTail.h"
#include "scorch/audio/ffmpeg/MediaFile.h"
#include "scorch/audio/ffmpeg/PacketLength.h"
#include "scorch/audio/ffmpeg/SoundDecoder.h"
#include "scorch/audio/ffmpeg/StereoConverter.h"
#include "scorch/support/Text.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>

namespace scorch {
namespace {

/// A length at the rate of the decoder, or the news that only decoding can tell.
using SourceLength = std::optional<std::uint64_t>;

SourceFailure cutOff(std::string detail) {
    return {SourceFailure::Kind::damaged,
            localized("It is cut off: the end of the song is missing."), std::move(detail)};
}

/// The bytes of sound that the header promises, 0 where it does not say. The library's own idea of
/// a WAV file's is the smaller of this and what is there.
std::int64_t promisedBytes(MediaFile &file, std::int64_t start) {
    std::array<std::byte, 8> chunk{};
    if (file.container() == "wav" && start >= 8 &&
        file.input().readAt(static_cast<std::uint64_t>(start) - 8, chunk) == chunk.size() &&
        bigEndian32(chunk.data()) == fourCharacters("data") &&
        littleEndian32(chunk.data() + 4) != 0xFFFFFFFF) {
        return littleEndian32(chunk.data() + 4);
    }
    return std::max<std::int64_t>(file.stream().duration, 0) * file.parameters().block_align;
}

/// Raw samples in a WAV or AIFF file: as many as the bytes of its data. A program that wrote to a
/// pipe could not know how many there would be, and left a size of nothing or of (nearly) all that
/// the field holds: then the data go on to the end of the file.
SourceResult<SourceLength> countRawSamples(MediaFile &file) {
    constexpr std::int64_t sizesOfStreams = 0x7FFF0000;
    const std::int64_t start = avio_tell(file.format().pb);
    const std::int64_t there = static_cast<std::int64_t>(file.input().sizeBytes()) - start;
    const std::int64_t block = file.parameters().block_align;
    if (block <= 0 || start <= 0 || there < 0) {
        return SourceLength();
    }
    const std::int64_t promised = promisedBytes(file, start);
    if (promised == 0 || (promised >= sizesOfStreams && promised > there)) {
        return SourceLength(static_cast<std::uint64_t>(there / block));
    }
    if (promised > there) {
        return cutOff("data of " + std::to_string(promised) + " bytes, " + std::to_string(there) +
                      " there");
    }
    // A second piece of data behind the first is rare, and played.
    AvHandle<AVPacket> packet(av_packet_alloc());
    if (!packet || avio_seek(file.format().pb, start + promised, SEEK_SET) < 0 ||
        file.readPacket(*packet) != AVERROR_EOF) {
        return SourceLength();
    }
    return SourceLength(static_cast<std::uint64_t>(promised / block));
}

/// Whether a movie file has all the bytes that its tables point at.
bool hasAllSamples(MediaFile &file) {
    const int entries = avformat_index_get_entries_count(&file.stream());
    const auto size = static_cast<std::int64_t>(file.input().sizeBytes());
    for (int i = 0; i < entries; ++i) {
        const AVIndexEntry *entry = avformat_index_get_entry(&file.stream(), i);
        if (entry != nullptr && entry->pos + entry->size > size) {
            return false;
        }
    }
    return true;
}

/// Containers and codecs whose packets say exactly how many samples they decode to.
bool hasExactPackets(const MediaFile &file) {
    const std::string_view container = file.container();
    switch (file.parameters().codec_id) {
    case AV_CODEC_ID_AAC:
        return container.starts_with("mov") || container == "aac";
    case AV_CODEC_ID_ALAC:
        return container.starts_with("mov");
    case AV_CODEC_ID_FLAC:
    case AV_CODEC_ID_OPUS:
    case AV_CODEC_ID_VORBIS:
        return container == "ogg";
    case AV_CODEC_ID_WAVPACK:
        return container == "wv";
    case AV_CODEC_ID_TTA:
        return container == "tta";
    default:
        return false;
    }
}

/// Reads all packets, decodes the first ones to see what comes out, and adds up what the packets
/// say of themselves.
SourceResult<SourceLength> countPackets(MediaFile &file, SoundDecoder &decoder,
                                        std::uint32_t &rate) {
    AvHandle<AVPacket> packet(av_packet_alloc());
    const bool isOgg = file.container() == "ogg";
    PacketLength length(file.stream(), isOgg ? PaddingIn::markingOnly : PaddingIn::duration);
    int code = packet ? 0 : AVERROR(ENOMEM);
    while (code >= 0 && length.isCertain()) {
        code = file.readPacket(*packet);
        if (code < 0) {
            break;
        }
        if (rate == 0) {
            const SourceResult<AVFrame *> frame = decoder.decode(*packet);
            if (!frame) {
                return frame.error();
            }
            if (*frame != nullptr) {
                rate = static_cast<std::uint32_t>(std::max((*frame)->sample_rate, 0));
                length.setSampleRate(rate);
            }
        }
        length.add(*packet);
        av_packet_unref(packet.get());
    }
    if (std::optional<SourceFailure> failure = file.input().failure()) {
        return *std::move(failure);
    }
    if (code != AVERROR_EOF || rate == 0 || !length.isCertain()) {
        return SourceLength();
    }
    const std::uint64_t samples = length.samples();
    return SourceLength(std::min(samples, file.sampleLimit(rate).value_or(samples)));
}

/// Decodes until the first samples come: a file that passes has sound that can be decoded.
SourceResult<std::uint32_t> rateOfFirstFrame(SoundDecoder &decoder) {
    const SourceResult<AVFrame *> frame = decoder.nextFrame();
    if (!frame) {
        return frame.error();
    }
    return static_cast<std::uint32_t>(*frame == nullptr ? 0 : (*frame)->sample_rate);
}

/// The length without decoding, where that can be had.
SourceResult<SourceLength> countQuickly(MediaFile &file, SoundDecoder &decoder) {
    const AVCodecParameters &parameters = file.parameters();
    SourceLength length;
    if (file.mpegAudio() && file.mpegAudio()->uniform) {
        length = file.mpegAudio()->length;
    } else if (file.container() == "flac" && parameters.extradata != nullptr) {
        const std::span info(reinterpret_cast<const std::byte *>(parameters.extradata),
                             static_cast<std::size_t>(std::max(parameters.extradata_size, 0)));
        length = confirmedFlacLength(file.input(), info);
    } else if ((file.container() == "wav" || file.container() == "aiff") &&
               isRawSound(parameters.codec_id)) {
        SourceResult<SourceLength> raw = countRawSamples(file);
        if (!raw || !*raw) {
            return raw;
        }
        return SourceLength(resampledLength(
            **raw, static_cast<std::uint32_t>(std::max(parameters.sample_rate, 0))));
    } else if (hasExactPackets(file)) {
        if (!hasAllSamples(file)) {
            return cutOff("index points past the end");
        }
        std::uint32_t rate = 0;
        SourceResult<SourceLength> counted = countPackets(file, decoder, rate);
        if (!counted || !*counted) {
            return counted;
        }
        return SourceLength(resampledLength(**counted, rate));
    }
    if (!length) {
        return length;
    }
    const SourceResult<std::uint32_t> rate = rateOfFirstFrame(decoder);
    if (!rate) {
        return rate.error();
    }
    return *rate == 0 ? SourceLength() : SourceLength(resampledLength(*length, *rate));
}

SourceResult<std::uint64_t> countByDecoding(SoundDecoder &decoder) {
    LengthAtDiscRate length;
    while (true) {
        const SourceResult<AVFrame *> frame = decoder.nextFrame();
        if (!frame) {
            return frame.error();
        }
        if (*frame == nullptr) {
            return length.total();
        }
        length.add(shapeOf(**frame, decoder.validBits()),
                   static_cast<std::uint64_t>((*frame)->nb_samples));
    }
}

} // namespace

SourceResult<std::uint64_t> countSamples(std::unique_ptr<MediaFile> file,
                                         const std::filesystem::path &path,
                                         const std::stop_token &stop) {
    SourceResult<std::unique_ptr<SoundDecoder>> decoder = SoundDecoder::open(*file);
    if (!decoder) {
        return decoder.error();
    }
    const SourceResult<SourceLength> quick = countQuickly(*file, **decoder);
    if (!quick) {
        return quick.error();
    }
    if (*quick) {
        return **quick;
    }
    (*decoder).reset(); // Before the file that it reads.
    SourceResult<std::unique_ptr<MediaFile>> again = MediaFile::open(path, stop);
    if (!again) {
        return again.error();
    }
    file = std::move(*again);
    decoder = SoundDecoder::open(*file);
    if (!decoder) {
        return decoder.error();
    }
    return countByDecoding(**decoder);
}

} // namespace scorch
