// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/SectorFrame.h"
#include "tests/recorder/SubChannel.h"
#include "tests/recorder/tests/Host.h"

using namespace recorder;

namespace {

/// Multiplication in GF(2^8) the long way.
unsigned multiply(unsigned left, unsigned right) {
    unsigned product = 0;
    for (; right != 0; right >>= 1U) {
        product ^= (right & 1U) != 0 ? left : 0;
        left = (left & 0x80U) != 0 ? (left << 1U ^ 0x11dU) & 0xffU : left << 1U;
    }
    return product;
}

/// A code word of the product code is intact if the polynomial of its bytes vanishes at 1 and at
/// alpha.
bool isCodeWord(const Bytes &word) {
    unsigned atOne = 0;
    unsigned atAlpha = 0;
    for (const Byte byte : word) {
        atOne ^= byte;
        atAlpha = multiply(atAlpha, 2) ^ byte;
    }
    return atOne == 0 && atAlpha == 0;
}

Bytes completed(SectorForm form, Lba lba) {
    Bytes sector(kRawSectorBytes);
    frameSector(sector, form, lba, pattern(kUserDataBytes, 1));
    completeSector(sector, form);
    return sector;
}

Disc discWithSound() {
    Disc disc;
    disc.catalog = "1234567890123";
    Track first;
    first.pregap = 150;
    first.end = first.recorded = 400;
    Track second;
    second.number = 2;
    second.pregap = 100;
    second.start = 500;
    second.end = second.recorded = 1000;
    second.isrc = "DEABC0812345";
    second.indices = {700};
    disc.sessions = {{{first, second}, true, 1000}};
    disc.isFinal = true;
    return disc;
}

} // namespace

TEST(SectorFrame, HasSyncAddressAndMode) {
    const Bytes sector = completed(SectorForm::Mode1, 16);
    EXPECT_EQ(Bytes(sector.begin(), sector.begin() + 16),
              (Bytes{0, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 0, 0, 2, 0x16, 1}));
    EXPECT_EQ(Bytes(sector.begin() + 16, sector.begin() + 2064), pattern(kUserDataBytes, 1));
}

TEST(SectorFrame, ParityMakesEveryColumnAndDiagonalACodeWord) {
    const Bytes sector = completed(SectorForm::Mode1, 16);
    for (std::size_t column = 0; column < 86; ++column) {
        Bytes word;
        for (std::size_t row = 0; row < 26; ++row) {
            word.push_back(sector[12 + column + 86 * row]);
        }
        EXPECT_TRUE(isCodeWord(word)) << column;
    }
    for (std::size_t diagonal = 0; diagonal < 52; ++diagonal) {
        Bytes word;
        for (std::size_t step = 0; step < 43; ++step) {
            const std::size_t at = (diagonal / 2 * 86 + diagonal % 2 + step * 88) % 2236;
            word.push_back(sector[12 + at]);
        }
        word.push_back(sector[2248 + diagonal]);
        word.push_back(sector[2248 + 52 + diagonal]);
        EXPECT_TRUE(isCodeWord(word)) << diagonal;
    }
}

TEST(SectorFrame, FormOneHasItsDataBehindTheSubheader) {
    const Bytes sector = completed(SectorForm::Mode2Form1, 0);
    EXPECT_EQ(sector[15], 2);
    EXPECT_EQ(sector[18], 8);
    EXPECT_EQ(Bytes(sector.begin() + 24, sector.begin() + 2072), pattern(kUserDataBytes, 1));
    EXPECT_EQ(Bytes(sector.begin() + 12, sector.begin() + 15), (Bytes{0, 2, 0}));
}

TEST(SubChannelQ, TellsTrackIndexAndTimes) {
    const Disc disc = discWithSound();
    const auto q = subChannelQ(disc, 510);
    EXPECT_EQ(Bytes(q.begin(), q.begin() + 10), (Bytes{1, 2, 1, 0, 0, 0x10, 0, 0, 0x08, 0x60}));
    EXPECT_EQ(subChannelCrc(ByteView(q).first(10)), get16(q, 10));
    EXPECT_EQ(subChannelQ(disc, 700)[2], 2);
}

TEST(SubChannelQ, CountsDownInAPregap) {
    const Disc disc = discWithSound();
    const auto q = subChannelQ(disc, 490);
    EXPECT_EQ(Bytes(q.begin(), q.begin() + 6), (Bytes{1, 2, 0, 0, 0, 0x09}));
    EXPECT_EQ(formattedQ(disc, 490)[15], 0x80);
    EXPECT_EQ(rawSubChannel(disc, 490)[7] & 0xc0, 0xc0); // P, and the ADR's last bit.
}

TEST(SubChannelQ, CarriesCatalogAndIsrcNowAndThen) {
    const Disc disc = discWithSound();
    const auto catalog = subChannelQ(disc, 548);
    EXPECT_EQ(Bytes(catalog.begin(), catalog.begin() + 8),
              (Bytes{2, 0x12, 0x34, 0x56, 0x78, 0x90, 0x12, 0x30}));
    const auto isrc = subChannelQ(disc, 549);
    EXPECT_EQ(isrc[0], 3);
    EXPECT_EQ(Bytes(isrc.begin() + 5, isrc.begin() + 9), (Bytes{0x08, 0x12, 0x34, 0x50}));
}

TEST(LeadInText, PacksAreSpreadOverSixBits) {
    Bytes block(kSubChannelBytes, 0);
    block[0] = 0x20; // The highest bit of the first byte.
    block[24] = 0x3f;
    const auto packs = unpackLeadInText(block);
    EXPECT_EQ(packs[0][0], 0x80);
    EXPECT_EQ(packs[1][0], 0xfc);
    EXPECT_FALSE(isIntact(packs[0]));
}

TEST(CdAddress, LeadInLiesInFrontOfTheDisc) {
    EXPECT_EQ(toLba({0, 2, 0}), 0);
    EXPECT_EQ(toLba({97, 27, 0}), -11625);
    EXPECT_EQ(toMsf(-11625), (Msf{97, 27, 0}));
    EXPECT_EQ(toMsf(359849), (Msf{79, 59, 74}));
}
