// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/Sense.h"

#include <string_view>

namespace scorch {
namespace {

constexpr std::string_view digits = "0123456789ABCDEF";

std::string hex(std::uint8_t byte) {
    return {digits[byte >> 4U], digits[byte & 0x0FU]};
}

} // namespace

std::string senseText(const Sense &sense) {
    return std::string(1, digits[sense.key & 0x0FU]) + '/' + hex(sense.asc) + '/' + hex(sense.ascq);
}

} // namespace scorch
