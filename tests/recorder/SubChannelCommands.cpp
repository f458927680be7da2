// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/Commands.h"
#include "tests/recorder/SubChannel.h"

#include <algorithm>
#include <array>

namespace recorder {

namespace {

constexpr Byte kNoAudioStatus = 0x15;

Bytes withHeader(const Bytes &contents) {
    constexpr std::size_t headerBytes = 4;
    Bytes data(headerBytes + contents.size(), 0);
    data[1] = kNoAudioStatus;
    put16(data, 2, static_cast<std::int64_t>(contents.size()));
    std::copy(contents.begin(), contents.end(), data.begin() + headerBytes);
    return data;
}

Bytes position(const Disc &disc, Lba lba, bool asMsf) {
    Bytes contents(12, 0);
    contents[0] = 1;
    const Track *track = disc.trackHolding(lba);
    if (track != nullptr) {
        contents[1] = static_cast<Byte>(0x10U | track->control);
        contents[2] = low8(track->number);
        contents[3] = low8(indexAt(*track, lba));
    }
    putAddress(contents, 4, lba, asMsf);
    const Lba relative = track == nullptr ? 0 : lba - track->start;
    if (asMsf) {
        putMsf(contents, 9, durationMsf(std::max(relative, -relative)));
    } else {
        put32(contents, 8, relative);
    }
    return contents;
}

/// Media catalog number or ISRC: a valid bit, and the characters in ASCII.
Bytes identity(const std::array<Byte, 4> &head, const std::string &text) {
    Bytes data(20, 0);
    std::copy(head.begin(), head.end(), data.begin());
    data[4] = text.empty() ? 0 : 0x80;
    std::copy(text.begin(), text.end(), data.begin() + 5);
    return data;
}

} // namespace

Answer readSubChannel(Device &device, const Command &command) {
    const Disc &disc = *device.disc;
    const std::size_t length = get16(command.cdb, 7);
    const bool asMsf = command.bit(1, 1);
    if (!command.bit(2, 6)) { // No Q data asked for.
        return Answer::cut(withHeader({}), length);
    }
    switch (get8(command.cdb, 3)) {
    case 1:
        return Answer::cut(withHeader(position(disc, device.memory.lastPlayed, asMsf)), length);
    case 2:
        return Answer::cut(withHeader(identity({2, 0, 0, 0}, disc.catalog)), length);
    case 3: {
        const Track *track = disc.trackAt(static_cast<int>(get8(command.cdb, 6)));
        if (track == nullptr) {
            return Answer::check(sense::kInvalidFieldInCommand);
        }
        const auto control = static_cast<Byte>(0x10U | track->control);
        return Answer::cut(withHeader(identity({3, control, low8(track->number), 0}, track->isrc)),
                           length);
    }
    default:
        return Answer::check(sense::kInvalidFieldInCommand);
    }
}

} // namespace recorder
