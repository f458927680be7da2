// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/Commands.h"
#include "tests/recorder/SectorFrame.h"
#include "tests/recorder/SubChannel.h"

#include <array>

namespace recorder {

namespace {

constexpr std::size_t kBytesPerSample = 4;

using Sector = std::array<Byte, kRawSectorBytes>;

/// What READ CD is asked for (byte 9 and 10 of the command).
struct Selection {
    unsigned expectedType = 0;
    bool sync = false;
    unsigned headers = 0;
    bool userData = false;
    bool correction = false;
    unsigned c2 = 0;
    unsigned subChannel = 0;
};

Selection selectionOf(const Command &command) {
    const unsigned flags = get8(command.cdb, 9);
    return {get8(command.cdb, 1) >> 2U & 7U,
            (flags & 0x80U) != 0,
            flags >> 5U & 3U,
            (flags & 0x10U) != 0,
            (flags & 0x08U) != 0,
            flags >> 1U & 3U,
            get8(command.cdb, 10) & 7U};
}

bool isExpected(unsigned type, SectorForm form) {
    switch (type) {
    case 0:
        return true;
    case 1:
        return form == SectorForm::Audio;
    case 2:
        return form == SectorForm::Mode1;
    case 3:
        return form == SectorForm::Mode2;
    case 4:
        return form == SectorForm::Mode2Form1;
    default:
        return false;
    }
}

Sense mediumError(Sense sense, Lba lba) {
    sense.block = lba;
    return sense;
}

void flip(const Device &device, const Track &track, Lba lba, Sector &sector) {
    const auto byte = static_cast<std::size_t>(device.faults.flipByte);
    if (device.faults.flipBlock == lba && byte < userDataBytes(track.form)) {
        sector[userDataOffset(track.form) + byte] ^= 0xffU;
    }
}

/// One recorded sector, or why it cannot be read.
std::optional<Sense> readSector(const Device &device, const Track &track, Lba lba, Sector &sector) {
    if (lba >= track.recorded || device.faults.readError == lba) {
        return mediumError(sense::kUnrecoveredReadError, lba);
    }
    std::int64_t offset = DiscStore::offsetOf(lba);
    if (!track.isData()) {
        offset -= std::int64_t{device.faults.readOffset} * static_cast<int>(kBytesPerSample);
    }
    if (!device.store.read(offset, sector)) {
        return mediumError(sense::kUnrecoveredReadError, lba);
    }
    flip(device, track, lba, sector);
    return {};
}

void append(Bytes &data, ByteView part) {
    data.insert(data.end(), part.begin(), part.end());
}

void appendMain(Bytes &data, const Selection &selection, SectorForm form, Sector &sector) {
    const ByteView all(sector);
    if (form == SectorForm::Audio) {
        if (selection.userData || selection.sync || selection.headers != 0) {
            append(data, all);
        }
        return;
    }
    if (selection.correction || selection.sync) {
        completeSector(sector, form);
    }
    const bool hasSubHeader = form == SectorForm::Mode2Form1;
    if (selection.sync) {
        append(data, all.first(12));
    }
    if ((selection.headers & 1U) != 0) {
        append(data, all.subspan(12, 4));
    }
    if ((selection.headers & 2U) != 0 && hasSubHeader) {
        append(data, all.subspan(16, 8));
    }
    const std::size_t begin = userDataOffset(form);
    const std::size_t end = begin + userDataBytes(form);
    if (selection.userData) {
        append(data, all.subspan(begin, end - begin));
    }
    if (selection.correction) {
        append(data, all.subspan(end));
    }
}

void appendSubChannel(Bytes &data, unsigned selection, const Disc &disc, Lba lba) {
    if (selection == 1) {
        append(data, rawSubChannel(disc, lba));
    } else if (selection == 2) {
        append(data, formattedQ(disc, lba));
    } else if (selection == 4) {
        data.resize(data.size() + kSubChannelBytes, 0); // R to W of a program area: nothing.
    }
}

Answer readSectors(Device &device, Lba first, std::int64_t count, const Selection &selection) {
    if (selection.c2 > 2 || (selection.subChannel > 2 && selection.subChannel != 4)) {
        return Answer::check(sense::kInvalidFieldInCommand);
    }
    Bytes data;
    Sector sector{};
    for (std::int64_t index = 0; index < count; ++index) {
        const Lba lba = first + static_cast<Lba>(index);
        const Track *track = device.disc->trackHolding(lba);
        if (track == nullptr) {
            return Answer::check(sense::kBlockOutOfRange);
        }
        if (!isExpected(selection.expectedType, track->form)) {
            return Answer::check(sense::kIllegalModeForTrack);
        }
        if (track->isData() && lba >= track->end - track->runOut) {
            return Answer::check(sense::kIllegalModeForTrack);
        }
        if (const auto failure = readSector(device, *track, lba, sector)) {
            return Answer::check(*failure);
        }
        appendMain(data, selection, track->form, sector);
        if (selection.c2 != 0) { // No byte is doubtful.
            data.resize(data.size() + (selection.c2 == 1 ? 294 : 296), 0);
        }
        appendSubChannel(data, selection.subChannel, *device.disc, lba);
    }
    device.memory.lastPlayed = first + static_cast<Lba>(count);
    device.pace(static_cast<std::size_t>(count));
    return Answer::good(std::move(data));
}

/// READ: data tracks only, 2048 bytes a block.
Answer readBlocks(Device &device, Lba first, std::int64_t count) {
    Bytes data;
    Sector sector{};
    for (std::int64_t index = 0; index < count; ++index) {
        const Lba lba = first + static_cast<Lba>(index);
        const Track *track = device.disc->trackHolding(lba);
        if (track == nullptr || lba < 0) {
            return Answer::check(sense::kBlockOutOfRange);
        }
        if (!track->isData() || track->form == SectorForm::Mode2 ||
            lba >= track->end - track->runOut) {
            return Answer::check(sense::kIllegalModeForTrack);
        }
        if (const auto failure = readSector(device, *track, lba, sector)) {
            return Answer::check(*failure);
        }
        append(data, ByteView(sector).subspan(userDataOffset(track->form), kUserDataBytes));
    }
    device.memory.lastPlayed = first + static_cast<Lba>(count);
    device.pace(static_cast<std::size_t>(count));
    return Answer::good(std::move(data));
}

} // namespace

Answer read10(Device &device, const Command &command) {
    return readBlocks(device, getAddress(command.cdb, 2), get16(command.cdb, 7));
}

Answer read12(Device &device, const Command &command) {
    return readBlocks(device, getAddress(command.cdb, 2), get32(command.cdb, 6));
}

Answer readCd(Device &device, const Command &command) {
    return readSectors(device, getAddress(command.cdb, 2), get24(command.cdb, 6),
                       selectionOf(command));
}

Answer readCdMsf(Device &device, const Command &command) {
    const Lba first = toLba(getMsf(command.cdb, 3));
    const Lba end = toLba(getMsf(command.cdb, 6));
    if (end < first) {
        return Answer::check(sense::kInvalidFieldInCommand);
    }
    return readSectors(device, first, end - first, selectionOf(command));
}

} // namespace recorder
