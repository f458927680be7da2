// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/SectorFrame.h"

#include <algorithm>
#include <array>

namespace recorder {

namespace {

constexpr std::size_t kHeaderOffset = 12;
constexpr std::size_t kContentOffset = 16;
constexpr std::size_t kForm1DataOffset = 24;
constexpr std::size_t kParityP = 2076;
constexpr std::size_t kParityQ = 2248;

/// The checksum's polynomial, (x^16 + x^15 + x^2 + 1)(x^16 + x^2 + x + 1), with its bits reversed.
constexpr std::uint32_t kEdcPolynomial = 0xd8018001U;

constexpr std::array<std::uint32_t, 256> edcTable() {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t index = 0; index < table.size(); ++index) {
        std::uint32_t value = index;
        for (int bit = 0; bit < 8; ++bit) {
            value = (value >> 1U) ^ ((value & 1U) != 0 ? kEdcPolynomial : 0U);
        }
        table[index] = value;
    }
    return table;
}

/// Multiplication by alpha in GF(2^8) with x^8 + x^4 + x^3 + x^2 + 1.
constexpr Byte timesAlpha(Byte value) {
    const unsigned shifted = static_cast<unsigned>(value) << 1U;
    return static_cast<Byte>((value & 0x80U) != 0 ? shifted ^ 0x11dU : shifted);
}

/// Division by (1 + alpha).
constexpr std::array<Byte, 256> quotientTable() {
    std::array<Byte, 256> table{};
    for (unsigned index = 0; index < table.size(); ++index) {
        const auto value = static_cast<Byte>(index);
        table[static_cast<Byte>(value ^ timesAlpha(value))] = value;
    }
    return table;
}

constexpr auto kEdcTable = edcTable();
constexpr auto kQuotients = quotientTable();

void putEdc(ByteSpan sector, std::size_t from, std::size_t to) {
    std::uint32_t edc = 0;
    for (const Byte byte : sector.subspan(from, to - from)) {
        edc = (edc >> 8U) ^ kEdcTable[(edc ^ byte) & 0xffU];
    }
    for (std::size_t index = 0; index < 4; ++index) {
        sector[to + index] = low8(edc >> (8 * index));
    }
}

/// How the code words of one of the two parities run through the sector.
struct ParityShape {
    std::size_t words;  ///< Code words.
    std::size_t length; ///< Data bytes of each.
    std::size_t step;   ///< From one byte of a word to the next.
    std::size_t stride; ///< From one pair of words to the next.
};

void putParity(ByteView protectedBytes, const ParityShape &shape, ByteSpan parity) {
    const std::size_t size = shape.words * shape.length;
    for (std::size_t word = 0; word < shape.words; ++word) {
        std::size_t at = word / 2 * shape.stride + word % 2;
        Byte weighted = 0;
        Byte sum = 0;
        for (std::size_t index = 0; index < shape.length; ++index) {
            const Byte byte = protectedBytes[at];
            at += shape.step;
            at = at >= size ? at - size : at;
            weighted = timesAlpha(static_cast<Byte>(weighted ^ byte));
            sum ^= byte;
        }
        const Byte first = kQuotients[static_cast<Byte>(timesAlpha(weighted) ^ sum)];
        parity[word] = first;
        parity[word + shape.words] = first ^ sum;
    }
}

} // namespace

std::size_t userDataOffset(SectorForm form) {
    switch (form) {
    case SectorForm::Audio:
        return 0;
    case SectorForm::Mode2Form1:
        return kForm1DataOffset;
    case SectorForm::Mode1:
    case SectorForm::Mode2:
        break;
    }
    return kContentOffset;
}

std::size_t userDataBytes(SectorForm form) {
    switch (form) {
    case SectorForm::Audio:
        return kRawSectorBytes;
    case SectorForm::Mode2:
        return kMode2Bytes;
    case SectorForm::Mode1:
    case SectorForm::Mode2Form1:
        break;
    }
    return kUserDataBytes;
}

void frameSector(ByteSpan sector, SectorForm form, Lba lba, ByteView sent) {
    std::fill(sector.begin(), sector.end(), Byte{0});
    std::size_t offset = 0;
    if (sent.size() == kMode2Bytes) {
        offset = kContentOffset;
    } else if (sent.size() == kUserDataBytes) {
        offset = form == SectorForm::Mode2Form1 ? kForm1DataOffset : kContentOffset;
        if (form == SectorForm::Mode2Form1) {
            sector[18] = sector[22] = 8; // Submode: data.
        }
    }
    std::copy(sent.begin(), sent.end(), sector.begin() + static_cast<std::ptrdiff_t>(offset));
    if (form == SectorForm::Audio) {
        return;
    }
    sector[0] = sector[11] = 0;
    std::fill_n(sector.begin() + 1, 10, Byte{0xff});
    putMsfBcd(sector, kHeaderOffset, toMsf(lba));
    sector[kHeaderOffset + 3] = form == SectorForm::Mode1 ? 1 : 2;
}

void completeSector(ByteSpan sector, SectorForm form) {
    if (form != SectorForm::Mode1 && form != SectorForm::Mode2Form1) {
        return;
    }
    std::array<Byte, 4> header{};
    const auto headerBegin = sector.begin() + kHeaderOffset;
    std::copy_n(headerBegin, header.size(), header.begin());
    if (form == SectorForm::Mode1) {
        putEdc(sector, 0, 2064);
        std::fill_n(sector.begin() + 2068, 8, Byte{0});
    } else {
        putEdc(sector, kContentOffset, 2072);
        // The parity of Mode 2 does not depend on where the sector stands.
        std::fill_n(headerBegin, header.size(), Byte{0});
    }
    const ByteSpan fromHeader = sector.subspan(kHeaderOffset);
    putParity(fromHeader, {86, 24, 86, 2}, sector.subspan(kParityP));
    putParity(fromHeader, {52, 43, 88, 86}, sector.subspan(kParityQ));
    std::copy(header.begin(), header.end(), headerBegin);
}

} // namespace recorder
