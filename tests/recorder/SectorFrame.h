// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/Disc.h"

namespace recorder {

/// What a host sends or reads of a data sector with nothing around it.
inline constexpr std::size_t kMode2Bytes = 2336;

/// Where the user data begin in the 2352 bytes of a sector.
std::size_t userDataOffset(SectorForm form);
/// How many there are: 2352, 2048, 2336, 2048.
std::size_t userDataBytes(SectorForm form);

/// Fills the 2352 bytes of `sector` from what a host sends for it: everything (2352 bytes; of a
/// data sector the sync and header are the drive's), subheader and data (2336) or user data (2048).
void frameSector(ByteSpan sector, SectorForm form, Lba lba, ByteView sent);

/// Computes the error detection and correction fields of a Mode 1 or Mode 2 Form 1 sector
/// (ECMA-130, 14.3 to 14.6) in place.
void completeSector(ByteSpan sector, SectorForm form);

} // namespace recorder
