// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/SgTransport.h"

#include <fcntl.h>
#include <linux/cdrom.h>
#include <scsi/sg.h>
#include <sys/ioctl.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace scorch {
namespace {

/// Values of sg_io_hdr::status and host_status that the kernel's headers for programs do not name.
constexpr unsigned char checkCondition = 0x02;
constexpr unsigned short hostNoConnect = 0x01;
constexpr unsigned short hostTimeOut = 0x03;

MmcError::Kind kindOf(int error) {
    switch (error) {
    case EACCES:
    case EPERM:
        return MmcError::Kind::noPermission;
    case EBUSY:
        return MmcError::Kind::busy;
    case ENOENT:
    case ENODEV:
    case ENXIO:
        return MmcError::Kind::gone;
    case ETIMEDOUT:
        return MmcError::Kind::timedOut;
    default:
        return MmcError::Kind::other;
    }
}

MmcError systemError(const char *name, int error) {
    return {.kind = kindOf(error), .sense = {}, .systemError = error, .command = name};
}

/// Fixed and descriptor format (SPC-3, 4.5.2 and 4.5.3).
Sense parseSense(std::span<const unsigned char> bytes) {
    const bool isDescriptor = (bytes[0] & 0x7FU) >= 0x72;
    if (isDescriptor) {
        return {
            .key = static_cast<std::uint8_t>(bytes[1] & 0x0FU), .asc = bytes[2], .ascq = bytes[3]};
    }
    return {
        .key = static_cast<std::uint8_t>(bytes[2] & 0x0FU), .asc = bytes[12], .ascq = bytes[13]};
}

} // namespace

Result<std::unique_ptr<MmcTransport>, MmcError>
SgTransport::open(const std::filesystem::path &node) {
    // O_NONBLOCK: without it the kernel closes the tray and waits for a disc.
    const int descriptor =
        ::open(node.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); // NOLINT(*-vararg)
    if (descriptor < 0) {
        return systemError("open", errno);
    }
    return std::unique_ptr<MmcTransport>(new SgTransport(descriptor));
}

Result<std::size_t, MmcError> SgTransport::read(const char *name,
                                                std::span<const std::uint8_t> command,
                                                std::span<std::uint8_t> answer,
                                                std::chrono::milliseconds timeout) {
    std::array<unsigned char, 16> cdb{};
    std::copy_n(command.begin(), std::min(command.size(), cdb.size()), cdb.begin());
    std::array<unsigned char, 32> sense{};
    sg_io_hdr_t header{};
    header.interface_id = 'S';
    header.dxfer_direction = answer.empty() ? SG_DXFER_NONE : SG_DXFER_FROM_DEV;
    header.cmd_len = static_cast<unsigned char>(command.size());
    header.mx_sb_len = sense.size();
    header.dxfer_len = static_cast<unsigned>(answer.size());
    header.dxferp = answer.data();
    header.cmdp = cdb.data();
    header.sbp = sense.data();
    header.timeout = static_cast<unsigned>(timeout.count());
    if (::ioctl(descriptor_.get(), SG_IO, &header) != 0) { // NOLINT(*-vararg)
        return systemError(name, errno);
    }
    if (header.host_status == hostTimeOut) {
        return systemError(name, ETIMEDOUT);
    }
    if (header.host_status == hostNoConnect) {
        return systemError(name, ENODEV);
    }
    if (header.status == checkCondition || header.sb_len_wr > 0) {
        const Sense found = parseSense(sense);
        if (found.key > 1) { // 0 and 1 (recovered error) are successes with a remark.
            return MmcError{
                .kind = MmcError::Kind::sense, .sense = found, .systemError = 0, .command = name};
        }
    } else if (header.status != 0 || header.host_status != 0 ||
               (header.driver_status & 0x0FU) != 0) {
        return systemError(name, EIO);
    }
    return answer.size() - static_cast<std::size_t>(std::max(header.resid, 0));
}

Result<void, MmcError> SgTransport::eject() {
    // Another program's lock is lifted too: who asks for the disc wants it. What the kernel thinks
    // of that is told by the next call.
    static_cast<void>(unlock());
    if (::ioctl(descriptor_.get(), CDROMEJECT) != 0) { // NOLINT(*-vararg)
        return systemError("CDROMEJECT", errno);
    }
    return {};
}

Result<void, MmcError> SgTransport::unlock() {
    if (::ioctl(descriptor_.get(), CDROM_LOCKDOOR, 0) != 0) { // NOLINT(*-vararg)
        return systemError("CDROM_LOCKDOOR", errno);
    }
    return {};
}

} // namespace scorch
