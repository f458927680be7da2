// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/libburn/CdText.h"

#include <array>
#include <cstdint>
#include <vector>

namespace scorch {

/// The form in which texts stand in the lead-in (MMC-5, annex J): a header of four bytes, twelve of
/// contents, and a checksum.
using CdTextPack = std::array<std::uint8_t, 18>;

/// One block with these texts: titles, performers, and the packs that tell what there is. Each text
/// stands there in full. A tab for "as the track before" would save packs, but not all players know
/// it. Any thread.
std::vector<CdTextPack> cdTextPacks(const CdText &text);

} // namespace scorch
