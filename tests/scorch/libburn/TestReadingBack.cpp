// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/DiscReader.h"
#include "scorch/libburn/SoundReader.h"
#include "scorch/support/DiscContent.h"
#include "tests/scorch/libburn/FakeDiscTransport.h"

#include <gmock/gmock.h>

#include <random>

using namespace scorch;
using testing::Each;
using testing::Le;

namespace {

using Bytes = std::vector<std::byte>;

Bytes noise(std::int64_t sectors, std::size_t sectorSize, unsigned seed = 1) {
    std::mt19937 random(seed);
    Bytes bytes(static_cast<std::size_t>(sectors) * sectorSize);
    for (std::byte &byte : bytes) {
        byte = static_cast<std::byte>(random() & 0xFFU);
    }
    return bytes;
}

class ReadingBack : public testing::Test {
protected:
    static constexpr std::int64_t sectors = 400;

    /// A disc of sound, whose beginning was noticed on its way there.
    void putSound(Bytes sound) {
        reference_.look(0, 0, sound);
        disc_.bytes = std::move(sound);
    }
    SoundReader soundReader() { return {reader_, reference_.pieces(), sectors}; }
    std::int64_t offsetFound() { return *soundReader().offset({}); }

    Bytes sent(std::int64_t first, std::int64_t count) const {
        const auto begin = disc_.bytes.begin() + first * std::int64_t{audioSectorBytes};
        return {begin, begin + count * std::int64_t{audioSectorBytes}};
    }

    FakeDisc disc_;
    DiscReader reader_{MmcDevice(std::make_unique<FakeDiscTransport>(disc_))};
    OffsetReference reference_{true};
};

} // namespace

TEST_F(ReadingBack, DataIsReadWholeInPiecesThatEveryAdapterTakes) {
    disc_.bytes = noise(100, dataSectorBytes);
    Bytes buffer(90 * dataSectorBytes);
    ASSERT_TRUE(reader_.readData(10, buffer, {}));
    EXPECT_TRUE(std::equal(buffer.begin(), buffer.end(),
                           disc_.bytes.begin() + 10 * std::int64_t{dataSectorBytes}));
    EXPECT_THAT(disc_.lengths, Each(Le(32)));
    EXPECT_EQ(disc_.highest, 100) << "nothing behind the end is asked for";
}

TEST_F(ReadingBack, SectorThatCannotBeReadIsNamed) {
    disc_.bytes = noise(100, dataSectorBytes);
    disc_.badSectors = {57, 58};
    Bytes buffer(100 * dataSectorBytes);
    const auto read = reader_.readData(0, buffer, {});
    ASSERT_FALSE(read);
    const auto &failure = std::get<ReadFailure>(read.error());
    EXPECT_EQ(failure.sector, 57);
    EXPECT_EQ(failure.error.sense, (Sense{3, 0x11, 0}));
}

TEST_F(ReadingBack, UnitAttentionIsNoFailure) {
    disc_.bytes = noise(10, dataSectorBytes);
    disc_.attentions = 2;
    Bytes buffer(10 * dataSectorBytes);
    EXPECT_TRUE(reader_.readData(0, buffer, {}));
    disc_.attentions = 100;
    EXPECT_FALSE(reader_.readData(0, buffer, {}));
}

TEST_F(ReadingBack, StopRequestEndsTheRead) {
    disc_.bytes = noise(10, dataSectorBytes);
    std::stop_source stop;
    stop.request_stop();
    Bytes buffer(10 * dataSectorBytes);
    const auto read = reader_.readData(0, buffer, stop.get_token());
    ASSERT_FALSE(read);
    EXPECT_TRUE(std::holds_alternative<Cancelled>(read.error()));
}

TEST_F(ReadingBack, OffsetOfADriveIsFoundAndTakenOut) {
    putSound(noise(sectors, audioSectorBytes));
    for (const std::int64_t offset : {-4999, -667, -1, 0, 1, 30, 588, 4321, 5000}) {
        disc_.offsetBytes = offset * 4;
        SoundReader reader = soundReader();
        EXPECT_EQ(*reader.offset({}), offset);
        Bytes buffer(20 * audioSectorBytes);
        ASSERT_TRUE(reader.read(100, buffer, {}));
        EXPECT_EQ(buffer, sent(100, 20)) << offset;
    }
}

TEST_F(ReadingBack, WholeDiscIsWithinReachOfADriveWithoutOffset) {
    putSound(noise(sectors, audioSectorBytes));
    EXPECT_EQ(*soundReader().reach({}), (SectorRange{0, sectors}));
}

TEST_F(ReadingBack, LateDriveDoesNotReachTheEnd) {
    putSound(noise(sectors, audioSectorBytes));
    disc_.offsetBytes = 30 * 4;
    EXPECT_EQ(*soundReader().reach({}), (SectorRange{0, sectors - 1}));
    disc_.offsetBytes = 589 * 4;
    EXPECT_EQ(*soundReader().reach({}), (SectorRange{0, sectors - 2}));
}

