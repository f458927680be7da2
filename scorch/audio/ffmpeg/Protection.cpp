// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ffmpeg/Protection.h"

#include "scorch/audio/ffmpeg/Bytes.h"
#include "scorch/audio/ffmpeg/Mp4Index.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace scorch {
namespace {

using Guid = std::array<unsigned char, 16>; // As it stands in a file.

constexpr Guid asfHeader = {0x30, 0x26, 0xB2, 0x75, 0x8E, 0x66, 0xCF, 0x11,
                            0xA6, 0xD9, 0x00, 0xAA, 0x00, 0x62, 0xCE, 0x6C};
constexpr std::array<Guid, 3> asfEncryptions = {{
    // Content Encryption, Extended Content Encryption, Advanced Content Encryption.
    {0xFB, 0xB3, 0x11, 0x22, 0x23, 0xBD, 0xD2, 0x11, 0xB4, 0xB7, 0x00, 0xA0, 0xC9, 0x55, 0xFC,
     0x6E},
    {0x14, 0xE6, 0x8A, 0x29, 0x22, 0x26, 0x17, 0x4C, 0xB9, 0x35, 0xDA, 0xE0, 0x7E, 0xE9, 0x28,
     0x9C},
    {0x33, 0x85, 0x05, 0x43, 0x81, 0x69, 0xE6, 0x49, 0x9B, 0x74, 0xAD, 0x12, 0xCB, 0x86, 0xD5,
     0x8C},
}};

constexpr std::size_t guidBytes = 16;
constexpr std::size_t asfHeaderBytes = 30; // Identity, size, number of objects, two reserved.
constexpr std::size_t asfObjectBytes = 24; // Identity, size.
constexpr int mostAsfObjects = 64;

/// Walks the objects of the header, which stand one behind the other.
bool hasAsfEncryption(FileInput &input) {
    std::array<std::byte, asfObjectBytes> object{};
    std::uint64_t at = asfHeaderBytes;
    for (int i = 0; i < mostAsfObjects; ++i) {
        if (input.readAt(at, object) < object.size()) {
            return false;
        }
        const auto isHere = [&object](const Guid &guid) {
            return std::memcmp(guid.data(), object.data(), guidBytes) == 0;
        };
        if (std::any_of(asfEncryptions.begin(), asfEncryptions.end(), isHere)) {
            return true;
        }
        const std::uint64_t size = littleEndian64(object.data() + guidBytes);
        if (size < asfObjectBytes || size > input.sizeBytes() - at) {
            return false;
        }
        at += size;
    }
    return false;
}

} // namespace

Protection findProtection(FileInput &input) {
    std::array<std::byte, guidBytes> start{};
    if (input.readAt(0, start) < start.size()) {
        return Protection::none;
    }
    if (std::memcmp(asfHeader.data(), start.data(), guidBytes) == 0) {
        return hasAsfEncryption(input) ? Protection::asfEncryption : Protection::none;
    }
    if (bigEndian32(start.data() + 4) == 0x57907536) {
        return Protection::audible;
    }
    if (bigEndian32(start.data() + 4) != fourCharacters("ftyp")) {
        return Protection::none;
    }
    const std::uint32_t brand = bigEndian32(start.data() + 8);
    if (brand == fourCharacters("aax ") || brand == fourCharacters("aaxc")) {
        return Protection::audible;
    }
    const std::optional<Mp4Index> index = readMp4Index(input);
    return index && index->isEncrypted ? Protection::mp4Encryption : Protection::none;
}

} // namespace scorch
