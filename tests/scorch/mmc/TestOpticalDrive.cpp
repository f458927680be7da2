// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/OpticalDrive.h"

#include "scorch/support/FileDescriptor.h"
#include "tests/scorch/mmc/DriveHarness.h"
#include "tests/scorch/mmc/HolderProcess.h"

#include <gmock/gmock.h>

#include <atomic>
#include <chrono>
#include <fcntl.h>

using namespace scorch;
using recorder::DiscKind;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace {

class OpticalDriveTest : public DriveHarness {};

} // namespace

TEST_F(OpticalDriveTest, NobodyTouchesADriveThatNobodyLooksAt) {
    scene().makeDisc(blankCd());
    auto drive = makeDrive();
    drive->mediumChanged(MediumNews::changed);
    EXPECT_TRUE(drive->state().canWriteCd);
    EXPECT_FALSE(drive->state().checking);
    EXPECT_FALSE(drive->state().disc.present);
    drive.reset();
    EXPECT_EQ(recorder().openings(), 0);
}

TEST_F(OpticalDriveTest, ADriveThatIsLookedAtSaysCheckingAtOnceAndThenWhatItHolds) {
    scene().makeDisc(blankCd());
    hold();
    const auto drive = makeDrive();
    drive->setWatched(true);
    EXPECT_TRUE(drive->state().checking);
    EXPECT_FALSE(drive->state().disc.present);
    release();
    EXPECT_TRUE(waitUntilChecked(*drive));
    EXPECT_EQ(drive->state().disc,
              (DiscState{.present = true, .isCd = true, .blank = true, .freeSectors = 359'849}));
}

TEST_F(OpticalDriveTest, EachKindOfDiscIsToldAsItIs) {
    const auto drive = makeDrive();
    drive->setWatched(true);
    EXPECT_TRUE(waitUntilChecked(*drive));
    const auto isTold = [&](const recorder::Disc &disc, const std::string &name,
                            const DiscState &state) {
        scene().makeDisc(disc, name);
        scene().control("disc " + name + "\n");
        return waitFor([&] { return !drive->state().checking && drive->state().disc == state; });
    };
    const DiscState used{.present = true, .isCd = true, .blank = false, .freeSectors = 0};
    const DiscState noCd{.present = true, .isCd = false, .blank = false, .freeSectors = 0};
    const DiscState blank{.present = true, .isCd = true, .blank = true, .freeSectors = 359'849};
    EXPECT_TRUE(isTold(usedCd(DiscKind::CdR, true), "full", used));
    EXPECT_TRUE(isTold(dvd(DiscKind::DvdR), "dvd", noCd));
    EXPECT_TRUE(isTold(usedCd(DiscKind::CdR, false), "appendable", used));
    EXPECT_TRUE(isTold(blankCd(DiscKind::CdRw), "blank", blank));
    EXPECT_TRUE(isTold(usedCd(DiscKind::CdRom, true), "pressed", used));
    EXPECT_TRUE(isTold(dvd(DiscKind::DvdRom), "film", noCd));
}

TEST_F(OpticalDriveTest, ADiscThatIsPutInIsNoticedAndChecked) {
    scene().makeDisc(blankCd(), "other");
    const auto drive = makeDrive();
    drive->setWatched(true);
    EXPECT_TRUE(waitUntilChecked(*drive));
    EXPECT_FALSE(drive->state().disc.present);
    std::atomic<bool> wasChecking = false;
    drive->setStateObserver([&, raw = drive.get()] {
        wasChecking = wasChecking || raw->state().checking;
        notify();
    });
    scene().control("disc other #1\n");
    EXPECT_TRUE(waitFor([&] { return drive->state().disc.blank; }));
    EXPECT_TRUE(wasChecking);
}

TEST_F(OpticalDriveTest, ATrayThatIsOpenedIsNoticedWithoutAWordOfChecking) {
    scene().makeDisc(blankCd());
    const auto drive = makeDrive();
    drive->setWatched(true);
    EXPECT_TRUE(waitFor([&] { return drive->state().disc.blank; }));
    std::atomic<bool> wasChecking = false;
    drive->setStateObserver([&, raw = drive.get()] {
        wasChecking = wasChecking || raw->state().checking;
        notify();
    });
    scene().control("tray open #1\n");
    EXPECT_TRUE(waitFor([&] { return !drive->state().disc.present; }));
    EXPECT_FALSE(wasChecking);
}

TEST_F(OpticalDriveTest, ADriveThatNobodyLooksAtAnyMoreIsLeftAlone) {
    scene().makeDisc(blankCd());
    const auto drive = makeDrive();
    drive->setWatched(true);
    EXPECT_TRUE(waitUntilChecked(*drive));
    drive->setWatched(false);
    drive->requestEnd(); // What was begun comes to its end.
    drive->awaitEnd();
    const int openings = recorder().openings();
    drive->mediumChanged(MediumNews::changed);
    EXPECT_EQ(recorder().openings(), openings);
    EXPECT_TRUE(drive->state().disc.blank) << "what was known last";
}

TEST_F(OpticalDriveTest, ADriveThatCannotWriteSaysSo) {
    scene().describe("writes no\n");
    const auto drive = makeDrive();
    drive->setWatched(true);
    EXPECT_TRUE(waitUntilChecked(*drive));
    EXPECT_FALSE(drive->state().canWriteCd);
    EXPECT_FALSE(drive->obstacle());
}

TEST_F(OpticalDriveTest, ADriveThatMayNotBeOpenedIsShownWithTheReasonUntilItMay) {
    scene().makeDisc(blankCd());
    scene().control("no-permission\n");
    const auto drive = makeDrive();
    drive->setWatched(true);
    EXPECT_TRUE(waitUntilChecked(*drive));
    EXPECT_FALSE(drive->state().canWriteCd);
    EXPECT_EQ(drive->obstacle()->category(), ScorchErrorCode::driveNotAllowed);
    EXPECT_THAT(drive->description().problem, HasSubstr("not allowed"));
    EXPECT_EQ(drive->description().vendor, "ACME");
    scene().control("");
    EXPECT_TRUE(waitFor([&] { return drive->state().disc.blank; }));
    EXPECT_TRUE(drive->state().canWriteCd);
    EXPECT_FALSE(drive->obstacle());
}

TEST_F(OpticalDriveTest, ADriveThatDoesNotAnswerIsAProblemUntilItAnswers) {
    scene().makeDisc(blankCd());
    scene().control("silent 1\n");
    const auto drive = makeDrive();
    drive->setWatched(true);
    EXPECT_TRUE(waitUntilChecked(*drive));
    EXPECT_EQ(drive->obstacle()->category(), ScorchErrorCode::driveSilent);
    scene().control("");
    EXPECT_TRUE(waitFor([&] { return drive->state().disc.blank; }));
}

TEST_F(OpticalDriveTest, ADriveThatVanishesIsReported) {
    const auto drive = makeDrive();
    drive->setWatched(true);
    EXPECT_TRUE(waitUntilChecked(*drive));
    EXPECT_TRUE(gone().empty());
    scene().control("vanished\n");
    EXPECT_TRUE(waitFor([&] { return !gone().empty(); }));
    EXPECT_EQ(gone().front(), "/dev/sr0");
    EXPECT_EQ(drive->obstacle()->category(), ScorchErrorCode::driveGone);
}

TEST_F(OpticalDriveTest, ADriveThatIsToldOfItsDiscsIsNotAskedForThem) {
    scene().makeDisc(blankCd());
    const auto drive = makeDrive(true);
    drive->setWatched(true);
    EXPECT_TRUE(waitUntilChecked(*drive));
    scene().control("tray open #1\n");
    drive->mediumChanged(MediumNews::changed);
    EXPECT_TRUE(waitUntilChecked(*drive));
    EXPECT_FALSE(drive->state().disc.present);
    EXPECT_EQ(recorder().openings(), 2);
}

TEST_F(OpticalDriveTest, EjectPutsTheDiscOutAlsoAgainstALock) {
    scene().makeDisc(blankCd());
    const auto drive = makeDrive();
    drive->setWatched(true);
    EXPECT_TRUE(waitFor([&] { return drive->state().disc.blank; }));
    recorder::Recorder(scene().folder()).execute(recorder::Bytes{0x1E, 0, 0, 0, 1, 0});
    drive->eject();
    EXPECT_TRUE(waitFor([&] { return !drive->state().disc.present; }));
    EXPECT_EQ(drive->description().problem, "");
}

TEST_F(OpticalDriveTest, TheDriveIsBeingCheckedWhileItsTrayOpens) {
    scene().makeDisc(blankCd());
    const auto drive = makeDrive();
    drive->setWatched(true);
    EXPECT_TRUE(waitFor([&] { return drive->state().disc.blank; }));
    std::atomic<int> reports = 0;
    drive->setStateObserver([&reports] { ++reports; });
    hold();
    drive->eject();
    EXPECT_TRUE(drive->state().checking);
    EXPECT_FALSE(drive->state().disc.present);
    EXPECT_EQ(reports, 1);
    release();
    EXPECT_TRUE(waitUntilChecked(*drive));
    EXPECT_FALSE(drive->state().disc.present);
    EXPECT_TRUE(waitFor([&] { return reports == 2; }));
    drive->setStateObserver({});
}

TEST_F(OpticalDriveTest, ATrayThatDoesNotOpenIsExplainedUntilTheDiscChanges) {
    scene().makeDisc(blankCd());
    const auto drive = makeDrive();
    drive->setWatched(true);
    EXPECT_TRUE(waitFor([&] { return drive->state().disc.blank; }));
    scene().control("jammed\n");
    drive->eject();
    EXPECT_TRUE(waitUntilChecked(*drive));
    EXPECT_TRUE(drive->state().disc.blank);
    EXPECT_THAT(drive->description().problem, HasSubstr("could not open its tray"));
    scene().control("tray open #1\n");
    EXPECT_TRUE(waitFor([&] { return !drive->state().disc.present; }));
    EXPECT_EQ(drive->description().problem, "");
}

TEST_F(OpticalDriveTest, ADiscOnWhichAnotherProgramBurnsStaysIn) {
    scene().makeDisc(blankCd());
    const auto node = scene().folder() / "other";
    const FileDescriptor own(::open(node.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
    const auto drive = makeDrive(true, node);
    drive->setWatched(true);
    EXPECT_TRUE(waitFor([&] { return drive->state().disc.blank; }));
    recorder::Recorder(scene().folder()).execute(recorder::Bytes{0x1E, 0, 0, 0, 1, 0});
    const HolderProcess other;
    drive->eject();
    EXPECT_TRUE(waitUntilChecked(*drive));
    EXPECT_THAT(drive->description().problem, HasSubstr("(" + other.number() + ") uses the drive"));
    EXPECT_THAT(recorder().commands(), Not(Contains(0x1E))) << "its lock is left alone";
    EXPECT_THAT(recorder().commands(), Not(Contains(0x1B)));
}

TEST_F(OpticalDriveTest, DescriptionHasAllThatIsKnown) {
    scene().makeDisc(blankCd());
    const auto drive = makeDrive();
    drive->setWatched(true);
    EXPECT_TRUE(waitFor([&] { return drive->state().disc.blank; }));
    EXPECT_EQ(drive->description(),
              (ScorcherDeviceDescription{.vendor = "ACME",
                                         .model = "DRW-24",
                                         .revision = "1.0",
                                         .node = "/dev/sr0",
                                         .medium = "CD-R",
                                         .writeSpeeds = {9172, 5644, 2822, 1411, 705},
                                         .problem = {}}));
}

TEST_F(OpticalDriveTest, ARecordingBeginsWithTheDiscAsItIsThen) {
    scene().makeDisc(blankCd());
    const auto drive = makeDrive();
    drive->setWatched(true);
    EXPECT_TRUE(waitFor([&] { return drive->state().disc.blank; }));
    recorder::Disc shorter = blankCd();
    shorter.capacity = 333'000;
    scene().makeDisc(shorter, "shorter");
    scene().control("disc shorter #1\n");
    const auto recording = drive->beginRecording(content_, {});
    ASSERT_TRUE(recording.ok());
    EXPECT_EQ(drive->state().disc.freeSectors, 333'000);
    EXPECT_EQ(target()->driveName, "ACME DRW-24");
    EXPECT_EQ(target()->node, "/dev/sr0");
}

TEST_F(OpticalDriveTest, NothingTouchesTheDriveWhileARecordingHoldsItAndItIsCheckedAfterwards) {
    scene().makeDisc(blankCd());
    const auto drive = makeDrive();
    drive->setWatched(true);
    EXPECT_TRUE(waitFor([&] { return drive->state().disc.blank; }));
    auto recording = drive->beginRecording(content_, {});
    ASSERT_TRUE(recording.ok());
    const std::size_t commands = recorder().commands().size();
    drive->mediumChanged(MediumNews::changed);
    drive->eject();
    drive->setWatched(false);
    drive->setWatched(true);
    EXPECT_TRUE(drive->state().disc.blank);
    scene().makeDisc(usedCd(DiscKind::CdR, true), "burned");
    scene().control("disc burned #1\n");
    EXPECT_EQ(recorder().commands().size(), commands);
    hold();
    recording->reset();
    EXPECT_TRUE(drive->state().checking);
    release();
    EXPECT_TRUE(waitUntilChecked(*drive));
    EXPECT_FALSE(drive->state().disc.blank);
    EXPECT_TRUE(drive->state().disc.isCd);
}

TEST_F(OpticalDriveTest, ADoorThatARecordingLeftLockedIsUnlockedAsSoonAsTheDriveAnswers) {
    scene().makeDisc(blankCd());
    const auto drive = makeDrive();
    auto recording = drive->beginRecording(content_, {});
    ASSERT_TRUE(recording.ok());
    recorder::Recorder hand(scene().folder());
    hand.execute(recorder::Bytes{0x1E, 0, 0, 0, 1, 0});
    scene().control("silent 0\n");
    recording->reset();
    const auto silentUnlocks = [this] {
        return recorder().commands().size();
    };
    const std::size_t before = silentUnlocks();
    EXPECT_TRUE(waitFor([&] { return silentUnlocks() > before + 2; })) << "it is tried again";
    scene().control("");
    const auto canBeOpened = [&] {
        // PREVENT is a bit of mode page 2Ah: Lock State.
        const recorder::Answer page =
            hand.execute(recorder::Bytes{0x5A, 0, 0x2A, 0, 0, 0, 0, 0, 64, 0});
        return page.data.size() > 14 && (page.data[8 + 6] & 2U) == 0;
    };
    EXPECT_TRUE(waitFor(canBeOpened));
}

TEST_F(OpticalDriveTest, ADoorIsLeftToTheProgramThatHasTheDriveOpenByNow) {
    scene().makeDisc(blankCd());
    const auto drive = makeDrive();
    auto recording = drive->beginRecording(content_, {});
    ASSERT_TRUE(recording.ok());
    scene().control("busy\n");
    recording->reset();
    EXPECT_TRUE(waitFor([this] { return recorder().refusedUnlocks() > 0; }));
    scene().control("");
    drive->setWatched(true);
    EXPECT_TRUE(waitUntilChecked(*drive)); // By the thread that would try again.
    EXPECT_EQ(recorder().refusedUnlocks(), 1);
    EXPECT_THAT(recorder().commands(), testing::Not(testing::Contains(0x1E)));
}

TEST_F(OpticalDriveTest, ADriveThatWasNotTakenIsNotUnlocked) {
    scene().makeDisc(usedCd(DiscKind::CdR, true));
    const auto drive = makeDrive();
    EXPECT_FALSE(drive->beginRecording(content_, {}).ok());
    drive->setWatched(true);
    EXPECT_TRUE(waitUntilChecked(*drive));
    EXPECT_THAT(recorder().commands(), testing::Not(testing::Contains(0x1E)));
}

TEST_F(OpticalDriveTest, ASecondRecordingIsRefused) {
    scene().makeDisc(blankCd());
    const auto drive = makeDrive();
    const auto first = drive->beginRecording(content_, {});
    ASSERT_TRUE(first.ok());
    const auto second = drive->beginRecording(content_, {});
    ASSERT_FALSE(second.ok());
    EXPECT_EQ(std::get<ScorchError>(second.error()).category(), ScorchErrorCode::driveBusy);
}

TEST_F(OpticalDriveTest, ARecordingIsRefusedForWhatIsOnTheTray) {
    scene().makeDisc(usedCd(DiscKind::CdR, true));
    const auto drive = makeDrive();
    const auto used = drive->beginRecording(content_, {});
    EXPECT_EQ(std::get<ScorchError>(used.error()).category(), ScorchErrorCode::discNotBlank);
    scene().control("no-permission\n");
    const auto forbidden = drive->beginRecording(content_, {});
    EXPECT_EQ(std::get<ScorchError>(forbidden.error()).category(),
              ScorchErrorCode::driveNotAllowed);
    scene().control("disc none #1\n");
    const auto empty = drive->beginRecording(content_, {});
    EXPECT_EQ(std::get<ScorchError>(empty.error()).category(), ScorchErrorCode::noDisc);
    EXPECT_FALSE(target());
}

TEST_F(OpticalDriveTest, ARecordingThatIsCancelledBeforeItBeginsLeavesTheDriveFree) {
    scene().makeDisc(blankCd());
    const auto drive = makeDrive();
    std::stop_source stop;
    stop.request_stop();
    const auto cancelled = drive->beginRecording(content_, stop.get_token());
    ASSERT_FALSE(cancelled.ok());
    EXPECT_TRUE(isCancelled(cancelled.error()));
    EXPECT_TRUE(drive->beginRecording(content_, {}).ok());
}

TEST_F(OpticalDriveTest, ADriveThatIsBecomingReadyIsLeftAtOnceAtTheEnd) {
    scene().control("becoming-ready 1000000\n");
    scene().makeDisc(blankCd(), "other");
    const auto drive = makeDrive();
    drive->setWatched(true);
    EXPECT_TRUE(waitUntilChecked(*drive));
    scene().control("becoming-ready 1000000\ndisc other #1\n");
    EXPECT_TRUE(waitFor([&] { return drive->state().checking; }));
    const auto begun = std::chrono::steady_clock::now();
    drive->requestEnd();
    drive->awaitEnd();
    EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(5));
}
