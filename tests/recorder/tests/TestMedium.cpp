// SPDX-License-Identifier: GPL-2.0-or-later
// What a host sees of tray, disc changes, faults and the drive itself.
#include "tests/recorder/tests/RecorderFixture.h"

using namespace recorder;

namespace {

Bytes mediaEvent(Host &host) {
    const Bytes data = host.send({0x4a, 1, 0, 0, 0x10, 0, 0, 0, 8, 0}).data;
    return {data[4], data[5]};
}

/// A closed disc with two tracks of sound and one of data in a second session.
Disc mixedDisc() {
    Disc disc = blankDisc(DiscKind::CdR);
    for (int index = 0; index < 3; ++index) {
        Track track;
        track.number = index + 1;
        track.pregap = index == 1 ? 0 : 150;
        track.start = index == 2 ? 12000 : 300 * index;
        track.end = track.recorded = track.start + 300;
        if (index == 2) {
            track.form = SectorForm::Mode1;
            track.control = kControlData;
        }
        if (index != 1) {
            disc.sessions.push_back({{}, true, 0});
        }
        disc.sessions.back().tracks.push_back(track);
        disc.sessions.back().leadOut = track.end;
    }
    disc.isFinal = true;
    return disc;
}

} // namespace

TEST(UnitAttention, TellsOfAnotherDiscOnceAndThenOfADriveBecomingReady) {
    RecorderFixture fixture;
    Host host = fixture.host();
    EXPECT_GOOD(host.testUnitReady());
    fixture.scene.makeDisc(blankDisc(DiscKind::CdRw), "other");
    fixture.scene.control("disc other\nbecoming-ready 2\n");
    EXPECT_EQ(outcome(host.testUnitReady()), "6/28/00");
    EXPECT_EQ(outcome(host.testUnitReady()), "2/04/01");
    EXPECT_EQ(outcome(host.testUnitReady()), "2/04/01");
    EXPECT_GOOD(host.testUnitReady());
    EXPECT_EQ(get16(host.send({0x46, 0, 0, 0, 0, 0, 0, 0, 8, 0}).data, 6), 0x0aU);
}

TEST(UnitAttention, DoesNotStandInTheWayOfInquiryAndEvents) {
    RecorderFixture fixture;
    Host host = fixture.host();
    host.testUnitReady();
    fixture.scene.control("tray open\n");
    EXPECT_GOOD(host.send({0x12, 0, 0, 0, 36, 0}));
    EXPECT_EQ(mediaEvent(host), (Bytes{3, 1})); // Removed; the tray is out.
    EXPECT_EQ(mediaEvent(host), (Bytes{0, 1}));
    EXPECT_EQ(host.send({3, 0, 0, 0, 18, 0}).data[12], 0x28);
    EXPECT_EQ(outcome(host.testUnitReady()), "2/3a/02");
}

TEST(Tray, HandActsOnceUntilItIsToldAgain) {
    RecorderFixture fixture;
    Host host = fixture.host();
    fixture.scene.control("tray open\n");
    host.testUnitReady();
    EXPECT_GOOD(host.load());
    host.testUnitReady();
    host.testUnitReady();
    EXPECT_GOOD(host.testUnitReady());
    fixture.scene.control("tray open\nbusy\n");
    EXPECT_GOOD(host.testUnitReady());
    fixture.scene.control("tray open #2\n");
    EXPECT_EQ(outcome(host.testUnitReady()), "6/28/00");
}

TEST(Tray, LockKeepsTheHostOutAndNotTheHand) {
    RecorderFixture fixture;
    Host host = fixture.host();
    EXPECT_GOOD(host.send({0x1e, 0, 0, 0, 1, 0}));
    EXPECT_EQ(outcome(host.eject()), "5/53/02");
    fixture.scene.control("tray open\n");
    EXPECT_EQ(outcome(host.testUnitReady()), "6/28/00");
    EXPECT_EQ(outcome(host.testUnitReady()), "2/3a/02");
}

