// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/SubChannel.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <utility>

namespace recorder {

namespace {

constexpr Byte kLeadOutNumber = 0xaa;

void putCrc(std::array<Byte, 12> &q) {
    put16(q, 10, subChannelCrc(ByteView(q).first(10)));
}

void putPosition(std::array<Byte, 12> &q, const Disc &disc, Lba lba) {
    const Track *track = disc.trackHolding(lba);
    if (track != nullptr) {
        q[0] = static_cast<Byte>(track->control << 4U | 1U);
        q[1] = toBcd(track->number);
        q[2] = toBcd(indexAt(*track, lba));
        // In a pregap the time runs down to zero at the last block.
        const Lba relative = lba >= track->start ? lba - track->start : track->start - 1 - lba;
        putMsfBcd(q, 3, durationMsf(relative));
    } else {
        const std::vector<const Track *> all = disc.tracks();
        q[0] = static_cast<Byte>((all.empty() ? 0U : unsigned{all.back()->control}) << 4U | 1U);
        q[1] = kLeadOutNumber;
        q[2] = 1;
        putMsfBcd(q, 3, durationMsf(std::max(0, lba - disc.contentsEnd())));
    }
    putMsfBcd(q, 7, toMsf(lba));
}

bool putCatalog(std::array<Byte, 12> &q, const Disc &disc, Lba lba) {
    if (disc.catalog.size() != 13) {
        return false;
    }
    const Track *track = disc.trackHolding(lba);
    q[0] = static_cast<Byte>((track == nullptr ? 0U : unsigned{track->control}) << 4U | 2U);
    for (std::size_t index = 0; index < 13; ++index) {
        const unsigned digit = static_cast<unsigned>(disc.catalog[index] - '0') & 15U;
        q[1 + index / 2] |= static_cast<Byte>(index % 2 == 0 ? digit << 4U : digit);
    }
    q[9] = toBcd(toMsf(lba).frame);
    return true;
}

/// Letters and digits of an ISRC in six bits (IEC 60908): digits from 0, letters from 11h.
unsigned sixBits(char character) {
    const auto value = static_cast<unsigned char>(character);
    return std::isdigit(value) != 0 ? value - unsigned{'0'} : value - unsigned{'A'} + 0x11U;
}

bool putIsrc(std::array<Byte, 12> &q, const Track *track, Lba lba) {
    if (track == nullptr || track->isrc.size() != 12 || lba < track->start) {
        return false;
    }
    q[0] = static_cast<Byte>(track->control << 4U | 3U);
    std::uint32_t letters = 0;
    for (std::size_t index = 0; index < 5; ++index) {
        letters = letters << 6U | (sixBits(track->isrc[index]) & 63U);
    }
    put32(q, 1, std::int64_t{letters} << 2);
    for (std::size_t index = 5; index < 12; ++index) {
        const unsigned digit = static_cast<unsigned>(track->isrc[index] - '0') & 15U;
        q[5 + (index - 5) / 2] |= static_cast<Byte>((index - 5) % 2 == 0 ? digit << 4U : digit);
    }
    q[9] = toBcd(toMsf(lba).frame);
    return true;
}

} // namespace

std::uint16_t subChannelCrc(ByteView bytes) {
    unsigned crc = 0;
    for (const Byte byte : bytes) {
        crc ^= static_cast<unsigned>(byte) << 8U;
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc << 1U) ^ ((crc & 0x8000U) != 0 ? 0x1021U : 0U);
        }
        crc &= 0xffffU;
    }
    return static_cast<std::uint16_t>(~crc & 0xffffU);
}

bool isIntact(const TextPack &pack) {
    return subChannelCrc(ByteView(pack).first(16)) == get16(pack, 16);
}

std::array<TextPack, 4> unpackLeadInText(ByteView block) {
    std::array<TextPack, 4> packs{};
    for (std::size_t bit = 0; bit < packs.size() * 18 * 8; ++bit) {
        const unsigned value = get8(block, bit / 6) >> (5 - bit % 6) & 1U;
        Byte &target = packs[bit / 144][bit % 144 / 8];
        target = static_cast<Byte>(target << 1U | value);
    }
    return packs;
}

int indexAt(const Track &track, Lba lba) {
    if (lba < track.start) {
        return 0;
    }
    return 1 + static_cast<int>(std::count_if(track.indices.begin(), track.indices.end(),
                                              [lba](Lba index) { return lba >= index; }));
}

std::array<Byte, 12> subChannelQ(const Disc &disc, Lba lba) {
    std::array<Byte, 12> q{};
    const Lba place = (lba + kPregapBlocks) % 100;
    const bool isSpecial = (place == 98 && putCatalog(q, disc, lba)) ||
                           (place == 99 && putIsrc(q, disc.trackHolding(lba), lba));
    if (!isSpecial) {
        putPosition(q, disc, lba);
    }
    putCrc(q);
    return q;
}

std::array<Byte, 16> formattedQ(const Disc &disc, Lba lba) {
    std::array<Byte, 16> formatted{};
    const std::array<Byte, 12> q = subChannelQ(disc, lba);
    std::copy(q.begin(), q.end(), formatted.begin());
    const Track *track = disc.trackHolding(lba);
    formatted[15] = track != nullptr && lba < track->start ? 0x80 : 0;
    return formatted;
}

std::array<Byte, kSubChannelBytes> rawSubChannel(const Disc &disc, Lba lba) {
    std::array<Byte, kSubChannelBytes> raw{};
    const std::array<Byte, 16> q = formattedQ(disc, lba);
    const unsigned p = q[15];
    for (std::size_t bit = 0; bit < raw.size(); ++bit) {
        const unsigned value = q[bit / 8] >> (7 - bit % 8) & 1U;
        raw[bit] = static_cast<Byte>(p | value << 6U);
    }
    return raw;
}

} // namespace recorder
