// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/Disc.h"

#include <array>

namespace recorder {

/// CRC-16 with polynomial 1021h, as sub-channel Q and CD-TEXT packs end with, inverted.
std::uint16_t subChannelCrc(ByteView bytes);

/// Whether the last two bytes of a pack are the checksum of the others.
bool isIntact(const TextPack &pack);

/// Takes the four CD-TEXT packs out of the 96 bytes of a lead-in block. Only six bits of each byte
/// belong to the sub-channels R to W.
std::array<TextPack, 4> unpackLeadInText(ByteView block);

/// Index in the sub-channel's sense: 0 in a pregap, else 1 and on.
int indexAt(const Track &track, Lba lba);

/// The twelve bytes of the sub-channel Q of a block, numbers in BCD, checksum included. Most blocks
/// tell the position; two of a hundred the catalog number and the track's ISRC, if there are any.
std::array<Byte, 12> subChannelQ(const Disc &disc, Lba lba);

/// Q as READ CD gives it formatted: the twelve bytes, three of padding, and P in the last.
std::array<Byte, 16> formattedQ(const Disc &disc, Lba lba);

/// P to W interleaved, P in the highest bit of each byte. R to W are zero.
std::array<Byte, kSubChannelBytes> rawSubChannel(const Disc &disc, Lba lba);

} // namespace recorder
