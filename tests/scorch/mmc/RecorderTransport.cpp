// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/mmc/RecorderTransport.h"

#include <algorithm>
#include <cerrno>
#include <initializer_list>
#include <memory>

using scorch::MmcError;
using scorch::Result;

namespace {

MmcError systemError(MmcError::Kind kind, int error, const char *name) {
    return {.kind = kind, .sense = {}, .systemError = error, .command = name};
}

} // namespace

class RecorderTransport final : public scorch::MmcTransport {
public:
    explicit RecorderTransport(RecorderDrive &drive) : drive_(drive) {}

    Result<std::size_t, MmcError> read(const char *name, std::span<const std::uint8_t> command,
                                       std::span<std::uint8_t> answer,
                                       std::chrono::milliseconds /*timeout*/) override {
        {
            const std::lock_guard lock(drive_.mutex_);
            drive_.commands_.push_back(command[0]);
        }
        const recorder::Answer got =
            drive_.recorder_.execute(recorder::ByteView(command.data(), command.size()));
        if (got.transport == recorder::Transport::NoDevice) {
            return systemError(MmcError::Kind::gone, ENODEV, name);
        }
        if (got.transport == recorder::Transport::TimedOut) {
            return systemError(MmcError::Kind::timedOut, ETIMEDOUT, name);
        }
        if (got.sense) {
            return MmcError{.kind = MmcError::Kind::sense,
                            .sense = {.key = got.sense->key,
                                      .asc = got.sense->code,
                                      .ascq = got.sense->qualifier},
                            .systemError = 0,
                            .command = name};
        }
        const std::size_t count = std::min(got.data.size(), answer.size());
        std::copy_n(got.data.begin(), count, answer.begin());
        return count;
    }

    Result<void, MmcError> eject() override {
        if (auto unlocked = unlock(); !unlocked) {
            return unlocked;
        }
        return send("CDROMEJECT", {0x1B, 0, 0, 0, 2, 0});
    }

    Result<void, MmcError> unlock() override {
        if (drive_.recorder_.faults().busy) { // The kernel refuses where others have it open, too.
            const std::lock_guard lock(drive_.mutex_);
            ++drive_.refusedUnlocks_;
            return systemError(MmcError::Kind::busy, EBUSY, "CDROM_LOCKDOOR");
        }
        return send("CDROM_LOCKDOOR", {0x1E, 0, 0, 0, 0, 0});
    }

private:
    Result<void, MmcError> send(const char *name, const std::vector<std::uint8_t> &command) {
        const auto done = read(name, command, {}, {});
        if (!done) {
            return done.error();
        }
        return {};
    }

    RecorderDrive &drive_;
};

Result<scorch::MmcDevice, MmcError> RecorderDrive::open() {
    const recorder::Faults faults = recorder_.faults();
    if (faults.vanished || faults.noDevice) {
        return systemError(MmcError::Kind::gone, ENXIO, "open");
    }
    if (faults.noPermission) {
        return systemError(MmcError::Kind::noPermission, EACCES, "open");
    }
    const std::lock_guard lock(mutex_);
    ++openings_;
    return scorch::MmcDevice(std::make_unique<RecorderTransport>(*this));
}

std::vector<int> RecorderDrive::commands() const {
    const std::lock_guard lock(mutex_);
    return commands_;
}

int RecorderDrive::openings() const {
    const std::lock_guard lock(mutex_);
    return openings_;
}

int RecorderDrive::refusedUnlocks() const {
    const std::lock_guard lock(mutex_);
    return refusedUnlocks_;
}

recorder::Disc blankCd(recorder::DiscKind kind) {
    return recorder::blankDisc(kind);
}

recorder::Disc usedCd(recorder::DiscKind kind, bool isFinal) {
    constexpr recorder::Lba length = 750;
    recorder::Track track;
    track.pregap = 150;
    track.end = length;
    track.recorded = length;
    recorder::Disc disc = recorder::blankDisc(kind);
    disc.sessions = {{.tracks = {track}, .isClosed = true, .leadOut = length}};
    disc.isFinal = isFinal;
    return disc;
}

recorder::Disc dvd(recorder::DiscKind kind) {
    recorder::Disc disc = recorder::blankDisc(kind);
    disc.isFinal = kind == recorder::DiscKind::DvdRom;
    return disc;
}
