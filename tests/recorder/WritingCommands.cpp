// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/Commands.h"
#include "tests/recorder/CueSheet.h"
#include "tests/recorder/Recording.h"
#include "tests/recorder/WritePage.h"

namespace recorder {

namespace {

Answer answerOf(const std::optional<Sense> &failure) {
    return failure ? Answer::check(*failure) : Answer::good();
}

} // namespace

Answer write10(Device &device, const Command &command) {
    return answerOf(
        writeBlocks(device, getAddress(command.cdb, 2), get16(command.cdb, 7), command.sent));
}

Answer write12(Device &device, const Command &command) {
    return answerOf(
        writeBlocks(device, getAddress(command.cdb, 2), get32(command.cdb, 6), command.sent));
}

Answer synchronizeCache(Device &device, const Command &command) {
    const bool wasRecording = device.memory.recording.mode != WriteMode::None;
    endRecording(device);
    if (wasRecording) {
        device.beginOperation(command.bit(1, 1), true);
    }
    return Answer::good();
}

Answer sendOpcInformation(Device &device, const Command & /*command*/) {
    if (!device.profile.canWrite || !device.disc->isRecordableCd()) {
        return Answer::check(sense::kIncompatibleFormat);
    }
    return device.faults.powerCalibration ? Answer::check(sense::kPowerCalibrationError)
                                          : Answer::good();
}

Answer sendCueSheet(Device &device, const Command &command) {
    Recording &recording = device.memory.recording;
    const std::size_t size = get24(command.cdb, 6);
    if (!device.profile.canWrite || !device.disc->isRecordableCd()) {
        return Answer::check(sense::kCannotWriteIncompatibleMedium);
    }
    if (writeParameters(device.memory).mode != WriteMode::SessionAtOnce) {
        return Answer::check(sense::kCommandSequenceError);
    }
    if (command.sent.size() < size || size > recording.cue.size()) {
        return Answer::check(sense::kParameterListLengthError);
    }
    breakOff(device);
    const ByteView bytes = command.sent.first(size);
    const bool isFree = !device.disc->isFinal && !device.disc->hasOpenSession();
    const auto sheet = isFree ? CueSheet::parse(bytes, *device.disc) : std::nullopt;
    if (!sheet || (device.faults.refuseCdText && sheet->hasLeadInText())) {
        return Answer::check(sense::kInvalidFieldInParameters);
    }
    recording.cueBytes = static_cast<std::uint32_t>(size);
    std::copy(bytes.begin(), bytes.end(), recording.cue.begin());
    return Answer::good();
}

Answer closeTrackSession(Device &device, const Command &command) {
    constexpr unsigned kTrack = 1;
    constexpr unsigned kSession = 2;
    const unsigned function = get8(command.cdb, 2) & 7U;
    if (function == 0) { // Stopping a background format: there is none.
        return Answer::good();
    }
    if (function != kTrack && function != kSession) {
        return Answer::check(sense::kInvalidFieldInCommand);
    }
    endRecording(device);
    if (function == kSession) {
        breakOff(device);
        if (const auto failure = closeSession(device)) {
            return Answer::check(*failure);
        }
    }
    device.beginOperation(command.bit(1, 0), function == kSession);
    return Answer::good();
}

Answer blank(Device &device, const Command &command) {
    constexpr unsigned kWholeDisc = 0;
    constexpr unsigned kMinimal = 1;
    const unsigned type = get8(command.cdb, 1) & 7U;
    if (!device.profile.canWrite || !device.disc->isRewritable()) {
        return Answer::check(sense::kCannotWriteIncompatibleMedium);
    }
    if (type != kWholeDisc && type != kMinimal) {
        return Answer::check(sense::kInvalidFieldInCommand);
    }
    breakOff(device);
    device.disc->clear();
    device.isDiscChanged = true;
    if (type == kWholeDisc) {
        device.store.eraseSectors();
    }
    device.beginOperation(command.bit(1, 4), false);
    return Answer::good();
}

} // namespace recorder
