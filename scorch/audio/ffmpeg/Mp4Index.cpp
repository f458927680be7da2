// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ffmpeg/Mp4Index.h"

#include "scorch/audio/ffmpeg/Bytes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <vector>

namespace scorch {
namespace {

struct Box {
    std::uint32_t type = 0;
    std::uint64_t content = 0; ///< Where it starts.
    std::uint64_t end = 0;
};

/// What one track says.
struct Track {
    bool isSound = false;
    std::uint32_t timeScale = 0;
    std::uint64_t mediaDuration = 0; ///< Of all samples, delay and padding included.
    int edits = 0;
    std::uint64_t editDuration = 0; ///< In the time scale of the movie.
    std::int64_t editStart = 0;
    bool isEncrypted = false;
};

class Reader {
public:
    explicit Reader(FileInput &input) : input_(input) {}

    std::optional<Mp4Index> read() {
        bool found = false;
        forEachBox(0, input_.sizeBytes(), [&](const Box &box) {
            if (box.type == fourCharacters("moov")) {
                found = true;
                readMovie(box);
            }
        });
        return found ? std::optional(result_) : std::nullopt;
    }

private:
    // A file may claim any number of boxes; real ones have a few dozen at each level.
    static constexpr int mostBoxes = 4096;

    void forEachBox(std::uint64_t from, std::uint64_t end,
                    const std::function<void(const Box &)> &visit) {
        for (int i = 0; i < mostBoxes && from + 8 <= end; ++i) {
            std::array<std::byte, 16> header{};
            const std::size_t got = input_.readAt(from, header);
            if (got < 8) {
                return;
            }
            std::uint64_t size = bigEndian32(header.data());
            std::uint64_t headerBytes = 8;
            if (size == 1 && got == header.size()) {
                size = bigEndian64(header.data() + 8);
                headerBytes = 16;
            } else if (size == 0) {
                size = end - from; // To the end of what it stands in.
            }
            if (size < headerBytes) {
                return;
            }
            const std::uint64_t boxEnd = size > end - from ? end : from + size;
            visit({bigEndian32(header.data() + 4), from + headerBytes, boxEnd});
            from = boxEnd;
        }
    }

    /// The first bytes of a box's content, zeros where it is shorter.
    template <std::size_t size>
    std::array<std::byte, size> start(const Box &box) {
        std::array<std::byte, size> bytes{};
        const auto there = std::min<std::uint64_t>(size, box.end - box.content);
        (void)input_.readAt(box.content, std::span(bytes).first(there));
        return bytes;
    }

    void readMovie(const Box &movie) {
        std::uint32_t movieScale = 0;
        forEachBox(movie.content, movie.end, [&](const Box &box) {
            if (box.type == fourCharacters("mvhd")) {
                const auto bytes = start<24>(box);
                movieScale = bigEndian32(bytes.data() + (bytes[0] == std::byte{1} ? 20 : 12));
            } else if (box.type == fourCharacters("trak")) {
                Track track;
                readTrack(box, track);
                if (track.isSound) {
                    take(track, movieScale);
                }
            }
        });
    }

    void readTrack(const Box &parent, Track &track) {
        forEachBox(parent.content, parent.end, [&](const Box &box) {
            switch (box.type) {
            case fourCharacters("mdia"):
            case fourCharacters("minf"):
            case fourCharacters("stbl"):
            case fourCharacters("edts"):
                readTrack(box, track);
                break;
            case fourCharacters("hdlr"): {
                const auto bytes = start<12>(box);
                // Inside a QuickTime file's minf stands another one, for the data.
                if (bigEndian32(bytes.data() + 8) == fourCharacters("soun")) {
                    track.isSound = true;
                }
                break;
            }
            case fourCharacters("mdhd"): {
                const auto bytes = start<24>(box);
                track.timeScale = bigEndian32(bytes.data() + (bytes[0] == std::byte{1} ? 20 : 12));
                break;
            }
            case fourCharacters("elst"):
                readEdits(box, track);
                break;
            case fourCharacters("stts"):
                readDurations(box, track);
                break;
            case fourCharacters("stsd"):
                readSampleEntries(box, track);
                break;
            default:
                break;
            }
        });
    }

    void readEdits(const Box &box, Track &track) {
        const auto bytes = start<28>(box);
        const bool wide = bytes[0] == std::byte{1};
        track.edits = static_cast<int>(std::min<std::uint32_t>(bigEndian32(bytes.data() + 4), 99));
        track.editDuration = wide ? bigEndian64(bytes.data() + 8) : bigEndian32(bytes.data() + 8);
        track.editStart = wide ? static_cast<std::int64_t>(bigEndian64(bytes.data() + 16))
                               : static_cast<std::int64_t>(
                                     static_cast<std::int32_t>(bigEndian32(bytes.data() + 12)));
    }

    void readDurations(const Box &box, Track &track) {
        const std::uint64_t entries = bigEndian32(start<8>(box).data() + 4);
        const std::uint64_t bytes = entries * 8;
        if (bytes > box.end - box.content - std::min<std::uint64_t>(box.end - box.content, 8)) {
            return;
        }
        std::vector<std::byte> table(bytes);
        if (input_.readAt(box.content + 8, table) < table.size()) {
            return;
        }
        for (std::uint64_t i = 0; i < entries; ++i) {
            track.mediaDuration += std::uint64_t{bigEndian32(table.data() + i * 8)} *
                                   bigEndian32(table.data() + i * 8 + 4);
        }
    }

    void readSampleEntries(const Box &box, Track &track) {
        forEachBox(box.content + 8, box.end, [&track](const Box &entry) {
            switch (entry.type) {
            case fourCharacters("enca"): // Common encryption
            case fourCharacters("drms"): // The store's own
            case fourCharacters("drmi"):
            case fourCharacters("aavd"): // Books
                track.isEncrypted = true;
                break;
            default:
                break;
            }
        });
    }

    void take(const Track &track, std::uint32_t movieScale) {
        ++result_.soundTracks;
        result_.isEncrypted = result_.isEncrypted || track.isEncrypted;
        result_.timeScale = track.timeScale;
        result_.mediaDuration = track.mediaDuration;
        result_.samples = samplesOf(track, movieScale);
    }

    /// An encoder tells its delay by where the edit starts, its padding by where the edit ends or
    /// by a last duration that is shorter. The edit is in movie units, often milliseconds: where
    /// both agree as far as those can tell, the durations are right to the sample.
    static std::optional<std::uint64_t> samplesOf(const Track &track, std::uint32_t movieScale) {
        if (track.mediaDuration == 0 || track.timeScale == 0 || track.edits > 1) {
            return std::nullopt;
        }
        if (track.edits == 0) {
            return track.mediaDuration;
        }
        const auto delay = static_cast<std::uint64_t>(std::max<std::int64_t>(track.editStart, 0));
        if (track.editStart < 0 || delay >= track.mediaDuration || movieScale == 0) {
            return std::nullopt;
        }
        const std::uint64_t left = track.mediaDuration - delay;
        if (track.editDuration == 0) {
            return left; // Fragmented files say nothing there.
        }
        const double unit = static_cast<double>(track.timeScale) / movieScale;
        const double edited = static_cast<double>(track.editDuration) * unit;
        if (edited + unit >= static_cast<double>(left)) {
            return left;
        }
        return static_cast<std::uint64_t>(std::llround(edited));
    }

    FileInput &input_;
    Mp4Index result_;
};

} // namespace

std::optional<Mp4Index> readMp4Index(FileInput &input) {
    return Reader(input).read();
}

} // namespace scorch
