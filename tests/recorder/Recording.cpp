// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/Recording.h"

#include "tests/recorder/CueSheet.h"
#include "tests/recorder/SectorFrame.h"
#include "tests/recorder/SubChannel.h"
#include "tests/recorder/WritePage.h"

#include <algorithm>
#include <unistd.h>

namespace recorder {

namespace {

constexpr Lba kShortestTrack = 300;
constexpr Lba kRunOutBlocks = 2;
constexpr std::size_t kMostTextPacks = std::size_t{8} * 255;

ByteView cueBytes(const Recording &recording) {
    return ByteView(recording.cue).first(recording.cueBytes);
}

void reset(Recording &recording) {
    recording.mode = WriteMode::None;
    recording.cueBytes = 0;
    recording.isTextComplete = false;
}

Sense atBlock(Sense sense, Lba lba) {
    sense.block = lba;
    return sense;
}

/// The fault that stops a recording at this block, if any.
std::optional<Sense> faultAt(const Faults &faults, Lba lba) {
    if (faults.writeError == lba) {
        return atBlock(sense::kWriteError, lba);
    }
    if (faults.lossOfStreaming && lba >= *faults.lossOfStreaming) {
        return atBlock(sense::kLossOfStreaming, lba);
    }
    return {};
}

void beginTrackAtOnce(Device &device, const WriteParameters &parameters) {
    Recording &recording = device.memory.recording;
    recording.mode = WriteMode::TrackAtOnce;
    recording.form = parameters.form;
    recording.control = parameters.control;
    recording.start = recording.next = device.disc->nextTrackStart();
}

void beginSessionAtOnce(Device &device, const CueSheet &sheet, Lba first) {
    Recording &recording = device.memory.recording;
    recording.mode = WriteMode::SessionAtOnce;
    const Lba start = sheet.ranges().front().begin;
    const bool isLeadIn = sheet.hasLeadInText() && first < start;
    recording.next = isLeadIn ? first : sheet.nextSentBlock(start);
    recording.isTextComplete = !device.disc->textPacks.empty(); // That of the first session stays.
    if (recording.isSimulated) {
        return;
    }
    Session session = sheet.session();
    session.leadOut = 0;
    for (Track &track : session.tracks) {
        track.recorded = track.pregapStart();
    }
    device.disc->sessions.push_back(std::move(session));
    if (!sheet.catalog().empty()) {
        device.disc->catalog = sheet.catalog();
    }
    device.isDiscChanged = true;
}

std::optional<Sense> begin(Device &device, Lba first) {
    Disc &disc = *device.disc;
    Recording &recording = device.memory.recording;
    const WriteParameters parameters = writeParameters(device.memory);
    if (!device.profile.canWrite || !disc.isRecordableCd() || disc.isFinal) {
        return sense::kCannotWriteIncompatibleMedium;
    }
    if (disc.hasOpenSession() && disc.sessions.back().isDamaged()) {
        return sense::kSessionFixationError;
    }
    if (device.faults.powerCalibration) {
        return sense::kPowerCalibrationError;
    }
    recording.isSimulated = parameters.isTest;
    if (parameters.mode == WriteMode::TrackAtOnce) {
        if (first != disc.nextTrackStart() || disc.lastTrackNumber() >= 99) {
            return sense::kInvalidAddressForWrite;
        }
        beginTrackAtOnce(device, parameters);
        return {};
    }
    const auto sheet = CueSheet::parse(cueBytes(recording), disc);
    if (!sheet) {
        return sense::kCommandSequenceError;
    }
    beginSessionAtOnce(device, *sheet, first);
    return {};
}

/// Adds the packs of a lead-in block until they begin to repeat.
void collectText(Device &device, ByteView block) {
    Recording &recording = device.memory.recording;
    std::vector<TextPack> &packs = device.disc->textPacks;
    if (recording.isTextComplete || recording.isSimulated) {
        return;
    }
    for (const TextPack &pack : unpackLeadInText(block)) {
        if ((!packs.empty() && pack == packs.front()) || packs.size() >= kMostTextPacks) {
            recording.isTextComplete = true;
            device.isDiscChanged = true;
            return;
        }
        if (isIntact(pack) && (pack[0] & 0x80U) != 0) {
            packs.push_back(pack);
        }
    }
}

/// False if the folder has no room for the sector.
bool store(Device &device, Lba lba, SectorForm form, ByteView sent) {
    if (device.memory.recording.isSimulated) {
        return true;
    }
    std::array<Byte, kRawSectorBytes> sector{};
    frameSector(sector, form, lba, sent);
    return device.store.write(lba, sector);
}

/// How far a session at once has come, put into its tracks.
void noteProgress(Device &device) {
    const Recording &recording = device.memory.recording;
    if (recording.isSimulated || !device.disc->hasOpenSession()) {
        return;
    }
    for (Track &track : device.disc->sessions.back().tracks) {
        track.recorded = std::clamp(recording.next, track.pregapStart(), track.end);
    }
    device.isDiscChanged = true;
}

std::optional<Sense> writeTrackBlocks(Device &device, std::size_t count, ByteView sent) {
    Recording &recording = device.memory.recording;
    const WriteParameters parameters = writeParameters(device.memory);
    if (sent.size() < count * parameters.blockBytes) {
        return sense::kParameterListLengthError;
    }
    for (std::size_t index = 0; index < count; ++index) {
        const Lba lba = recording.next;
        if (const auto fault = faultAt(device.faults, lba)) {
            breakOff(device);
            return fault;
        }
        if (lba + kRunOutBlocks >= device.disc->capacity) {
            return sense::kEndOfUserArea;
        }
        if (!store(device, lba, recording.form,
                   sent.subspan(index * parameters.blockBytes, parameters.blockBytes))) {
            breakOff(device);
            return atBlock(sense::kWriteError, lba);
        }
        ++recording.next;
    }
    return {};
}

std::optional<Sense> writeSessionBlocks(Device &device, std::size_t count, ByteView sent) {
    Recording &recording = device.memory.recording;
    // While its session is open the disc differs from the one that the sheet was made for.
    Disc before = *device.disc;
    if (before.hasOpenSession()) {
        before.sessions.pop_back();
    }
    const auto sheet = CueSheet::parse(cueBytes(recording), before);
    if (!sheet) {
        return sense::kCommandSequenceError;
    }
    const Lba start = sheet->ranges().front().begin;
    for (std::size_t index = 0; index < count; ++index) {
        const Lba lba = recording.next;
        const CueRange *range = sheet->rangeAt(lba);
        const bool isLeadIn = lba < start;
        if (range == nullptr && !isLeadIn) {
            return sense::kInvalidAddressForWrite;
        }
        const std::size_t bytes = isLeadIn ? kSubChannelBytes : range->blockBytes();
        if (sent.size() < bytes) {
            return sense::kParameterListLengthError;
        }
        if (const auto fault = faultAt(device.faults, lba)) {
            breakOff(device);
            return fault;
        }
        if (isLeadIn) {
            collectText(device, sent.first(bytes));
        } else if (!store(device, lba, range->form, sent.first(range->mainBytes))) {
            breakOff(device);
            return atBlock(sense::kWriteError, lba);
        }
        sent = sent.subspan(bytes);
        recording.next = lba + 1 == start ? sheet->nextSentBlock(start)
                         : isLeadIn       ? lba + 1
                                          : sheet->nextSentBlock(lba + 1);
    }
    return {};
}

void endTrack(Device &device) {
    Recording &recording = device.memory.recording;
    Disc &disc = *device.disc;
    const Lba written = recording.next - recording.start;
    const bool isKept = !recording.isSimulated && written > 0;
    const Recording ended = recording;
    reset(recording);
    if (!isKept) {
        return;
    }
    Track track;
    track.number = disc.lastTrackNumber() + 1;
    track.form = ended.form;
    track.control = ended.control;
    track.start = ended.start;
    track.pregap = kPregapBlocks;
    track.runOut = kRunOutBlocks;
    track.end = ended.start + std::max(written, kShortestTrack) + kRunOutBlocks;
    track.recorded = track.end;
    if (!disc.hasOpenSession()) {
        disc.sessions.emplace_back();
    }
    disc.sessions.back().tracks.push_back(std::move(track));
    device.isDiscChanged = true;
}

bool isAllWritten(const Recording &recording, const Disc &disc) {
    const std::vector<const Track *> all = disc.tracks();
    return recording.isSimulated || (!all.empty() && recording.next >= all.back()->end);
}

} // namespace

std::optional<Sense> writeBlocks(Device &device, Lba first, std::size_t count, ByteView sent) {
    Recording &recording = device.memory.recording;
    if (count == 0) {
        return {};
    }
    if (recording.mode == WriteMode::None) {
        if (const auto refusal = begin(device, first)) {
            return refusal;
        }
    }
    if (first != recording.next) {
        return sense::kInvalidAddressForWrite;
    }
    recording.owner = getpid();
    device.pace(count);
    return recording.mode == WriteMode::TrackAtOnce ? writeTrackBlocks(device, count, sent)
                                                    : writeSessionBlocks(device, count, sent);
}

void endRecording(Device &device) {
    Recording &recording = device.memory.recording;
    if (recording.mode == WriteMode::TrackAtOnce) {
        endTrack(device);
        return;
    }
    if (recording.mode != WriteMode::SessionAtOnce) {
        return;
    }
    noteProgress(device);
    if (!isAllWritten(recording, *device.disc)) {
        return;
    }
    const bool isKept = !recording.isSimulated;
    reset(recording);
    if (isKept) {
        closeSession(device);
    }
}

void breakOff(Device &device) {
    Recording &recording = device.memory.recording;
    if (recording.mode == WriteMode::TrackAtOnce) {
        endTrack(device);
    } else if (recording.mode == WriteMode::SessionAtOnce) {
        noteProgress(device);
    }
    reset(recording);
}

std::optional<Sense> closeSession(Device &device) {
    Disc &disc = *device.disc;
    if (!disc.hasOpenSession()) {
        return {};
    }
    Session &session = disc.sessions.back();
    if (session.isDamaged()) {
        return sense::kSessionFixationError;
    }
    session.isClosed = true;
    session.leadOut = session.tracks.back().end;
    disc.isFinal = !writeParameters(device.memory).allowsNextSession;
    device.isDiscChanged = true;
    return {};
}

} // namespace recorder
