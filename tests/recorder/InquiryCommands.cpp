// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/Commands.h"

#include <array>
#include <string_view>

namespace recorder {

namespace {

constexpr Byte kTypeCdRom = 5;

void putText(ByteSpan bytes, std::string_view text) {
    for (std::size_t index = 0; index < bytes.size(); ++index) {
        bytes[index] = index < text.size() ? static_cast<Byte>(text[index]) : Byte{' '};
    }
}

Answer vitalProductData(const Device &device, const Command &command) {
    const unsigned page = get8(command.cdb, 2);
    Bytes data = {kTypeCdRom, low8(page), 0, 0};
    if (page == 0x00) {
        data.insert(data.end(), {0x00, 0x80});
    } else if (page == 0x80) {
        for (const char character : device.profile.serial) {
            data.push_back(static_cast<Byte>(character));
        }
    } else {
        return Answer::check(sense::kInvalidFieldInCommand);
    }
    data[3] = low8(static_cast<std::int64_t>(data.size()) - 4);
    return Answer::cut(std::move(data), get16(command.cdb, 3));
}

/// A feature descriptor: code, version, persistent and current bits, contents of 4n bytes.
struct Feature {
    unsigned code;
    unsigned version;
    bool isPersistent;
    bool isCurrent;
    Bytes contents;
};

Bytes profileList(const Device &device) {
    std::vector<unsigned> profiles = {0x10, 0x0a, 0x09, 0x08};
    if (!device.profile.canWrite) {
        profiles = {0x10, 0x08};
    }
    const unsigned current = device.hasMedium() ? device.disc->profile() : 0;
    Bytes list;
    for (const unsigned profile : profiles) {
        list.insert(list.end(), {0, low8(profile), low8(profile == current ? 1 : 0), 0});
    }
    return list;
}

std::vector<Feature> features(const Device &device) {
    const bool hasMedium = device.hasMedium();
    const bool isCd = hasMedium && device.disc->isCd();
    const bool isDvd = hasMedium && !device.disc->isCd();
    const bool isWritable = hasMedium && device.disc->isRecordableCd();
    const bool isRewritable = hasMedium && device.disc->isRewritable();
    const bool canRead = hasMedium && device.disc->status() != DiscStatus::Blank;
    std::vector<Feature> list = {
        {0x0000, 0, true, true, profileList(device)},
        {0x0001, 1, true, true, {0, 0, 0, 2, 0, 0, 0, 0}}, // Core: ATAPI, no device busy events.
        {0x0002, 1, true, true, {0, 0, 0, 0}},             // Morphing: no operational changes.
        {0x0003, 0, true, true, {0x29, 0, 0, 0}},          // Tray that ejects and can be locked.
        {0x0010, 0, false, canRead, {0, 0, 8, 0, 0, 1, 1, 0}}, // Random readable, 2048 bytes.
        {0x001d, 0, true, true, {}},                           // Multi read.
        {0x001e, 2, false, isCd, {3, 0, 0, 0}},                // CD read: C2 pointers, CD-TEXT.
        {0x001f, 0, false, isDvd, {}},                         // DVD read.
        {0x0100, 0, true, true, {}},                           // Power management.
        {0x0103, 0, true, true, {3, 0, 1, 0}},                 // CD audio output.
        {0x0105, 0, true, true, {0, 0, 0, 0}},                 // Time-out.
        {0x0107, 0, false, hasMedium, {0x1a, 0, 0, 0}},        // Speeds can be set and asked.
    };
    if (device.profile.canWrite) {
        // Track at once, of the block types that mode page 05 takes: 0, 8, 9 and 10.
        list.push_back({0x002d, 2, false, isWritable, {0x46, 0, 0x07, 0x01}});
        list.push_back({0x002e, 0, false, isWritable, {0x67, 0, 0x10, 0}});
        list.push_back({0x0037, 0, false, isRewritable, {0, 0x0f, 0, 0}});
    }
    Bytes serial(device.profile.serial.begin(), device.profile.serial.end());
    serial.resize((serial.size() + 3) / 4 * 4, Byte{' '});
    list.push_back({0x0108, 0, true, true, std::move(serial)});
    std::sort(list.begin(), list.end(),
              [](const Feature &left, const Feature &right) { return left.code < right.code; });
    return list;
}

} // namespace

Answer inquiry(Device &device, const Command &command) {
    if (command.bit(1, 0)) {
        return vitalProductData(device, command);
    }
    if (get8(command.cdb, 2) != 0) {
        return Answer::check(sense::kInvalidFieldInCommand);
    }
    Bytes data(96, 0);
    data[0] = kTypeCdRom;
    data[1] = 0x80; // Removable.
    data[2] = 5;    // SPC-3.
    data[3] = 2;
    data[4] = low8(static_cast<std::int64_t>(data.size()) - 5);
    putText(ByteSpan(data).subspan(8, 8), device.profile.vendor);
    putText(ByteSpan(data).subspan(16, 16), device.profile.product);
    putText(ByteSpan(data).subspan(32, 4), device.profile.revision);
    return Answer::cut(std::move(data), get16(command.cdb, 3));
}

Answer requestSense(Device &device, const Command &command) {
    Sense sense = device.memory.lastSense;
    LongOperation &operation = device.memory.operation;
    if (device.memory.hasUnitAttention) {
        device.memory.hasUnitAttention = false;
        sense = sense::kMediumMayHaveChanged;
    } else if (operation.pollsLeft > 0) {
        --operation.pollsLeft;
        sense = operation.isWriting ? sense::kLongWriteInProgress : sense::kOperationInProgress;
    }
    device.memory.lastSense = sense::kNone;
    const auto data = fixedSense(sense);
    return Answer::cut(Bytes(data.begin(), data.end()), get8(command.cdb, 4));
}

Answer getConfiguration(Device &device, const Command &command) {
    const unsigned type = get8(command.cdb, 1) & 3U;
    const unsigned first = get16(command.cdb, 2);
    if (type == 3) {
        return Answer::check(sense::kInvalidFieldInCommand);
    }
    Bytes data(8, 0);
    put16(data, 6, device.hasMedium() ? device.disc->profile() : 0);
    for (const Feature &feature : features(device)) {
        const bool isAsked = type == 2 ? feature.code == first : feature.code >= first;
        if (!isAsked || (type == 1 && !feature.isCurrent)) {
            continue;
        }
        const unsigned bits = feature.version << 2U | (feature.isPersistent ? 2U : 0U) |
                              (feature.isCurrent ? 1U : 0U);
        data.insert(data.end(), {low8(feature.code >> 8U), low8(feature.code), low8(bits),
                                 low8(static_cast<std::int64_t>(feature.contents.size()))});
        data.insert(data.end(), feature.contents.begin(), feature.contents.end());
    }
    put32(data, 0, static_cast<std::int64_t>(data.size()) - 4);
    return Answer::cut(std::move(data), get16(command.cdb, 7));
}

} // namespace recorder