TEST(Tray, WithoutADiscIsEmptyWhenItIsClosed) {
    RecorderFixture fixture;
    Host host = fixture.host();
    fixture.scene.control("disc none\n");
    EXPECT_EQ(outcome(host.testUnitReady()), "2/3a/01");
    EXPECT_EQ(mediaEvent(host)[1], 0);
}

TEST(Tray, OpenedWhileWritingLeavesADamagedDisc) {
    RecorderFixture fixture;
    Host host = fixture.host();
    host.setWriteMode(WriteMode::SessionAtOnce, 0, 0);
    host.sendCueSheet(audioSheet({300}));
    host.write(-150, 10, pattern(kRawSectorBytes, 10));
    fixture.scene.control("tray open\n");
    EXPECT_EQ(outcome(host.write(-140, 1, pattern(kRawSectorBytes, 1))), "6/28/00");
    EXPECT_TRUE(fixture.scene.disc().sessions.back().isDamaged());
}

TEST(LongOperation, IsPolledUntilItEnds) {
    RecorderFixture fixture(DiscKind::CdRw);
    fixture.scene.control("long-operation 2\n");
    Host host = fixture.host();
    EXPECT_GOOD(host.send({0xa1, 0x11, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    const Answer first = host.testUnitReady();
    EXPECT_EQ(outcome(first), "2/04/07");
    const Answer second = host.testUnitReady();
    EXPECT_EQ(outcome(second), "2/04/07");
    EXPECT_LT(first.sense->progress, second.sense->progress);
    EXPECT_GOOD(host.testUnitReady());
}

TEST(Faults, WriteErrorBreaksTheRecordingOffAtItsBlock) {
    RecorderFixture fixture;
    fixture.scene.control("write-error 5\n");
    Host host = fixture.host();
    host.setWriteMode(WriteMode::TrackAtOnce, 4, 8);
    const Answer answer = host.write(0, 10, pattern(kUserDataBytes, 10));
    EXPECT_EQ(outcome(answer), "3/0c/00");
    EXPECT_EQ(answer.sense->block, 5);
    EXPECT_EQ(host.read(0, 5).data, pattern(kUserDataBytes, 5));
}

TEST(Faults, ReadErrorConcernsOneBlock) {
    RecorderFixture fixture;
    makeDataDisc(fixture.scene.folder() / "disc", DiscKind::CdRom, pattern(kUserDataBytes, 20));
    fixture.scene.control("read-error 7\n");
    Host host = fixture.host();
    EXPECT_GOOD(host.read(0, 7));
    EXPECT_EQ(outcome(host.read(0, 8)), "3/11/00");
    EXPECT_GOOD(host.read(8, 1));
}

TEST(Faults, SlowDriveAsksForTheTimeItTakes) {
    RecorderFixture fixture;
    makeDataDisc(fixture.scene.folder() / "disc", DiscKind::CdRom, pattern(kUserDataBytes, 20));
    fixture.scene.control("slow 100\n");
    EXPECT_EQ(fixture.host().read(0, 20).delayMs, 200);
}

TEST(Faults, NotUnderstoodChangeNothingAndAreReported) {
    RecorderFixture fixture;
    fixture.scene.control("vanish\n");
    Host host = fixture.host();
    EXPECT_GOOD(host.testUnitReady());
    EXPECT_EQ(fixture.drive().complaint(), "control: line 1: vanish");
}

TEST(TableOfContents, ListsTracksOfAllSessionsInEveryFormat) {
    RecorderFixture fixture;
    fixture.scene.makeDisc(mixedDisc());
    Host host = fixture.host();
    const Bytes toc = host.readToc(0).data;
    ASSERT_EQ(toc.size(), 4U + 4 * 8);
    EXPECT_EQ(toc[3], 3);
    EXPECT_EQ(getAddress(toc, 4 + 8 + 4), 300);
    EXPECT_EQ(toc[4 + 16 + 1], 0x14); // The third is data.
    EXPECT_EQ(toc[4 + 24 + 2], 0xaa);
    EXPECT_EQ(getAddress(toc, 4 + 24 + 4), 12300);
    EXPECT_EQ(host.readToc(0, 2).data.size(), 4U + 3 * 8);
    EXPECT_EQ(outcome(host.readToc(0, 9)), "5/24/00");
    const Bytes msf = host.readToc(0, 0, true).data;
    EXPECT_EQ(getMsf(msf, 4 + 8 + 5), (Msf{0, 6, 0}));
    // A0, A1, A2, two tracks, B0, C0; then A0, A1, A2 and one track.
    EXPECT_EQ(host.readToc(2).data.size(), 4U + 11 * 11);
    EXPECT_EQ(host.readToc(3).data.size(), 4U + 3 * 11);
}

TEST(TableOfContents, OfABlankDiscDoesNotExistButItsAtipDoes) {
    RecorderFixture fixture;
    Host host = fixture.host();
    EXPECT_EQ(outcome(host.readToc(0)), "5/24/00");
    const Bytes atip = host.readToc(4).data;
    EXPECT_EQ(getMsf(atip, 8), (Msf{97, 27, 0}));
    EXPECT_EQ(getMsf(atip, 12), (Msf{79, 59, 74}));
}

TEST(DiscInformation, FollowsTheLifeOfADisc) {
    RecorderFixture fixture;
    Host host = fixture.host();
    EXPECT_EQ(host.discInformation().data[2], 0x00); // Blank, session empty.
    host.setWriteMode(WriteMode::TrackAtOnce, 4, 8, false, true);
    host.write(0, 1, pattern(kUserDataBytes, 1));
    host.synchronizeCache();
    EXPECT_EQ(host.discInformation().data[2], 0x05); // Appendable, session incomplete.
    host.closeSession();
    EXPECT_EQ(host.discInformation().data[2], 0x01); // Appendable, next session empty.
    EXPECT_EQ(host.discInformation().data[4], 2);
    fixture.scene.makeDisc(mixedDisc());
    Recorder again(fixture.scene.folder());
    EXPECT_EQ(Host(again).discInformation().data[2], 0x0e); // Complete.
}

TEST(TrackInformation, NextWritableAddressDependsOnTheWayOfWriting) {
    RecorderFixture fixture;
    Host host = fixture.host();
    host.setWriteMode(WriteMode::TrackAtOnce, 4, 8);
    EXPECT_EQ(getAddress(host.trackInformation(0xff).data, 12), 0);
    host.setWriteMode(WriteMode::SessionAtOnce, 4, 8);
    EXPECT_EQ(getAddress(host.trackInformation(0xff).data, 12), -150);
    EXPECT_EQ(get32(host.trackInformation(1).data, 16), 359849U);
}

TEST(ModePage, KeepsOnlyWhatTheDriveCanDo) {
    RecorderFixture fixture;
    Host host = fixture.host();
    EXPECT_EQ(outcome(host.setWriteMode(WriteMode{0}, 4, 8)), "5/26/00");
    EXPECT_EQ(outcome(host.setWriteMode(WriteMode{3}, 4, 8)), "5/26/00");
    EXPECT_EQ(outcome(host.setWriteMode(WriteMode::TrackAtOnce, 4, 7)), "5/26/00");
    EXPECT_GOOD(host.setWriteMode(WriteMode::SessionAtOnce, 0, 0));
    const Bytes page = host.send({0x5a, 0, 5, 0, 0, 0, 0, 0, 60, 0}).data;
    EXPECT_EQ(page[8 + 2] & 15, 2);
}

TEST(Features, TellTheBlockTypesThatAreTaken) {
    RecorderFixture fixture;
    Host host = fixture.host();
    const Bytes feature = host.send({0x46, 2, 0, 0x2d, 0, 0, 0, 0, 16, 0}).data;
    ASSERT_EQ(feature.size(), 16U);
    for (unsigned type = 0; type < 16; ++type) {
        const bool isTold = (get16(feature, 8 + 6) >> type & 1U) != 0;
        const Answer answer =
            host.setWriteMode(WriteMode::TrackAtOnce, type == 0 ? 0 : 4, static_cast<int>(type));
        EXPECT_EQ(outcome(answer) == "good", isTold) << type;
    }
    EXPECT_EQ(host.send({0x46, 2, 0, 0x21, 0, 0, 0, 0, 16, 0}).data.size(), 8U) << "no packets";
}

TEST(Features, TellNoEventsButThoseOfTheMedium) {
    RecorderFixture fixture;
    Host host = fixture.host();
    const Bytes classes = host.send({0x4a, 1, 0, 0, 0x7e, 0, 0, 0, 8, 0}).data;
    EXPECT_EQ(classes[3], 0x10);
    EXPECT_EQ(host.send({0x46, 2, 0, 1, 0, 0, 0, 0, 20, 0}).data[8 + 8] & 1, 0); // DBE.
    EXPECT_EQ(host.send({0x46, 2, 0, 2, 0, 0, 0, 0, 16, 0}).data[8 + 4] & 2, 0); // OCEvent.
}

TEST(ReadingDrive, HasNoWayToWrite) {
    RecorderFixture fixture;
    fixture.scene.describe("writes no\n");
    Host host = fixture.host();
    EXPECT_EQ(outcome(host.send({0x5a, 0, 5, 0, 0, 0, 0, 0, 60, 0})), "5/24/00");
    const Bytes page = host.send({0x5a, 0, 0x2a, 0, 0, 0, 0, 0, 60, 0}).data;
    EXPECT_EQ(page[8 + 3] & 3, 0);
    const Bytes feature = host.send({0x46, 2, 0, 0x2e, 0, 0, 0, 0, 16, 0}).data;
    EXPECT_EQ(feature.size(), 8U);
    EXPECT_EQ(outcome(host.write(0, 1, pattern(kUserDataBytes, 1))), "5/30/05");
}

TEST(Speeds, AreRoundedToWhatTheDriveHas) {
    RecorderFixture fixture;
    fixture.scene.describe("speeds 16 8 4\n");
    Host host = fixture.host();
    host.send({0xbb, 0, 0xff, 0xff, 8, 0, 0, 0, 0, 0, 0, 0}); // 2048 kB/s.
    const Bytes page = host.send({0x5a, 0, 0x2a, 0, 0, 0, 0, 0, 60, 0}).data;
    EXPECT_EQ(get16(page, 8 + 28), 1411U);
    const Bytes list = host.send({0xac, 0, 0, 0, 0, 0, 0, 0, 0, 9, 3, 0}).data;
    ASSERT_EQ(list.size(), 8U + 3 * 16);
    EXPECT_EQ(get32(list, 8 + 12), 2822U);
}

TEST(Reading, SelectsThePartsOfASector) {
    RecorderFixture fixture;
    makeDataDisc(fixture.scene.folder() / "disc", DiscKind::CdRom, pattern(kUserDataBytes, 20));
    Host host = fixture.host();
    EXPECT_EQ(host.readCd(3, 1, 0xf8).data.size(), 2352U);
    EXPECT_EQ(host.readCd(3, 2, 0x10).data.size(), 2U * 2048);
    EXPECT_EQ(host.readCd(3, 1, 0xf8, 1).data.size(), 2352U + 96);
    EXPECT_EQ(host.readCd(3, 1, 0xf8, 2).data.size(), 2352U + 16);
    EXPECT_EQ(host.readCd(3, 1, 0xfa).data.size(), 2352U + 294);
    EXPECT_EQ(outcome(host.send({0xbe, 4, 0, 0, 0, 3, 0, 0, 1, 0xf8, 0, 0})), "5/64/00");
}

TEST(SameDrive, IsSeenAlikeByTwoProcesses) {
    RecorderFixture fixture;
    Recorder other(fixture.scene.folder());
    Host first = fixture.host();
    Host second(other);
    first.setWriteMode(WriteMode::TrackAtOnce, 4, 8);
    EXPECT_GOOD(first.write(0, 1, pattern(kUserDataBytes, 1)));
    EXPECT_GOOD(second.write(1, 1, pattern(kUserDataBytes, 1, 2)));
    EXPECT_GOOD(second.synchronizeCache());
    EXPECT_EQ(first.read(1, 1).data, pattern(kUserDataBytes, 1, 2));
    EXPECT_GOOD(second.eject());
    EXPECT_EQ(outcome(first.testUnitReady()), "2/3a/02");
}
