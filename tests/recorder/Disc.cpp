// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/Disc.h"

#include <algorithm>

namespace recorder {

namespace {

// Lead-out of the first session 90 s, of later ones 30 s; a lead-in is 60 s long.
constexpr Lba kFirstLeadOutBlocks = 6750;
constexpr Lba kLaterLeadOutBlocks = 2250;
constexpr Lba kLeadInBlocks = 4500;

} // namespace

bool Session::isDamaged() const {
    return std::any_of(tracks.begin(), tracks.end(),
                       [](const Track &track) { return track.isDamaged(); });
}

DiscStatus Disc::status() const {
    if (sessions.empty()) {
        return DiscStatus::Blank;
    }
    return isFinal ? DiscStatus::Complete : DiscStatus::Appendable;
}

unsigned Disc::profile() const {
    switch (kind) {
    case DiscKind::CdRom:
        return 0x08;
    case DiscKind::CdR:
        return 0x09;
    case DiscKind::CdRw:
        return 0x0a;
    case DiscKind::DvdRom:
        return 0x10;
    case DiscKind::DvdR:
        return 0x11;
    }
    return 0;
}

int Disc::sessionCount() const {
    const auto count = static_cast<int>(sessions.size());
    return isFinal || hasOpenSession() ? count : count + 1;
}

int Disc::lastTrackNumber() const {
    return sessions.empty() ? 0 : sessions.back().tracks.back().number;
}

std::vector<const Track *> Disc::tracks() const {
    std::vector<const Track *> all;
    for (const Session &session : sessions) {
        for (const Track &track : session.tracks) {
            all.push_back(&track);
        }
    }
    return all;
}

int Disc::sessionOf(const Track &track) const {
    for (std::size_t index = 0; index < sessions.size(); ++index) {
        for (const Track &candidate : sessions[index].tracks) {
            if (candidate.number == track.number) {
                return static_cast<int>(index) + 1;
            }
        }
    }
    return 0;
}

const Track *Disc::trackAt(int number) const {
    for (const Track *track : tracks()) {
        if (track->number == number) {
            return track;
        }
    }
    return nullptr;
}

const Track *Disc::trackHolding(Lba lba) const {
    for (const Session &session : sessions) {
        for (const Track &track : session.tracks) {
            if (lba >= track.pregapStart() && lba < track.end) {
                return &track;
            }
        }
    }
    return nullptr;
}

Lba Disc::nextTrackStart() const {
    if (sessions.empty()) {
        return 0;
    }
    const Session &last = sessions.back();
    if (!last.isClosed) {
        return last.tracks.back().end + kPregapBlocks;
    }
    const Lba leadOutBlocks = sessions.size() == 1 ? kFirstLeadOutBlocks : kLaterLeadOutBlocks;
    return last.leadOut + leadOutBlocks + kLeadInBlocks + kPregapBlocks;
}

Lba Disc::contentsEnd() const {
    return sessions.empty() ? 0 : sessions.back().tracks.back().end;
}

void Disc::clear() {
    isFinal = false;
    catalog.clear();
    textPacks.clear();
    sessions.clear();
}

} // namespace recorder