TEST_F(ReadingBack, EarlyDriveDoesNotReachTheBeginning) {
    putSound(noise(sectors, audioSectorBytes));
    disc_.offsetBytes = -588 * 4;
    EXPECT_EQ(*soundReader().reach({}), (SectorRange{1, sectors}));
    disc_.offsetBytes = -589 * 4;
    EXPECT_EQ(*soundReader().reach({}), (SectorRange{2, sectors}));
}

TEST_F(ReadingBack, AllWithinReachIsReadWithoutLeavingTheDisc) {
    putSound(noise(sectors, audioSectorBytes));
    for (const std::int64_t offset : {-1000, 1000}) {
        disc_.offsetBytes = offset * 4;
        SoundReader reader = soundReader();
        const SectorRange reach = *reader.reach({});
        Bytes buffer(static_cast<std::size_t>(reach.end - reach.first) * audioSectorBytes);
        ASSERT_TRUE(reader.read(reach.first, buffer, {}));
        EXPECT_EQ(buffer, sent(reach.first, reach.end - reach.first));
    }
    EXPECT_EQ(disc_.lowest, 0);
    EXPECT_EQ(disc_.highest, sectors);
}

TEST_F(ReadingBack, SilenceAtTheBeginningIsPassedOver) {
    Bytes sound(static_cast<std::size_t>(sectors) * audioSectorBytes);
    const Bytes tone = noise(50, audioSectorBytes);
    std::copy(tone.begin(), tone.end(), sound.begin() + 333 * std::int64_t{audioSectorBytes} + 404);
    putSound(std::move(sound));
    disc_.offsetBytes = 667 * 4;
    EXPECT_EQ(offsetFound(), 667);
}

TEST_F(ReadingBack, SilentDiscHasNoOffset) {
    putSound(Bytes(static_cast<std::size_t>(sectors) * audioSectorBytes));
    disc_.offsetBytes = 667 * 4;
    EXPECT_EQ(offsetFound(), 0);
    EXPECT_TRUE(disc_.lengths.empty()) << "nothing needs to be read for that";
}

TEST_F(ReadingBack, DamagedReferenceIsStillFound) {
    putSound(noise(sectors, audioSectorBytes));
    disc_.offsetBytes = 102 * 4;
    disc_.bytes[2 * audioSectorBytes + 17] ^= std::byte{0xFF};
    EXPECT_EQ(offsetFound(), 102);
}

TEST_F(ReadingBack, SoundThatIsNowhereHasNoOffset) {
    putSound(noise(sectors, audioSectorBytes));
    disc_.bytes = noise(sectors, audioSectorBytes, 2);
    EXPECT_EQ(offsetFound(), 0);
}

TEST_F(ReadingBack, ToneThatRepeatsItselfIsPlacedByItsBeginning) {
    Bytes sound(static_cast<std::size_t>(sectors) * audioSectorBytes);
    for (std::size_t at = 100 * audioSectorBytes; at < sound.size(); ++at) {
        sound[at] = static_cast<std::byte>(at / 4 % 100 + 1); // A period of 100 samples.
    }
    putSound(std::move(sound));
    disc_.offsetBytes = 667 * 4;
    EXPECT_EQ(offsetFound(), 667);
}

TEST_F(ReadingBack, OneTrackMayDecideWhatAnotherLeavesOpen) {
    Bytes sound(static_cast<std::size_t>(sectors) * audioSectorBytes, std::byte{7}); // No place.
    const Bytes music = noise(100, audioSectorBytes);
    std::copy(music.begin(), music.end(), sound.begin() + 300 * std::int64_t{audioSectorBytes});
    const auto second = std::span(sound).subspan(300 * audioSectorBytes);
    reference_.look(0, 0, std::span(sound).first(300 * audioSectorBytes));
    reference_.look(1, 300, second);
    disc_.bytes = sound;
    disc_.offsetBytes = -667 * 4;
    EXPECT_EQ(offsetFound(), -667);
}

TEST(SoundPieces, AreKeptOfAFewTracksOnly) {
    OffsetReference reference(true);
    for (std::size_t track = 0; track < 20; ++track) {
        const auto first = static_cast<std::int64_t>(track) * 300;
        reference.look(track, first, noise(300, audioSectorBytes));
    }
    EXPECT_EQ(reference.pieces().size(), 4U);
    EXPECT_EQ(reference.pieces()[1].firstSector, 299) << "with the sector before";
}

TEST(SoundPieces, GrowAcrossPiecesThatGoBy) {
    OffsetReference reference(true);
    const Bytes sound = noise(30, audioSectorBytes);
    for (std::int64_t sector = 0; sector < 30; ++sector) {
        reference.look(0, sector,
                       std::span(sound).subspan(static_cast<std::size_t>(sector) * audioSectorBytes,
                                                audioSectorBytes));
    }
    ASSERT_EQ(reference.pieces().size(), 1U);
    EXPECT_TRUE(std::equal(reference.pieces()[0].bytes.begin(), reference.pieces()[0].bytes.end(),
                           sound.begin()));
    EXPECT_EQ(reference.pieces()[0].bytes.size(), 24 * audioSectorBytes);
}

TEST(SoundPieces, OfDataNothingIsKept) {
    OffsetReference reference(false);
    reference.look(0, 0, noise(10, dataSectorBytes));
    EXPECT_TRUE(reference.pieces().empty());
}
