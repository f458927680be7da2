// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/libburn/FakeDiscTransport.h"

#include "scorch/support/DiscContent.h"

#include <algorithm>

using namespace scorch;

namespace {

MmcError senseError(const char *name, Sense sense) {
    return {.kind = MmcError::Kind::sense, .sense = sense, .systemError = 0, .command = name};
}

std::int64_t bigEndian(std::span<const std::uint8_t> bytes) {
    std::int64_t value = 0;
    for (const std::uint8_t byte : bytes) {
        value = value * 256 + byte;
    }
    return value;
}

} // namespace

Result<std::size_t, MmcError> FakeDiscTransport::read(const char *name,
                                                      std::span<const std::uint8_t> command,
                                                      std::span<std::uint8_t> answer,
                                                      std::chrono::milliseconds /*timeout*/) {
    if (disc_.attentions > 0) {
        --disc_.attentions;
        return senseError(name, {6, 0x29, 0});
    }
    const bool isSound = command[0] == 0xBE;
    const std::int64_t lba = bigEndian(command.subspan(2, 4));
    const std::int64_t count =
        isSound ? bigEndian(command.subspan(6, 3)) : bigEndian(command.subspan(7, 2));
    const auto size = static_cast<std::int64_t>(isSound ? audioSectorBytes : dataSectorBytes);
    disc_.lengths.push_back(count);
    disc_.lowest = std::min(disc_.lowest, lba);
    disc_.highest = std::max(disc_.highest, lba + count);
    if (std::any_of(disc_.badSectors.begin(), disc_.badSectors.end(),
                    [&](std::int64_t bad) { return bad >= lba && bad < lba + count; })) {
        return senseError(name, {3, 0x11, 0});
    }
    const std::int64_t begin = lba * size - (isSound ? disc_.offsetBytes : 0);
    for (std::int64_t at = 0; at < count * size; ++at) {
        const std::int64_t from = begin + at;
        const bool isOnDisc = from >= 0 && from < static_cast<std::int64_t>(disc_.bytes.size());
        answer[static_cast<std::size_t>(at)] =
            isOnDisc ? static_cast<std::uint8_t>(disc_.bytes[static_cast<std::size_t>(from)]) : 0;
    }
    return static_cast<std::size_t>(count * size);
}
