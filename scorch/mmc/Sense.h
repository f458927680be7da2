// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace scorch {

/// What a drive says about a command that failed: sense key, additional sense code and its
/// qualifier (SPC-3, 4.5; the codes of CD drives are in MMC-5, annex F).
struct Sense {
    std::uint8_t key = 0;
    std::uint8_t asc = 0;
    std::uint8_t ascq = 0;

    bool operator==(const Sense &) const = default;
};

/// As in drive manuals and bug reports: "3/0C/00".
std::string senseText(const Sense &sense);

} // namespace scorch
