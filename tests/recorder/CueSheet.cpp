// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/CueSheet.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace recorder {

namespace {

constexpr std::size_t kEntryBytes = 8;
constexpr int kLeadOutNumber = 0xaa;
constexpr int kMostTracks = 99;
constexpr Lba kShortestTrack = 300;

/// The data form byte: what a block is, and how much of it the host sends.
std::optional<CueRange> rangeOfForm(unsigned dataForm) {
    CueRange range;
    const unsigned main = dataForm & 0x3fU;
    const unsigned sub = dataForm >> 6U;
    if (sub == 2) {
        return {};
    }
    range.subBytes = sub == 0 ? 0 : kSubChannelBytes;
    switch (main >> 4U) {
    case 0:
        range.form = SectorForm::Audio;
        break;
    case 1:
        range.form = SectorForm::Mode1;
        break;
    case 2:
        range.form = SectorForm::Mode2Form1;
        break;
    default:
        range.form = SectorForm::Mode2;
        break;
    }
    const bool isAudio = range.form == SectorForm::Audio;
    switch (main & 15U) {
    case 0:
    case 2:
        range.mainBytes = isAudio                           ? kRawSectorBytes
                          : range.form == SectorForm::Mode1 ? kUserDataBytes
                                                            : 2336;
        break;
    case 1:
        range.mainBytes = isAudio ? 0 : kRawSectorBytes;
        break;
    case 3:
        range.mainBytes = kRawSectorBytes;
        break;
    case 4:
        range.mainBytes = 0;
        break;
    default:
        return {};
    }
    return range;
}

void appendCharacters(std::string &text, ByteView bytes) {
    for (const Byte byte : bytes) {
        text += static_cast<char>(byte);
    }
}

bool isAlphanumeric(const std::string &text) {
    return std::all_of(text.begin(), text.end(), [](char character) {
        const auto value = static_cast<unsigned char>(character);
        return std::isdigit(value) != 0 || std::isupper(value) != 0;
    });
}

} // namespace

std::optional<CueSheet> CueSheet::parse(ByteView bytes, const Disc &disc) {
    CueSheet sheet;
    if (bytes.size() % kEntryBytes != 0) {
        return {};
    }
    for (; !bytes.empty(); bytes = bytes.subspan(kEntryBytes)) {
        if (!sheet.addEntry(bytes.first(kEntryBytes))) {
            return {};
        }
    }
    return sheet.isComplete(disc) ? std::optional(std::move(sheet)) : std::nullopt;
}

bool CueSheet::addEntry(ByteView entry) {
    if (hasLeadOut_) {
        return false;
    }
    const unsigned adr = entry[0] & 15U;
    if (adr == 2) {
        return addCatalog(entry);
    }
    if (adr == 3) {
        return addIsrc(entry);
    }
    if (adr != 1) {
        return false;
    }
    if (entry[1] == 0) {
        hasLeadInText_ = (entry[3] & 0xc0U) != 0;
        const bool isFirst = !hasLeadIn_ && session_.tracks.empty();
        hasLeadIn_ = true;
        return isFirst && rangeOfForm(entry[3]).has_value();
    }
    return hasLeadIn_ && addIndex(entry);
}

bool CueSheet::addCatalog(ByteView entry) {
    appendCharacters(catalog_, entry.subspan(1, catalog_.empty() ? 7 : 6));
    return catalog_.size() <= 13 && std::all_of(catalog_.begin(), catalog_.end(), [](char digit) {
               return digit >= '0' && digit <= '9';
           });
}

bool CueSheet::addIsrc(ByteView entry) {
    appendCharacters(isrc_, entry.subspan(2, 6));
    return isrc_.size() <= 12 && isAlphanumeric(isrc_);
}

bool CueSheet::addIndex(ByteView entry) {
    const int number = entry[1];
    const int index = entry[2];
    const Lba lba = toLba(getMsf(entry, 5));
    std::optional<CueRange> range = rangeOfForm(entry[3]);
    if (!range || entry[6] >= 60 || entry[7] >= kFramesPerSecond) {
        return false;
    }
    endRange(lba);
    if (number == kLeadOutNumber) {
        return addLeadOut(lba);
    }
    std::vector<Track> &tracks = session_.tracks;
    const bool isNewTrack = tracks.empty() || tracks.back().number != number;
    if (isNewTrack) {
        const bool isNext = tracks.empty() || tracks.back().number + 1 == number;
        if (!isNext || index > 1 || number > kMostTracks || (!tracks.empty() && lba <= previous_)) {
            return false;
        }
        Track track;
        track.number = number;
        track.isrc = std::exchange(isrc_, {});
        track.start = track.end = lba;
        tracks.push_back(std::move(track));
    } else if (index != previousIndex_ + 1 || lba < previous_) {
        return false;
    }
    Track &track = tracks.back();
    if (index == 1) {
        track.pregap = lba - track.start;
        track.start = lba;
    } else if (index > 1) {
        track.indices.push_back(lba);
    }
    if (index >= 1) { // A pregap may be of the other kind.
        track.form = range->form;
        track.control = low8(entry[0] >> 4U);
        if (track.isData() != ((track.control & kControlData) != 0)) {
            return false;
        }
    }
    range->begin = lba;
    ranges_.push_back(*range);
    previousIndex_ = index;
    previous_ = lba;
    return true;
}

bool CueSheet::addLeadOut(Lba lba) {
    hasLeadOut_ = true;
    session_.leadOut = lba;
    return !session_.tracks.empty() && previousIndex_ >= 1 && lba > previous_;
}

void CueSheet::endRange(Lba lba) {
    if (ranges_.empty()) {
        return;
    }
    ranges_.back().end = lba;
    session_.tracks.back().end = lba;
}

bool CueSheet::isComplete(const Disc &disc) const {
    if (!hasLeadOut_ || (!catalog_.empty() && catalog_.size() != 13)) {
        return false;
    }
    for (std::size_t index = 0; index < session_.tracks.size(); ++index) {
        const Track &track = session_.tracks[index];
        const bool isLast = index + 1 == session_.tracks.size();
        // The pregap of the next track counts as a part of this one.
        const Lba end = isLast ? track.end : session_.tracks[index + 1].start;
        if ((!track.isrc.empty() && track.isrc.size() != 12) ||
            end - track.start < kShortestTrack) {
            return false;
        }
    }
    const Lba start = disc.nextTrackStart();
    return session_.tracks.front().number == disc.lastTrackNumber() + 1 &&
           ranges_.front().begin == start - kPregapBlocks &&
           session_.tracks.front().start >= start && leadOut() <= disc.capacity;
}

const CueRange *CueSheet::rangeAt(Lba lba) const {
    for (const CueRange &range : ranges_) {
        if (lba >= range.begin && lba < range.end) {
            return &range;
        }
    }
    return nullptr;
}

Lba CueSheet::nextSentBlock(Lba lba) const {
    const CueRange *range = rangeAt(lba);
    while (range != nullptr && range->blockBytes() == 0) {
        lba = range->end;
        range = rangeAt(lba);
    }
    return lba;
}

} // namespace recorder
