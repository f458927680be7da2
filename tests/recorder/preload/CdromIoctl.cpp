// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/preload/CdromIoctl.h"

#include "tests/recorder/preload/SgIo.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <linux/cdrom.h>
#include <linux/fs.h>
#include <scsi/scsi_ioctl.h>
#include <scsi/sg.h>

namespace recorder::preload {

namespace {

constexpr int kSgVersion = 30527;
constexpr unsigned long kGetIdLun = 0x5382;
constexpr unsigned long kGetBusNumber = 0x5386;
constexpr long kSectorsOf512 = 4;

template <class Value>
IoctlResult store(void *argument, Value value) {
    if (argument == nullptr) {
        return {EFAULT};
    }
    std::memcpy(argument, &value, sizeof value);
    return {};
}

void putAddress(cdrom_addr &target, int format, ByteView entry, std::size_t at) {
    if (format == CDROM_MSF) {
        target.msf = {entry[at + 1], entry[at + 2], entry[at + 3]};
    } else {
        target.lba = getAddress(entry, at);
    }
}

IoctlResult tocHeader(const KernelDriver &driver, cdrom_tochdr *header) {
    Bytes data;
    const int error = driver.command({0x43, 0, 0, 0, 0, 0, 0, 0, 12, 0}, data);
    if (error != 0 || data.size() < 4) {
        return {error != 0 ? error : EIO};
    }
    header->cdth_trk0 = data[2];
    header->cdth_trk1 = data[3];
    return {};
}

IoctlResult tocEntry(const KernelDriver &driver, cdrom_tocentry *entry) {
    const int asMsf = entry->cdte_format == CDROM_MSF ? 2 : 0;
    Bytes data;
    const int error = driver.command({0x43, asMsf, 0, 0, 0, 0, entry->cdte_track, 0, 12, 0}, data);
    if (error != 0 || data.size() < 12) {
        return {error != 0 ? error : EINVAL};
    }
    entry->cdte_adr = data[5] >> 4U & 15U;
    entry->cdte_ctrl = data[5] & 15U;
    entry->cdte_datamode = (data[5] & kControlData) != 0 ? 1 : 0;
    putAddress(entry->cdte_addr, entry->cdte_format, data, 8);
    return {};
}

IoctlResult multiSession(const KernelDriver &driver, cdrom_multisession *session) {
    Bytes data;
    const int asMsf = session->addr_format == CDROM_MSF ? 2 : 0;
    const int error = driver.command({0x43, asMsf, 1, 0, 0, 0, 0, 0, 12, 0}, data);
    if (error != 0 || data.size() < 12) {
        return {error != 0 ? error : EIO};
    }
    session->xa_flag = data[3] > 1 ? 1 : 0;
    putAddress(session->addr, session->addr_format, data, 8);
    return {};
}

IoctlResult subChannel(const KernelDriver &driver, cdrom_subchnl *sub) {
    Bytes data;
    const int asMsf = sub->cdsc_format == CDROM_MSF ? 2 : 0;
    const int error = driver.command({0x42, asMsf, 0x40, 1, 0, 0, 0, 0, 16, 0}, data);
    if (error != 0 || data.size() < 16) {
        return {error != 0 ? error : EIO};
    }
    sub->cdsc_audiostatus = data[1];
    sub->cdsc_adr = data[5] >> 4U & 15U;
    sub->cdsc_ctrl = data[5] & 15U;
    sub->cdsc_trk = data[6];
    sub->cdsc_ind = data[7];
    putAddress(sub->cdsc_absaddr, sub->cdsc_format, data, 8);
    putAddress(sub->cdsc_reladdr, sub->cdsc_format, data, 12);
    return {};
}

IoctlResult catalog(const KernelDriver &driver, cdrom_mcn *mcn) {
    Bytes data;
    const int error = driver.command({0x42, 0, 0x40, 2, 0, 0, 0, 0, 24, 0}, data);
    if (error != 0 || data.size() < 24) {
        return {error != 0 ? error : EIO};
    }
    std::memset(mcn, 0, sizeof *mcn);
    std::memcpy(mcn->medium_catalog_number, data.data() + 9, 13);
    return {};
}

IoctlResult readAudio(const KernelDriver &driver, const cdrom_read_audio *order) {
    const Lba first =
        order->addr_format == CDROM_MSF
            ? toLba({order->addr.msf.minute, order->addr.msf.second, order->addr.msf.frame})
            : order->addr.lba;
    if (order->nframes < 0 || order->nframes > kFramesPerSecond) {
        return {EINVAL};
    }
    Bytes data;
    const int error =
        driver.command({0xbe, 4, low8(first >> 24), low8(first >> 16), low8(first >> 8),
                        low8(first), 0, 0, order->nframes, 0xf8, 0, 0},
                       data);
    if (error == 0) {
        std::copy(data.begin(), data.end(), order->buf);
    }
    return {error};
}

/// CDROMREADRAW and its like: the buffer holds the MSF of the sector, then the sector.
IoctlResult readSector(const KernelDriver &driver, void *argument, int flags) {
    cdrom_msf msf{};
    std::memcpy(&msf, argument, sizeof msf);
    const Lba lba = toLba({msf.cdmsf_min0, msf.cdmsf_sec0, msf.cdmsf_frame0});
    Bytes data;
    const int error = driver.command({0xbe, 0, low8(lba >> 24), low8(lba >> 16), low8(lba >> 8),
                                      low8(lba), 0, 0, 1, flags, 0, 0},
                                     data);
    if (error == 0) {
        std::memcpy(argument, data.data(), data.size());
    }
    return {error};
}

IoctlResult lockDoor(const KernelDriver &driver, bool isToLock) {
    return {driver.command({0x1e, 0, 0, 0, isToLock ? 1 : 0, 0})};
}

IoctlResult eject(const KernelDriver &driver) {
    const int error = driver.command({0x1b, 0, 0, 0, 2, 0});
    return {error == EOPNOTSUPP ? EBUSY : error}; // The door is locked.
}

IoctlResult nextWritable(const KernelDriver &driver, void *argument) {
    Bytes data;
    const int error = driver.command({0x52, 1, 0, 0, 0, 0xff, 0, 0, 36, 0}, data);
    return error != 0 ? IoctlResult{error}
                      : store(argument, static_cast<long>(getAddress(data, 12)));
}

IoctlResult capability(const KernelDriver &driver) {
    Bytes page;
    const int error = driver.command({0x5a, 0, 0x2a, 0, 0, 0, 0, 0, 0xff, 0}, page);
    if (error != 0) {
        return {error};
    }
    int bits = CDC_CLOSE_TRAY | CDC_OPEN_TRAY | CDC_LOCK | CDC_SELECT_SPEED | CDC_MULTI_SESSION |
               CDC_MCN | CDC_MEDIA_CHANGED | CDC_RESET | CDC_DRIVE_STATUS | CDC_GENERIC_PACKET |
               CDC_DVD;
    bits |= (get8(page, 11) & 1U) != 0 ? CDC_CD_R | CDC_CD_RW : 0;
    return {0, bits};
}

IoctlResult generic(int number, unsigned long request, void *argument) {
    const KernelDriver driver(number);
    switch (request) {
    case SG_IO:
        return {sgIo(driver, argument)};
    case SG_GET_VERSION_NUM:
        return store(argument, kSgVersion);
    case SG_SET_TIMEOUT:
    case SG_SET_RESERVED_SIZE:
        return {};
    case SG_GET_TIMEOUT:
        return {0, 6000};
    case SG_GET_RESERVED_SIZE:
        return store(argument, 64 * 1024);
    case SG_EMULATED_HOST:
        return store(argument, 1);
    case kGetIdLun: { // Four bytes: target, logical unit, channel, host; then the unique id.
        const std::array<int, 2> id = {static_cast<int>(static_cast<unsigned>(number) << 24U), 0};
        return store(argument, id);
    }
    case kGetBusNumber:
        return store(argument, number);
    case BLKGETSIZE64:
        return store(argument, static_cast<std::uint64_t>(driver.size()));
    case BLKGETSIZE:
        return store(argument, static_cast<unsigned long>(driver.size() / 512));
    case BLKSSZGET:
    case BLKBSZGET:
        return store(argument, static_cast<int>(kSectorsOf512 * 512));
    case BLKROGET:
        return store(argument, 0);
    case BLKFLSBUF:
    case BLKBSZSET:
    case BLKRASET:
        return {};
    default:
        return {ENOTTY};
    }
}

IoctlResult medium(const KernelDriver &driver, unsigned long request, void *argument) {
    switch (request) {
    case CDROM_DRIVE_STATUS:
        return {0, driver.driveStatus()};
    case CDROM_DISC_STATUS:
        return {0, driver.discStatus()};
    case CDROM_MEDIA_CHANGED: {
        Bytes event;
        const int error = driver.command({0x4a, 1, 0, 0, 0x10, 0, 0, 0, 8, 0}, event);
        return {error, get8(event, 4) == unsigned(MediaEvent::NewMedia) ? 1 : 0};
    }
    case CDROM_GET_CAPABILITY:
        return capability(driver);
    case CDROM_LOCKDOOR:
        return lockDoor(driver, argument != nullptr);
    case CDROMEJECT:
        lockDoor(driver, false);
        return eject(driver);
    case CDROMCLOSETRAY:
        return {driver.command({0x1b, 0, 0, 0, 3, 0})};
    case CDROMSTART:
        return {driver.command({0x1b, 0, 0, 0, 1, 0})};
    case CDROMSTOP:
        return {driver.command({0x1b, 0, 0, 0, 0, 0})};
    case CDROM_SELECT_SPEED:
    case CDROMEJECT_SW:
    case CDROM_SET_OPTIONS:
    case CDROM_CLEAR_OPTIONS:
    case CDROMRESET:
    case CDROM_DEBUG:
        return {};
    case CDROM_NEXT_WRITABLE:
        return nextWritable(driver, argument);
    default:
        return {ENOTTY};
    }
}

IoctlResult contents(const KernelDriver &driver, unsigned long request, void *argument) {
    constexpr int kAll = 0xf8;
    constexpr int kUserData = 0x10;
    if (argument == nullptr) {
        return {EFAULT};
    }
    switch (request) {
    case CDROM_SEND_PACKET:
        return {sendPacket(driver, argument)};
    case CDROMREADTOCHDR:
        return tocHeader(driver, static_cast<cdrom_tochdr *>(argument));
    case CDROMREADTOCENTRY:
        return tocEntry(driver, static_cast<cdrom_tocentry *>(argument));
    case CDROMMULTISESSION:
        return multiSession(driver, static_cast<cdrom_multisession *>(argument));
    case CDROMSUBCHNL:
        return subChannel(driver, static_cast<cdrom_subchnl *>(argument));
    case CDROM_GET_MCN:
        return catalog(driver, static_cast<cdrom_mcn *>(argument));
    case CDROMREADAUDIO:
        return readAudio(driver, static_cast<cdrom_read_audio *>(argument));
    case CDROMREADRAW:
        return readSector(driver, argument, kAll);
    case CDROMREADMODE1:
    case CDROMREADMODE2:
        return readSector(driver, argument, kUserData);
    default:
        return {ENOTTY};
    }
}

bool isOfContents(unsigned long request) {
    constexpr std::array<unsigned long, 10> kRequests = {
        CDROM_SEND_PACKET, CDROMREADTOCHDR, CDROMREADTOCENTRY, CDROMMULTISESSION, CDROMSUBCHNL,
        CDROM_GET_MCN,     CDROMREADAUDIO,  CDROMREADRAW,      CDROMREADMODE1,    CDROMREADMODE2};
    return std::find(kRequests.begin(), kRequests.end(), request) != kRequests.end();
}

} // namespace

IoctlResult cdromIoctl(int number, unsigned long request, void *argument) {
    Recorder *drive = Drives::instance().recorder(number);
    if (drive == nullptr) {
        return {ENODEV};
    }
    if (request != SG_IO) { // Which finds out by itself.
        const SignalsHeld held;
        const Faults faults = drive->faults();
        if (faults.vanished || faults.noDevice) {
            return {ENODEV};
        }
    }
    const KernelDriver driver(number);
    if (isOfContents(request)) {
        return contents(driver, request, argument);
    }
    const IoctlResult result = medium(driver, request, argument);
    return result.error == ENOTTY ? generic(number, request, argument) : result;
}

} // namespace recorder::preload
