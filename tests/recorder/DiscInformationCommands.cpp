// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/Commands.h"
#include "tests/recorder/WritePage.h"

namespace recorder {

namespace {

constexpr Lba kLeadInBlocks = 4500;

enum SessionState { kEmpty = 0, kIncomplete = 1, kComplete = 3 };

SessionState lastSessionState(const Disc &disc) {
    if (disc.hasOpenSession()) {
        return kIncomplete;
    }
    return disc.isFinal ? kComplete : kEmpty;
}

/// A session that lost a part of a track can neither be continued nor be followed by another.
bool canBeAppended(const Disc &disc) {
    return disc.isRecordableCd() && !disc.isFinal &&
           !(disc.hasOpenSession() && disc.sessions.back().isDamaged());
}

Byte discType(const Disc &disc) {
    const std::vector<const Track *> all = disc.tracks();
    const bool isXa = std::any_of(all.begin(), all.end(), [](const Track *track) {
        return track->form == SectorForm::Mode2Form1;
    });
    return isXa ? 0x20 : 0;
}

/// The number of the track that would be recorded next, or of the last one if none can be.
int lastTrackOfLastSession(const Disc &disc) {
    return disc.lastTrackNumber() + (canBeAppended(disc) ? 1 : 0);
}

int firstTrackOfLastSession(const Disc &disc) {
    if (disc.hasOpenSession() || disc.isFinal) {
        return disc.sessions.empty() ? 1 : disc.sessions.back().tracks.front().number;
    }
    return disc.lastTrackNumber() + 1;
}

void putAddresses(Bytes &data, const Disc &disc) {
    if (!canBeAppended(disc)) {
        std::fill(data.begin() + 16, data.begin() + 24, Byte{0xff});
        return;
    }
    const Lba leadIn = disc.sessions.empty()
                           ? disc.leadInStart
                           : disc.nextTrackStart() - kPregapBlocks - kLeadInBlocks;
    putMsf(data, 17, toMsf(leadIn));
    putMsf(data, 21, toMsf(disc.capacity));
}

/// READ TRACK INFORMATION's answer about a recorded track.
Bytes trackInformation(const Disc &disc, const Track &track) {
    Bytes data(36, 0);
    put16(data, 0, 34);
    data[2] = low8(track.number);
    data[3] = low8(disc.sessionOf(track));
    data[5] = static_cast<Byte>((track.isDamaged() ? 0x20U : 0U) | track.control);
    data[6] = track.form == SectorForm::Mode1 ? 1 : 2;
    if (!track.isData()) {
        data[6] = 0x0f;
    }
    put32(data, 8, track.start);
    put32(data, 24, track.end - track.start);
    if (!track.isDamaged()) {
        data[7] = 2;
        put32(data, 28, track.end - track.runOut - 1);
    }
    return data;
}

/// The same about what is not recorded yet.
Bytes nextTrackInformation(const Device &device) {
    const Disc &disc = *device.disc;
    const WriteParameters parameters = writeParameters(device.memory);
    const Recording &recording = device.memory.recording;
    const Lba start = disc.nextTrackStart();
    const Lba free = std::max(0, disc.capacity - start);
    Bytes data(36, 0);
    put16(data, 0, 34);
    data[2] = low8(disc.lastTrackNumber() + 1);
    data[3] = low8(disc.sessionCount());
    data[5] = parameters.control;
    data[6] = 0x40U | (parameters.form == SectorForm::Mode1 ? 1U : 2U);
    if (parameters.form == SectorForm::Audio) {
        data[6] = 0x4f;
    }
    data[7] = 1;
    Lba next = start;
    if (recording.mode == WriteMode::TrackAtOnce) {
        next = recording.next;
        data[6] &= 0xbfU;
    } else if (parameters.mode == WriteMode::SessionAtOnce) {
        next = start - kPregapBlocks; // A session at once begins with its pregap.
    }
    put32(data, 8, start);
    put32(data, 12, next);
    put32(data, 16, free);
    put32(data, 24, free);
    return data;
}

} // namespace

Answer readDiscInformation(Device &device, const Command &command) {
    if ((get8(command.cdb, 1) & 7U) != 0) {
        return Answer::check(sense::kInvalidFieldInCommand);
    }
    const Disc &disc = *device.disc;
    Bytes data(34, 0);
    put16(data, 0, 32);
    data[2] = static_cast<Byte>((disc.isRewritable() ? 0x10U : 0U) |
                                static_cast<unsigned>(lastSessionState(disc)) << 2U |
                                static_cast<unsigned>(disc.status()));
    data[3] = 1;
    data[4] = low8(disc.sessionCount());
    data[5] = low8(firstTrackOfLastSession(disc));
    data[6] = low8(lastTrackOfLastSession(disc));
    data[7] = 0x20; // Unrestricted use.
    data[8] = disc.status() == DiscStatus::Blank ? Byte{0xff} : discType(disc);
    putAddresses(data, disc);
    return Answer::cut(std::move(data), get16(command.cdb, 7));
}

Answer readTrackInformation(Device &device, const Command &command) {
    constexpr std::uint32_t kInvisibleTrack = 0xff;
    const Disc &disc = *device.disc;
    const unsigned type = get8(command.cdb, 1) & 3U;
    const std::uint32_t wanted = get32(command.cdb, 2);
    const Track *track = nullptr;
    bool isNext = false;
    if (type == 0) {
        const Lba lba = getAddress(command.cdb, 2);
        track = disc.trackHolding(lba);
        isNext = track == nullptr && lba >= disc.contentsEnd();
    } else if (type == 1) {
        track = wanted == 0 ? nullptr : disc.trackAt(static_cast<int>(wanted & 0xffU));
        isNext = wanted == kInvisibleTrack || wanted == 0 ||
                 static_cast<int>(wanted) == disc.lastTrackNumber() + 1;
    } else if (type == 2 && wanted >= 1) {
        if (wanted <= disc.sessions.size()) {
            track = &disc.sessions[wanted - 1].tracks.front();
        }
        isNext = wanted == disc.sessions.size() + 1;
    }
    const std::size_t length = get16(command.cdb, 7);
    if (track != nullptr) {
        return Answer::cut(trackInformation(disc, *track), length);
    }
    if (isNext && canBeAppended(disc)) {
        return Answer::cut(nextTrackInformation(device), length);
    }
    return Answer::check(sense::kInvalidFieldInCommand);
}

Answer readCapacity(Device &device, const Command & /*command*/) {
    Bytes data(8, 0);
    put32(data, 0, std::max(0, device.disc->contentsEnd() - 1));
    put32(data, 4, static_cast<std::int64_t>(kUserDataBytes));
    return Answer::good(std::move(data));
}

Answer readDiscStructure(Device &device, const Command &command) {
    if (device.disc->isCd()) {
        return Answer::check(sense::kIncompatibleFormat);
    }
    if (get8(command.cdb, 7) != 0) { // Only the physical format is known.
        return Answer::check(sense::kInvalidFieldInCommand);
    }
    Bytes data(2052, 0);
    put16(data, 0, 2050);
    data[4] = device.disc->kind == DiscKind::DvdR ? 0x21 : 0x01;
    data[5] = 0x0f; // 12 cm, no maximum rate.
    data[6] = 0x01;
    constexpr Lba kDvdDataStart = 0x30000;
    put24(data, 9, kDvdDataStart);
    put24(data, 13, kDvdDataStart + std::max(0, device.disc->contentsEnd() - 1));
    return Answer::cut(std::move(data), get16(command.cdb, 8));
}

} // namespace recorder
