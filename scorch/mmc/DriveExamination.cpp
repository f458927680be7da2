// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/DriveExamination.h"

#include "scorch/mmc/DeviceHolder.h"
#include "scorch/mmc/DriveErrors.h"

#include <cerrno>
#include <utility>

namespace scorch {
namespace {

bool isSense(const MmcError &error, std::uint8_t key) {
    return error.kind == MmcError::Kind::sense && error.sense.key == key;
}

/// For drives without event notification: whether they are ready says as much.
Result<MediaEvent, MmcError> eventFromReadiness(MmcDevice &device,
                                                const std::optional<MediaEvent> &before) {
    constexpr std::uint8_t notReady = 2;
    constexpr std::uint8_t unitAttention = 6;
    constexpr std::uint8_t noMedium = 0x3A;
    constexpr std::uint8_t trayOpen = 0x02;
    Result<void, MmcError> ready = testUnitReady(device);
    const bool isAttention = !ready && isSense(ready.error(), unitAttention);
    if (isAttention) {
        ready = testUnitReady(device);
    }
    if (!ready && ready.error().kind != MmcError::Kind::sense) {
        return ready.error();
    }
    const bool isEmpty =
        !ready && isSense(ready.error(), notReady) && ready.error().sense.asc == noMedium;
    MediaEvent event{.changed = isAttention,
                     .trayOpen = isEmpty && ready.error().sense.ascq == trayOpen,
                     .mediumPresent = !isEmpty};
    event.changed |= before && before->mediumPresent != event.mediumPresent;
    return event;
}

Result<MediaEvent, MmcError> mediaEvent(MmcDevice &device,
                                        const std::optional<MediaEvent> &before) {
    Result<MediaEvent, MmcError> event = readMediaEvent(device);
    if (!event && event.error().kind == MmcError::Kind::sense) {
        return eventFromReadiness(device, before);
    }
    if (event && before) {
        event->changed |=
            event->mediumPresent != before->mediumPresent || event->trayOpen != before->trayOpen;
    }
    return event;
}

void fail(DriveFindings &findings, const ExaminedDrive &drive, const MmcError &error) {
    findings.failure = error;
    findings.medium = {};
    if (!findings.isInterrupted()) {
        findings.obstacle = driveError(
            error, {.driveName = drive.name, .node = drive.node, .sector = std::nullopt});
    }
    if (error.kind == MmcError::Kind::noPermission) {
        findings.canWriteCd = false; // Whatever the drive can do, nothing of it is for this user.
    }
}

} // namespace

std::optional<MmcError> otherWriter(const std::filesystem::path &node) {
    if (writerOf(node).empty()) {
        return std::nullopt;
    }
    return MmcError{.kind = MmcError::Kind::busy,
                    .sense = {},
                    .systemError = EBUSY,
                    .command = "looking for who writes"};
}

DriveFindings examineDrive(const ExaminedDrive &drive, const std::stop_token &stop) {
    DriveFindings findings;
    Result<MmcDevice, MmcError> device = drive.open(drive.node);
    if (!device) {
        fail(findings, drive, device.error());
        return findings;
    }
    // In the middle of a recording a drive is not to be asked about its disc: it may break off.
    if (const auto writer = otherWriter(drive.node)) {
        fail(findings, drive, *writer);
        return findings;
    }
    const Result<MediaEvent, MmcError> event = mediaEvent(*device, std::nullopt);
    if (!event) {
        fail(findings, drive, event.error());
        return findings;
    }
    findings.tray = *event;
    const Result<bool, MmcError> canWrite = readCanWriteCd(*device);
    if (canWrite) {
        findings.canWriteCd = *canWrite;
    }
    Result<MediumState, MmcError> medium = examineMedium(*device, drive.patience, stop);
    if (medium) {
        findings.medium = std::move(*medium);
    } else {
        fail(findings, drive, medium.error());
    }
    return findings;
}

Result<MediaEvent, MmcError> glanceAtDrive(const ExaminedDrive &drive,
                                           const std::optional<MediaEvent> &before) {
    Result<MmcDevice, MmcError> device = drive.open(drive.node);
    if (!device) {
        return device.error();
    }
    return mediaEvent(*device, before);
}

DiscState discState(const MediumState &medium) {
    const bool isRecordable =
        medium.kind == MediumState::Kind::cdR || medium.kind == MediumState::Kind::cdRw;
    const bool isBlank = isRecordable && medium.contents == MediumState::Contents::blank;
    return {.present = medium.kind != MediumState::Kind::none,
            .isCd = medium.isCd(),
            .blank = isBlank,
            .freeSectors = isBlank ? medium.freeSectors : 0};
}

} // namespace scorch
