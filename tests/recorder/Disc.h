// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/CdAddress.h"

#include <array>
#include <string>
#include <vector>

namespace recorder {

enum class DiscKind { CdRom, CdR, CdRw, DvdRom, DvdR };

/// What the 2352 bytes of a track's sectors hold.
enum class SectorForm { Audio, Mode1, Mode2, Mode2Form1 };

/// The CONTROL bits of the sub-channel Q.
inline constexpr Byte kControlData = 4;

/// One CD-TEXT pack, its checksum included.
using TextPack = std::array<Byte, 18>;

/// A track with the pregap in front of it.
struct Track {
    int number = 1;
    SectorForm form = SectorForm::Audio;
    Byte control = 0;
    Lba start = 0;            ///< Index 1: what the table of contents names.
    Lba pregap = 0;           ///< Blocks of index 0 in front of it.
    Lba end = 0;              ///< The first block behind it.
    Lba recorded = 0;         ///< The first block that is not recorded; `end` for a whole track.
    Lba runOut = 0;           ///< Blocks at the end that are recorded, but cannot be read as data.
    std::string isrc;         ///< Empty or twelve characters.
    std::vector<Lba> indices; ///< Where indices 2 and on begin.

    Lba pregapStart() const { return start - pregap; }
    bool isData() const { return form != SectorForm::Audio; }
    bool isDamaged() const { return recorded < end; }
    bool operator==(const Track &) const = default;
};

struct Session {
    std::vector<Track> tracks; ///< Ascending, never empty.
    bool isClosed = false;     ///< It has lead-in and lead-out.
    Lba leadOut = 0;           ///< Where the lead-out begins; of a closed session.

    bool isDamaged() const;
    bool operator==(const Session &) const = default;
};

enum class DiscStatus { Blank = 0, Appendable = 1, Complete = 2 };

/// All that is known of a disc but the contents of its sectors. A plain value.
struct Disc {
    DiscKind kind = DiscKind::CdR;
    Lba leadInStart = -11625;        ///< From the ATIP: 97:27:00.
    Lba capacity = 359849;           ///< Last possible start of a lead-out: 79:59:74.
    bool isFinal = false;            ///< No further session is possible.
    std::string catalog;             ///< MCN: empty or 13 digits.
    std::vector<TextPack> textPacks; ///< CD-TEXT of the first lead-in.
    std::vector<Session> sessions;   ///< Only the last may be open.

    bool operator==(const Disc &) const = default;

    bool isCd() const { return kind != DiscKind::DvdRom && kind != DiscKind::DvdR; }
    bool isRecordableCd() const { return kind == DiscKind::CdR || kind == DiscKind::CdRw; }
    bool isRewritable() const { return kind == DiscKind::CdRw; }
    DiscStatus status() const;
    /// MMC profile number.
    unsigned profile() const;

    bool hasOpenSession() const { return !sessions.empty() && !sessions.back().isClosed; }
    /// Counts the session that is open or could be begun next, as a drive does.
    int sessionCount() const;
    int lastTrackNumber() const;
    std::vector<const Track *> tracks() const;
    /// 1 for the first; 0 if the track is none of this disc.
    int sessionOf(const Track &track) const;
    const Track *trackAt(int number) const;
    /// The track whose pregap or contents hold the block, or none.
    const Track *trackHolding(Lba lba) const;
    /// Where the next track would begin (index 1); only of a blank or appendable disc.
    Lba nextTrackStart() const;
    /// The first block behind all that is recorded; 0 on a blank disc.
    Lba contentsEnd() const;
    /// Takes away all that is recorded.
    void clear();
};

} // namespace recorder
