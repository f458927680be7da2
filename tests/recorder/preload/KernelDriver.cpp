// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/preload/KernelDriver.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <linux/cdrom.h>
#include <poll.h>

namespace recorder::preload {

namespace {

constexpr unsigned kKernelTimeoutMs = 30000;
constexpr int kRetries = 10;
constexpr std::int64_t kBlocksAtOnce = 32;

} // namespace

Answer KernelDriver::execute(ByteView cdb, ByteView sent, unsigned timeoutMs) const {
    Recorder *drive = Drives::instance().recorder(number_);
    if (drive == nullptr) {
        return {{}, {}, Transport::NoDevice};
    }
    Answer answer;
    {
        const SignalsHeld held;
        answer = drive->execute(cdb, sent);
    }
    if (answer.delayMs > 0) {
        const unsigned wanted = static_cast<unsigned>(answer.delayMs);
        const bool isCut = answer.transport == Transport::TimedOut;
        poll(nullptr, 0, static_cast<int>(isCut ? std::min(wanted, timeoutMs) : wanted));
    }
    return answer;
}

int KernelDriver::errorOf(const Answer &answer) {
    if (answer.transport == Transport::NoDevice) {
        return ENODEV;
    }
    if (answer.transport == Transport::TimedOut) {
        return EIO;
    }
    if (!answer.sense) {
        return 0;
    }
    switch (answer.sense->key) {
    case 2:
        return ENOMEDIUM;
    case 5:
        return EOPNOTSUPP;
    case 6:
        return ENOMEDIUM;
    default:
        return EIO;
    }
}

int KernelDriver::command(std::initializer_list<int> cdb, Bytes &data) const {
    Bytes bytes;
    for (const int byte : cdb) {
        bytes.push_back(low8(byte));
    }
    Answer answer;
    for (int attempt = 0; attempt < kRetries; ++attempt) {
        answer = execute(bytes, {}, kKernelTimeoutMs);
        const bool isAgain =
            answer.sense && (answer.sense->key == 6 || *answer.sense == sense::kBecomingReady);
        if (!isAgain) {
            break;
        }
    }
    data = std::move(answer.data);
    return errorOf(answer);
}

int KernelDriver::command(std::initializer_list<int> cdb) const {
    Bytes ignored;
    return command(cdb, ignored);
}

int KernelDriver::driveStatus() const {
    if (command({0, 0, 0, 0, 0, 0}) == 0) {
        return CDS_DISC_OK;
    }
    Bytes event;
    if (command({0x4a, 1, 0, 0, 0x10, 0, 0, 0, 8, 0}, event) != 0) {
        return CDS_NO_INFO;
    }
    const unsigned status = get8(event, 5);
    if ((status & 1U) != 0) {
        return CDS_TRAY_OPEN;
    }
    return (status & 2U) != 0 ? CDS_DRIVE_NOT_READY : CDS_NO_DISC;
}

int KernelDriver::discStatus() const {
    const int status = driveStatus();
    if (status != CDS_DISC_OK) {
        return status;
    }
    Bytes toc;
    if (command({0x43, 2, 0, 0, 0, 0, 0, 0x0f, 0xff, 0}, toc) != 0) {
        return CDS_NO_INFO;
    }
    bool hasAudio = false;
    bool hasData = false;
    for (std::size_t at = 4; at + 8 <= toc.size(); at += 8) {
        if (toc[at + 2] != CDROM_LEADOUT) {
            ((toc[at + 1] & kControlData) != 0 ? hasData : hasAudio) = true;
        }
    }
    if (hasAudio) {
        return hasData ? CDS_MIXED : CDS_AUDIO;
    }
    return hasData ? CDS_DATA_1 : CDS_NO_INFO;
}

int KernelDriver::mayOpen(int flags) const {
    if ((flags & O_NONBLOCK) != 0) {
        return 0;
    }
    if ((flags & O_ACCMODE) != O_RDONLY) {
        return EROFS;
    }
    int status = driveStatus();
    if (status == CDS_TRAY_OPEN) {
        command({0x1b, 0, 0, 0, 3, 0});
        status = driveStatus();
    }
    return status == CDS_DISC_OK ? 0 : ENOMEDIUM;
}

std::int64_t KernelDriver::size() const {
    Bytes capacity;
    if (command({0x25, 0, 0, 0, 0, 0, 0, 0, 0, 0}, capacity) != 0 || capacity.size() < 8) {
        return 0;
    }
    return (std::int64_t{get32(capacity, 0)} + 1) * static_cast<std::int64_t>(kUserDataBytes);
}

ssize_t KernelDriver::read(void *buffer, std::size_t count, std::int64_t offset) const {
    constexpr auto kBlock = static_cast<std::int64_t>(kUserDataBytes);
    const std::int64_t end =
        std::min<std::int64_t>(size(), offset + static_cast<std::int64_t>(count));
    char *target = static_cast<char *>(buffer);
    std::int64_t done = 0;
    std::int64_t portion = kBlocksAtOnce;
    while (offset + done < end) {
        const std::int64_t block = (offset + done) / kBlock;
        const std::int64_t blocks = std::min((end - 1) / kBlock - block + 1, portion);
        Bytes data;
        const int error = command({0x28, 0, low8(block >> 24), low8(block >> 16), low8(block >> 8),
                                   low8(block), 0, low8(blocks >> 8), low8(blocks), 0},
                                  data);
        if (error != 0 && portion > 1) { // Nearer to the block that cannot be read.
            portion = 1;
            continue;
        }
        if (error != 0) {
            errno = EIO;
            return done > 0 ? static_cast<ssize_t>(done) : -1;
        }
        const std::int64_t skipped = offset + done - block * kBlock;
        const std::int64_t useful =
            std::min(static_cast<std::int64_t>(data.size()) - skipped, end - offset - done);
        std::memcpy(target + done, data.data() + skipped, static_cast<std::size_t>(useful));
        done += useful;
    }
    return static_cast<ssize_t>(done);
}

} // namespace recorder::preload
