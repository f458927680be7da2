// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/Commands.h"
#include "tests/recorder/WritePage.h"

namespace recorder {

namespace {

constexpr unsigned kAllPages = 0x3f;
constexpr unsigned kChangeable = 1;
constexpr unsigned kDefault = 2;

Bytes capabilitiesPage(const Device &device) {
    const bool canWrite = device.profile.canWrite;
    const std::vector<int> &speeds = device.profile.speeds;
    const std::size_t count = canWrite ? speeds.size() : 0;
    Bytes page(32 + 4 * count, 0);
    page[0] = 0x2a;
    page[1] = low8(static_cast<std::int64_t>(page.size()) - 2);
    page[2] = 0x0f;                   // Reads CD-R, CD-RW, method 2, DVD-ROM.
    page[3] = canWrite ? 0x07 : 0x00; // Writes CD-R, CD-RW; test writing.
    page[4] = canWrite ? 0xf1 : 0x71; // Buffer under-run free, multi-session, mode 2, audio.
    page[5] = 0x77;                   // CD-DA, accurate stream, R-W, C2, ISRC, catalog number.
    page[6] = device.memory.isLocked ? 0x2b : 0x29; // Tray that ejects and can be locked.
    page[7] = 0x20;                                 // R-W in the lead-in.
    put16(page, 8, kilobytesPerSecond(speeds.front()));
    put16(page, 12, device.profile.bufferKib);
    const int reading = device.memory.readSpeed;
    const int writing = device.memory.writeSpeed;
    put16(page, 14, reading > 0 ? reading : kilobytesPerSecond(speeds.front()));
    put16(page, 22, 1); // Copy management revision.
    if (canWrite) {
        const int fastest = kilobytesPerSecond(speeds.front());
        put16(page, 18, fastest);
        put16(page, 20, writing > 0 ? writing : fastest);
        put16(page, 28, writing > 0 ? writing : fastest);
        put16(page, 30, static_cast<std::int64_t>(count));
        for (std::size_t index = 0; index < count; ++index) {
            put16(page, 32 + 4 * index + 2, kilobytesPerSecond(speeds[index]));
        }
    }
    return page;
}

Bytes page(const Device &device, unsigned code, unsigned control) {
    switch (code) {
    case 0x01:
        return {0x01, 0x0a, 0, 5, 0, 0, 0, 0, 5, 0, 0, 0};
    case 0x05: {
        if (!device.profile.canWrite) {
            return {};
        }
        if (control == kChangeable) {
            return changeableWritePage();
        }
        const auto &kept = device.memory.writePage;
        return control == kDefault || kept[0] == 0 ? defaultWritePage()
                                                   : Bytes(kept.begin(), kept.end());
    }
    case 0x0d:
        return {0x0d, 6, 0, 0x0d, 0, 60, 0, 75};
    case 0x0e:
        return {0x0e, 0x0e, 4, 0, 0, 0, 0, 75, 1, 0xff, 2, 0xff, 0, 0, 0, 0};
    case 0x1a:
        return {0x1a, 0x0a, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    case 0x1d:
        return {0x1d, 0x0a, 0, 0, 0, 0, 0, 60, 0, 60, 0, 0};
    case 0x2a:
        return capabilitiesPage(device);
    default:
        return {};
    }
}

Bytes pages(const Device &device, unsigned asked, unsigned control) {
    if (asked != kAllPages) {
        return page(device, asked, control);
    }
    Bytes all;
    for (const unsigned code : {0x01U, 0x05U, 0x0dU, 0x0eU, 0x1aU, 0x1dU, 0x2aU}) {
        const Bytes one = page(device, code, control);
        all.insert(all.end(), one.begin(), one.end());
    }
    return all;
}

Answer modeSense(const Device &device, const Command &command, bool isLong) {
    const unsigned control = get8(command.cdb, 2) >> 6U;
    Bytes contents = pages(device, get8(command.cdb, 2) & 0x3fU, control);
    if (contents.empty() || control == 3) {
        return Answer::check(sense::kInvalidFieldInCommand);
    }
    Bytes data(isLong ? 8 : 4, 0);
    data.insert(data.end(), contents.begin(), contents.end());
    const auto size = static_cast<std::int64_t>(data.size());
    if (isLong) {
        put16(data, 0, size - 2);
        return Answer::cut(std::move(data), get16(command.cdb, 7));
    }
    data[0] = low8(size - 1);
    return Answer::cut(std::move(data), get8(command.cdb, 4));
}

Answer modeSelect(Device &device, const Command &command, bool isLong) {
    const std::size_t header = isLong ? 8 : 4;
    const std::size_t announced = isLong ? get16(command.cdb, 7) : get8(command.cdb, 4);
    if (announced == 0) {
        return Answer::good();
    }
    if (command.sent.size() < announced || announced < header) {
        return Answer::check(sense::kParameterListLengthError);
    }
    const std::size_t descriptors = isLong ? get16(command.sent, 6) : get8(command.sent, 3);
    ByteView rest = command.sent.first(announced).subspan(header);
    if (descriptors > rest.size()) {
        return Answer::check(sense::kParameterListLengthError);
    }
    rest = rest.subspan(descriptors);
    while (rest.size() >= 2) {
        const unsigned code = rest[0] & 0x3fU;
        const std::size_t length = rest[1] + std::size_t{2};
        if (length > rest.size()) {
            return Answer::check(sense::kParameterListLengthError);
        }
        if (code == 0x05) {
            if (!device.profile.canWrite || !acceptWritePage(device.memory, rest.first(length))) {
                return Answer::check(sense::kInvalidFieldInParameters);
            }
        } else if (page(device, code, 0).empty() || code == 0x2a) {
            return Answer::check(sense::kInvalidFieldInParameters);
        }
        rest = rest.subspan(length);
    }
    return Answer::good();
}

} // namespace

Answer modeSense6(Device &device, const Command &command) {
    return modeSense(device, command, false);
}

Answer modeSense10(Device &device, const Command &command) {
    return modeSense(device, command, true);
}

Answer modeSelect6(Device &device, const Command &command) {
    return modeSelect(device, command, false);
}

Answer modeSelect10(Device &device, const Command &command) {
    return modeSelect(device, command, true);
}

} // namespace recorder
