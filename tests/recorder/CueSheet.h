// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/Disc.h"
#include "tests/recorder/Sense.h"

#include <optional>

namespace recorder {

/// Blocks that the host sends in one form.
struct CueRange {
    Lba begin = 0;
    Lba end = 0;
    SectorForm form = SectorForm::Audio;
    std::size_t mainBytes = 0; ///< 0: the drive makes the sectors itself.
    std::size_t subBytes = 0;  ///< Sub-channels P to W, sent behind each sector; not kept.

    std::size_t blockBytes() const { return mainBytes + subBytes; }
};

/// The layout of a session that is written at once: SEND CUE SHEET's data, understood.
class CueSheet {
public:
    /// Checks all that a drive can check before it writes: entries of known kinds in rising order,
    /// at most 99 tracks, a start where this disc goes on, a lead-out within its capacity. Nothing
    /// for a sheet that a drive refuses, which it does with one sense (5/26/00).
    static std::optional<CueSheet> parse(ByteView bytes, const Disc &disc);

    const std::vector<CueRange> &ranges() const { return ranges_; }
    /// The session as it will be; its tracks not yet recorded.
    const Session &session() const { return session_; }
    const std::string &catalog() const { return catalog_; }
    /// The host sends the sub-channels R to W of the lead-in.
    bool hasLeadInText() const { return hasLeadInText_; }
    Lba leadOut() const { return session_.leadOut; }

    /// The range that holds a block of the program area, or none.
    const CueRange *rangeAt(Lba lba) const;
    /// The first block at or behind `lba` that the host has to send; leadOut() if there is none.
    Lba nextSentBlock(Lba lba) const;

private:
    bool addEntry(ByteView entry);
    bool addCatalog(ByteView entry);
    bool addIsrc(ByteView entry);
    bool addIndex(ByteView entry);
    bool addLeadOut(Lba lba);
    void endRange(Lba lba);
    bool isComplete(const Disc &disc) const;

    std::vector<CueRange> ranges_;
    Session session_;
    std::string catalog_;
    std::string isrc_; ///< Of the track that follows.
    bool hasLeadIn_ = false;
    bool hasLeadInText_ = false;
    bool hasLeadOut_ = false;
    int previousIndex_ = 0;
    Lba previous_ = 0;
};

} // namespace recorder
