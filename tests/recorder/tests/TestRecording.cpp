// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/tests/RecorderFixture.h"

using namespace recorder;

namespace {

/// Writes sound from `first` on in portions of ten sectors until something fails.
std::string writeSound(Host &host, Lba first, const Bytes &sound) {
    const int count = static_cast<int>(sound.size() / kRawSectorBytes);
    for (int done = 0; done < count; done += 10) {
        const int portion = std::min(10, count - done);
        const auto part =
            ByteView(sound).subspan(static_cast<std::size_t>(done) * kRawSectorBytes,
                                    static_cast<std::size_t>(portion) * kRawSectorBytes);
        const Answer answer = host.write(first + done, portion, part);
        if (outcome(answer) != "good") {
            return outcome(answer);
        }
    }
    return "good";
}

} // namespace

TEST(SessionAtOnce, KeepsEveryByteAndClosesTheDisc) {
    RecorderFixture fixture;
    Host host = fixture.host();
    const Bytes sound = pattern(kRawSectorBytes, 150 + 700);
    EXPECT_GOOD(host.setWriteMode(WriteMode::SessionAtOnce, 0, 0));
    EXPECT_GOOD(host.sendCueSheet(audioSheet({300, 400})));
    EXPECT_EQ(writeSound(host, -150, sound), "good");
    EXPECT_GOOD(host.synchronizeCache());

    EXPECT_EQ(fixture.scene.sectors(-150, 850), sound);
    const Disc disc = fixture.scene.disc();
    EXPECT_EQ(disc.status(), DiscStatus::Complete);
    ASSERT_EQ(disc.tracks().size(), 2U);
    EXPECT_EQ(disc.trackAt(2)->start, 300);
    EXPECT_EQ(disc.sessions[0].leadOut, 700);
    EXPECT_EQ(host.readCd(300, 2, 0x10).data,
              Bytes(sound.begin() + 450 * 2352, sound.begin() + 452 * 2352));
}

TEST(SessionAtOnce, StoppedHalfWayKeepsItsTableAndDamagedTracks) {
    RecorderFixture fixture;
    Host host = fixture.host();
    host.setWriteMode(WriteMode::SessionAtOnce, 0, 0);
    host.sendCueSheet(audioSheet({300, 400}));
    EXPECT_EQ(writeSound(host, -150, pattern(kRawSectorBytes, 150 + 350)), "good");
    host.synchronizeCache();
    EXPECT_EQ(outcome(host.closeSession()), "5/72/00");

    const Disc disc = fixture.scene.disc();
    EXPECT_TRUE(disc.hasOpenSession());
    EXPECT_FALSE(disc.trackAt(1)->isDamaged());
    EXPECT_TRUE(disc.trackAt(2)->isDamaged());
    EXPECT_EQ(disc.trackAt(2)->recorded, 350);
    EXPECT_EQ(host.readToc(0).data[3], 2);
    EXPECT_GOOD(host.readCd(349, 1));
    EXPECT_EQ(outcome(host.readCd(350, 1)), "3/11/00");
}

TEST(SessionAtOnce, OfAHostThatDiedIsBrokenOffWhenTheNextOneComes) {
    RecorderFixture fixture;
    Host host = fixture.host();
    host.setWriteMode(WriteMode::SessionAtOnce, 0, 0);
    host.sendCueSheet(audioSheet({300}));
    writeSound(host, -150, pattern(kRawSectorBytes, 160));
    {
        DriveFolder folder(fixture.scene.folder());
        folder.memory().recording.owner = 0; // No process has this number.
    }
    Recorder other(fixture.scene.folder());
    other.attach();
    EXPECT_EQ(fixture.scene.disc().trackAt(1)->recorded, 10);
    EXPECT_EQ(outcome(host.write(10, 1, pattern(kRawSectorBytes, 1))), "5/72/00");
}

TEST(SessionAtOnce, TakesBlocksInOrderOnly) {
    RecorderFixture fixture;
    Host host = fixture.host();
    host.setWriteMode(WriteMode::SessionAtOnce, 0, 0);
    host.sendCueSheet(audioSheet({300}));
    EXPECT_EQ(outcome(host.write(0, 1, pattern(kRawSectorBytes, 1))), "5/21/02");
    EXPECT_GOOD(host.write(-150, 1, pattern(kRawSectorBytes, 1)));
    EXPECT_EQ(outcome(host.write(-150, 1, pattern(kRawSectorBytes, 1))), "5/21/02");
}

TEST(SessionAtOnce, AsATestLeavesTheDiscBlank) {
    RecorderFixture fixture;
    Host host = fixture.host();
    host.setWriteMode(WriteMode::SessionAtOnce, 0, 0, true);
    host.sendCueSheet(audioSheet({300}));
    EXPECT_EQ(writeSound(host, -150, pattern(kRawSectorBytes, 450)), "good");
    EXPECT_GOOD(host.synchronizeCache());
    EXPECT_EQ(fixture.scene.disc(), blankDisc(DiscKind::CdR));
}

TEST(SessionAtOnce, WithoutACueSheetIsOutOfSequence) {
    RecorderFixture fixture;
    Host host = fixture.host();
    host.setWriteMode(WriteMode::SessionAtOnce, 0, 0);
    EXPECT_EQ(outcome(host.write(-150, 1, pattern(kRawSectorBytes, 1))), "5/2c/00");
}

