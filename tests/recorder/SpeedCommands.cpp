// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/Commands.h"

namespace recorder {

namespace {

constexpr unsigned kFastest = 0xffff;

Lba lastBlock(const Device &device) {
    if (!device.hasMedium()) {
        return 0;
    }
    return device.disc->status() == DiscStatus::Complete ? device.disc->contentsEnd() - 1
                                                         : device.disc->capacity;
}

/// The fastest speed of the drive that does not exceed what was asked, or its slowest.
int nearestSpeed(const DriveProfile &profile, unsigned wanted) {
    for (const int speed : profile.speeds) {
        if (kilobytesPerSecond(speed) <= static_cast<int>(wanted) || wanted == kFastest) {
            return kilobytesPerSecond(speed);
        }
    }
    return kilobytesPerSecond(profile.speeds.back());
}

void appendNominal(Bytes &data, Lba end, int speed) {
    Bytes entry(16, 0);
    put32(entry, 4, speed);
    put32(entry, 8, end);
    put32(entry, 12, speed);
    data.insert(data.end(), entry.begin(), entry.end());
}

void appendWriteSpeed(Bytes &data, Lba end, int reading, int writing) {
    Bytes entry(16, 0);
    put32(entry, 4, end);
    put32(entry, 8, reading);
    put32(entry, 12, writing);
    data.insert(data.end(), entry.begin(), entry.end());
}

} // namespace

Answer getPerformance(Device &device, const Command &command) {
    const unsigned type = get8(command.cdb, 10);
    const std::size_t limit = get16(command.cdb, 8);
    const int fastest = kilobytesPerSecond(device.profile.speeds.front());
    Bytes data(8, 0);
    if (type == 0x00) {
        const bool isForWriting = command.bit(1, 2);
        data[4] = isForWriting ? 2 : 0;
        if (limit > 0) {
            const int chosen = isForWriting ? device.memory.writeSpeed : device.memory.readSpeed;
            appendNominal(data, lastBlock(device), chosen > 0 ? chosen : fastest);
        }
    } else if (type == 0x03 && device.profile.canWrite) {
        for (const int speed : device.profile.speeds) {
            if (data.size() < 8 + 16 * limit) {
                appendWriteSpeed(data, lastBlock(device), fastest, kilobytesPerSecond(speed));
            }
        }
    } else {
        return Answer::check(sense::kInvalidFieldInCommand);
    }
    put32(data, 0, static_cast<std::int64_t>(data.size()) - 4);
    return Answer::good(std::move(data));
}

Answer setCdSpeed(Device &device, const Command &command) {
    device.memory.readSpeed = nearestSpeed(device.profile, get16(command.cdb, 2));
    if (const unsigned writing = get16(command.cdb, 4); writing != 0) {
        device.memory.writeSpeed = nearestSpeed(device.profile, writing);
    }
    return Answer::good();
}

Answer setStreaming(Device &device, const Command &command) {
    if (command.sent.size() < 28) {
        return Answer::check(sense::kParameterListLengthError);
    }
    if ((command.sent[0] & 4U) != 0) { // Restore the defaults.
        device.memory.readSpeed = device.memory.writeSpeed = 0;
        return Answer::good();
    }
    const auto speedAt = [&](std::size_t size) {
        const std::uint32_t perTime = get32(command.sent, size);
        const std::uint32_t milliseconds =
            std::max<std::uint32_t>(1, get32(command.sent, size + 4));
        const std::uint64_t speed = std::uint64_t{perTime} * 1000 / milliseconds;
        return static_cast<unsigned>(std::min<std::uint64_t>(speed, kFastest));
    };
    device.memory.readSpeed = nearestSpeed(device.profile, speedAt(12));
    device.memory.writeSpeed = nearestSpeed(device.profile, speedAt(20));
    return Answer::good();
}

Answer readBufferCapacity(Device &device, const Command &command) {
    Bytes data(12, 0);
    put16(data, 0, 10);
    const bool isInBlocks = command.bit(1, 0);
    const std::int64_t total = std::int64_t{device.profile.bufferKib} * 1024;
    data[3] = isInBlocks ? 1 : 0;
    // What arrives is on the disc at once, so the buffer is always empty.
    put32(data, 4, isInBlocks ? 0 : total);
    put32(data, 8, isInBlocks ? total / static_cast<std::int64_t>(kUserDataBytes) : total);
    return Answer::cut(std::move(data), get16(command.cdb, 7));
}

} // namespace recorder
