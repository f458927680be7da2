// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace scorch {

/// The 32 bytes of a volume identifier, as they stand in a descriptor.
using VolumeIdentifier = std::array<std::byte, 32>;

/// The name for the primary descriptor (ECMA-119 8.4.7): as much of its UTF-8 as 32 bytes hold,
/// whole characters only, spaces behind. The standard would have capitals and digits; every system
/// shows what stands there instead, and recorders have kept case and bytes for decades.
VolumeIdentifier primaryVolumeIdentifier(std::string_view utf8);

/// The name for the Joliet descriptor: 16 big-endian code units of UCS-2, whole characters only,
/// spaces behind. Characters beyond the basic plane are pairs, as those who read it take them.
VolumeIdentifier jolietVolumeIdentifier(std::string_view utf8);

/// Puts the name into each descriptor of an image that can hold it. `image` are the first blocks
/// of an image, from sector 0 to behind the set of descriptors at least. False if there is no
/// complete set of them.
bool stampVolumeName(std::span<std::byte> image, std::string_view utf8);

} // namespace scorch