TEST(TrackAtOnce, PadsToThreeHundredBlocksAndEndsInTwoUnreadableOnes) {
    RecorderFixture fixture;
    Host host = fixture.host();
    const Bytes data = pattern(kUserDataBytes, 16);
    EXPECT_GOOD(host.setWriteMode(WriteMode::TrackAtOnce, 4, 8));
    EXPECT_GOOD(host.write(0, 16, data));
    EXPECT_GOOD(host.synchronizeCache());
    EXPECT_GOOD(host.closeSession());

    const Disc disc = fixture.scene.disc();
    EXPECT_EQ(disc.trackAt(1)->end, 302);
    EXPECT_EQ(disc.status(), DiscStatus::Complete);
    EXPECT_EQ(host.read(0, 16).data, data);
    EXPECT_GOOD(host.read(299, 1));
    EXPECT_EQ(outcome(host.read(300, 1)), "5/64/00");
    EXPECT_EQ(outcome(host.read(302, 1)), "5/21/00");
}

TEST(TrackAtOnce, NextTrackBeginsAHundredAndFiftyBlocksLater) {
    RecorderFixture fixture;
    Host host = fixture.host();
    host.setWriteMode(WriteMode::TrackAtOnce, 0, 0);
    EXPECT_EQ(writeSound(host, 0, pattern(kRawSectorBytes, 310)), "good");
    host.synchronizeCache();
    EXPECT_EQ(getAddress(host.trackInformation(0xff).data, 12), 312 + 150);
    EXPECT_GOOD(host.write(462, 1, pattern(kRawSectorBytes, 1)));
    host.synchronizeCache();
    EXPECT_EQ(fixture.scene.disc().trackAt(2)->start, 462);
    EXPECT_EQ(fixture.scene.disc().status(), DiscStatus::Appendable);
}

TEST(TrackAtOnce, SessionLeftOpenForMoreIsFollowedFarBehind) {
    RecorderFixture fixture;
    Host host = fixture.host();
    host.setWriteMode(WriteMode::TrackAtOnce, 4, 8, false, true);
    host.write(0, 1, pattern(kUserDataBytes, 1));
    host.synchronizeCache();
    host.closeSession();
    EXPECT_EQ(fixture.scene.disc().status(), DiscStatus::Appendable);
    EXPECT_EQ(getAddress(host.trackInformation(0xff).data, 12), 302 + 11400);
    host.setWriteMode(WriteMode::TrackAtOnce, 4, 8);
    EXPECT_GOOD(host.write(11702, 1, pattern(kUserDataBytes, 1)));
    host.synchronizeCache();
    host.closeSession();
    EXPECT_EQ(fixture.scene.disc().sessions.size(), 2U);
    EXPECT_EQ(fixture.scene.disc().status(), DiscStatus::Complete);
    EXPECT_EQ(host.readToc(1).data[6], 2); // First track of the last session.
}

TEST(TrackAtOnce, EndsAtTheCapacityOfTheDisc) {
    RecorderFixture fixture;
    Disc small = blankDisc(DiscKind::CdR);
    small.capacity = 12;
    fixture.scene.makeDisc(small);
    Host host = fixture.host();
    host.setWriteMode(WriteMode::TrackAtOnce, 4, 8);
    EXPECT_GOOD(host.write(0, 10, pattern(kUserDataBytes, 10)));
    EXPECT_EQ(outcome(host.write(10, 1, pattern(kUserDataBytes, 1))), "5/63/00");
}

TEST(Blanking, GivesARewritableDiscBackAndNoOther) {
    for (const DiscKind kind : {DiscKind::CdRw, DiscKind::CdR}) {
        RecorderFixture fixture(kind);
        Host host = fixture.host();
        host.setWriteMode(WriteMode::TrackAtOnce, 4, 8);
        host.write(0, 1, pattern(kUserDataBytes, 1));
        host.synchronizeCache();
        host.closeSession();
        const bool isRewritable = kind == DiscKind::CdRw;
        EXPECT_EQ(outcome(host.send({0xa1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0})),
                  isRewritable ? "good" : "5/30/05");
        EXPECT_EQ(fixture.scene.disc() == blankDisc(kind), isRewritable);
    }
}

TEST(Blanking, FullTakesTheContentsAway) {
    RecorderFixture fixture(DiscKind::CdRw);
    Host host = fixture.host();
    host.setWriteMode(WriteMode::TrackAtOnce, 0, 0);
    host.write(0, 1, pattern(kRawSectorBytes, 1));
    host.synchronizeCache();
    EXPECT_GOOD(host.send({0xa1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(fixture.scene.sectors(0, 1), Bytes(kRawSectorBytes, 0));
}

TEST(Strangers, AreReadAndNeverWritten) {
    for (const DiscKind kind : {DiscKind::CdRom, DiscKind::DvdRom}) {
        RecorderFixture fixture;
        const Bytes data = pattern(kUserDataBytes, 40);
        makeDataDisc(fixture.scene.folder() / "disc", kind, data);
        Host host = fixture.host();
        EXPECT_EQ(host.read(0, 40).data, data);
        host.setWriteMode(WriteMode::TrackAtOnce, 4, 8);
        EXPECT_EQ(outcome(host.write(0, 1, pattern(kUserDataBytes, 1))), "5/30/05");
        EXPECT_EQ(get16(host.send({0x46, 0, 0, 0, 0, 0, 0, 0, 8, 0}).data, 6),
                  blankDisc(kind).profile());
    }
}
