// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/preload/SgIo.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <linux/cdrom.h>
#include <scsi/sg.h>
#include <sys/uio.h>

namespace recorder::preload {

namespace {

constexpr unsigned kLongestTransfer = 512 * 1024;
constexpr unsigned kLongestCommand = 16;
constexpr unsigned char kCheckCondition = 2;
constexpr unsigned short kHostTimeOut = 3;
constexpr unsigned short kDriverSense = 8;
constexpr unsigned kDefaultTimeoutMs = 60000;

bool isFromDevice(int direction) {
    return direction == SG_DXFER_FROM_DEV || direction == SG_DXFER_TO_FROM_DEV;
}

/// The pieces of the program's buffer; one unless it scattered them.
std::vector<iovec> pieces(const sg_io_hdr &header) {
    if (header.iovec_count == 0) {
        return {{header.dxferp, header.dxfer_len}};
    }
    const auto *first = static_cast<const iovec *>(header.dxferp);
    return {first, first + header.iovec_count};
}

Bytes gather(const sg_io_hdr &header) {
    Bytes sent;
    for (const iovec &piece : pieces(header)) {
        const auto *begin = static_cast<const Byte *>(piece.iov_base);
        sent.insert(sent.end(), begin, begin + piece.iov_len);
    }
    sent.resize(std::min<std::size_t>(sent.size(), header.dxfer_len));
    return sent;
}

/// How many bytes found room.
std::size_t scatter(const sg_io_hdr &header, ByteView data) {
    data = data.first(std::min<std::size_t>(data.size(), header.dxfer_len));
    std::size_t done = 0;
    for (const iovec &piece : pieces(header)) {
        const std::size_t count = std::min(piece.iov_len, data.size() - done);
        if (count > 0) {
            std::memcpy(piece.iov_base, data.data() + done, count);
        }
        done += count;
    }
    return done;
}

void putSense(sg_io_hdr &header, const Sense &sense) {
    header.status = kCheckCondition;
    header.masked_status = kCheckCondition >> 1U;
    header.driver_status = kDriverSense;
    if (header.sbp == nullptr) {
        return;
    }
    const auto data = fixedSense(sense);
    header.sb_len_wr =
        static_cast<unsigned char>(std::min<std::size_t>(data.size(), header.mx_sb_len));
    std::memcpy(header.sbp, data.data(), header.sb_len_wr);
}

} // namespace

int sgIo(const KernelDriver &driver, void *argument) {
    auto *header = static_cast<sg_io_hdr *>(argument);
    if (header == nullptr) {
        return EFAULT;
    }
    if (header->interface_id != 'S' || header->cmdp == nullptr ||
        header->cmd_len > kLongestCommand) {
        return EINVAL;
    }
    if (header->dxfer_len > kLongestTransfer) {
        return EIO;
    }
    const bool isSending = header->dxfer_direction == SG_DXFER_TO_DEV;
    const Bytes sent = isSending ? gather(*header) : Bytes{};
    const unsigned timeout = header->timeout == 0 ? kDefaultTimeoutMs : header->timeout;
    const Answer answer = driver.execute(ByteView(header->cmdp, header->cmd_len), sent, timeout);
    if (answer.transport == Transport::NoDevice) {
        return ENODEV;
    }
    header->status = header->masked_status = header->msg_status = header->sb_len_wr = 0;
    header->host_status = header->driver_status = 0;
    header->resid = 0;
    header->duration = static_cast<unsigned>(answer.delayMs);
    header->info = 0;
    if (isFromDevice(header->dxfer_direction)) {
        header->resid =
            static_cast<int>(header->dxfer_len) - static_cast<int>(scatter(*header, answer.data));
    }
    if (answer.transport == Transport::TimedOut) {
        header->host_status = kHostTimeOut;
        header->info = SG_INFO_CHECK;
    } else if (answer.sense) {
        putSense(*header, *answer.sense);
        header->info = SG_INFO_CHECK;
        header->resid = static_cast<int>(header->dxfer_len);
    }
    return 0;
}

int sendPacket(const KernelDriver &driver, void *argument) {
    auto *packet = static_cast<cdrom_generic_command *>(argument);
    if (packet == nullptr) {
        return EFAULT;
    }
    const bool isSending = packet->data_direction == CGC_DATA_WRITE;
    const ByteView sent = isSending ? ByteView(packet->buffer, packet->buflen) : ByteView();
    const unsigned timeout =
        packet->timeout > 0 ? static_cast<unsigned>(packet->timeout) * 10 : kDefaultTimeoutMs;
    const Answer answer = driver.execute(ByteView(packet->cmd, CDROM_PACKET_SIZE), sent, timeout);
    if (!isSending && packet->buffer != nullptr) {
        const std::size_t count = std::min<std::size_t>(answer.data.size(), packet->buflen);
        std::copy_n(answer.data.begin(), count, packet->buffer);
    }
    packet->stat = answer.sense ? kCheckCondition : 0;
    if (answer.sense && packet->sense != nullptr) {
        const auto data = fixedSense(*answer.sense);
        std::memcpy(packet->sense, data.data(), std::min(sizeof(request_sense), data.size()));
    }
    return KernelDriver::errorOf(answer);
}

} // namespace recorder::preload
