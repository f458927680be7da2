// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/CDBurnerPlugin/controller/ControllerTest.h"

#include "CDBurnerPlugin/ErrorTipsView.h"
#include "CDBurnerPlugin/ResourceLocator.h"
#include "CDBurnerPlugin/VXDragImageView.h"

#include <QStackedWidget>
#include <QToolTip>

using testing::ElementsAre;
using testing::HasSubstr;

class Devices : public ControllerTest {
protected:
    void changeDisc(const std::function<void(FakeDrive &)> &change) {
        change(engine.drives.front());
        controller->deviceStatusDidChanged();
    }
};

namespace {

struct DiscCase {
    const char *name;
    bool cannotBurn;
    bool isChecking;
    bool hasDisc;
    bool isCD;
    bool isBlank;
    const char *tip; ///< "" where the volume name shows.
    bool canBurn;    ///< With something in the list.

    friend std::ostream &operator<<(std::ostream &stream, const DiscCase &disc) {
        return stream << disc.name;
    }
};

class DiscStatus : public ControllerTest, public testing::WithParamInterface<DiscCase> {};

} // namespace

TEST_P(DiscStatus, ShowsTheFirstThatApplies) {
    const DiscCase &disc = GetParam();
    FakeDrive &drive = engine.addDrive("Drive");
    drive.cannotBurn = disc.cannotBurn;
    drive.isChecking = disc.isChecking;
    drive.hasDisc = disc.hasDisc;
    drive.isCD = disc.isCD;
    drive.isBlank = disc.isBlank;
    engine.audio().append("Song", 75);
    open();
    EXPECT_EQ(tip(), disc.tip);
    EXPECT_EQ(showsVolumeName(), std::string(disc.tip).empty());
    EXPECT_EQ(burnButton()->isEnabled(), disc.canBurn);
}

INSTANTIATE_TEST_SUITE_P(
    All, DiscStatus,
    testing::Values(
        DiscCase{"BlankCD", false, false, true, true, true, "", true},
        DiscCase{"UsedCD", false, false, true, true, false,
                 "This is not a blank CD, please insert a blank one!", false},
        DiscCase{"BlankDVD", false, false, true, false, true, "Please insert a blank disc...",
                 false},
        DiscCase{"UsedDVD", false, false, true, false, false, "Please insert a blank disc...",
                 false},
        DiscCase{"NoDisc", false, false, false, false, false, "Please insert a blank disc...",
                 false},
        DiscCase{"Checking", false, true, true, false, false, "Checking disk...", false},
        // The button does not ask whether the drive can burn, or is still looking at the disc.
        DiscCase{"DriveCannotBurn", true, false, true, true, true,
                 "This disc drive can not support burning!", true},
        DiscCase{"DriveCannotBurnComesBeforeChecking", true, true, false, false, false,
                 "This disc drive can not support burning!", false},
        DiscCase{"CheckingABlankCD", false, true, true, true, true, "Checking disk...", true}),
    [](const auto &testInfo) { return std::string(testInfo.param.name); });

TEST_F(Devices, StatusAsksForDiscThenKindThenBlankness) {
    openWithBlankDisc();
    engine.queries.clear();
    controller->updateDeviceStatus();
    EXPECT_THAT(engine.queries, ElementsAre("cdBurnEnabled", "isCheckingDisc", "isDiscInDevice",
                                            "isCDDisc", "isDiscBlank"));
}

TEST_F(Devices, DiscIsSupportedAsksInOrderAndStopsAtTheFirstNo) {
    openWithBlankDisc();
    engine.queries.clear();
    EXPECT_TRUE(controller->isDiscSupported());
    EXPECT_THAT(engine.queries, ElementsAre("isDiscInDevice", "isDiscBlank", "isCDDisc"));
    engine.drives.front().isBlank = false;
    engine.queries.clear();
    const int searches = engine.searchCountHere();
    EXPECT_FALSE(controller->isDiscSupported());
    EXPECT_THAT(engine.queries, ElementsAre("isDiscInDevice", "isDiscBlank"));
    EXPECT_EQ(engine.searchCountHere(), searches);
}

TEST_F(Devices, ReadyDiscHasItsNameSelectedForTyping) {
    openWithBlankDisc();
    EXPECT_EQ(volumeName()->text(), QStringLiteral("Untitled"));
    EXPECT_EQ(volumeName()->selectedText(), QStringLiteral("Untitled"));
    EXPECT_EQ(controller->window()->focusWidget(), volumeName());
}

TEST_F(Devices, EachEvaluationRewritesTheName) {
    openWithBlankDisc();
    volumeName()->setText(QStringLiteral("Mine"));
    controller->deviceStatusDidChanged();
    EXPECT_EQ(volumeName()->text(), QStringLiteral("Untitled"));
}

TEST_F(Devices, ChangesOfTheListLeaveTheNameAlone) {
    openWithBlankDisc();
    volumeName()->setText(QStringLiteral("Mine"));
    controller->updateUI();
    EXPECT_EQ(volumeName()->text(), QStringLiteral("Mine"));
}

TEST_F(Devices, BurnNeedsSomethingInTheList) {
    openWithBlankDisc();
    EXPECT_TRUE(showsVolumeName());
    EXPECT_FALSE(burnButton()->isEnabled());
    engine.audio().append("Song", 75);
    send(engine.audio(), [](ScorchDelegate &delegate) { delegate.fileDidAdded(nullptr); });
    EXPECT_TRUE(burnButton()->isEnabled());
}

TEST_F(Devices, DiscThatIsTakenOutDisablesBurning) {
    openWithSongs(1);
    changeDisc([](FakeDrive &drive) { drive.hasDisc = false; });
    EXPECT_EQ(tip(), "Please insert a blank disc...");
    EXPECT_FALSE(burnButton()->isEnabled());
}

TEST_F(Devices, EachTypeHasAListOfItsOwn) {
    openWithSongs(3);
    chooseData();
    EXPECT_EQ(rowCount(), 0);
    EXPECT_FALSE(find<VXDragImageView>("_dragImageView")->isHidden());
    EXPECT_FALSE(find<QLabel>("_txtDragHere")->isHidden());
    EXPECT_EQ(infoTitle(), "Size");
    EXPECT_FALSE(burnButton()->isEnabled());
    chooseAudio();
    EXPECT_EQ(rowCount(), 3);
    EXPECT_TRUE(find<VXDragImageView>("_dragImageView")->isHidden());
    EXPECT_TRUE(find<QLabel>("_txtDragHere")->isHidden());
    EXPECT_EQ(infoTitle(), "Time");
    EXPECT_TRUE(burnButton()->isEnabled());
    EXPECT_TRUE(engine.audio().calls.empty());
}

TEST_F(Devices, ChoosingTheCurrentTypeDoesNothing) {
    openWithSongs(1);
    const int icons = ResourceLocator::loadCount(QStringLiteral("icon_audio_cd.png"));
    const int asked = engine.audio().usedCapacityCount;
    chooseAudio();
    EXPECT_EQ(ResourceLocator::loadCount(QStringLiteral("icon_audio_cd.png")), icons);
    EXPECT_EQ(engine.audio().usedCapacityCount, asked);
}

TEST_F(Devices, ChoosingATypeShowsItsPicture) {
    open();
    const QLabel *const icon = find<QLabel>("_icon4CDType");
    const QImage audio = icon->pixmap().toImage();
    chooseData();
    EXPECT_FALSE(icon->pixmap().isNull());
    EXPECT_NE(icon->pixmap().toImage(), audio);
}

TEST_F(Devices, ProgramsChangeOfAPopupIsNoChoice) {
    engine.addDrive("First");
    engine.addDrive("Second");
    open();
    devicePopup()->setCurrentIndex(1);
    typePopup()->setCurrentIndex(1);
    EXPECT_THAT(engine.handles, ElementsAre("First"));
    EXPECT_EQ(infoTitle(), "Time");
}

TEST_F(Devices, ChosenDriveIsWatched) {
    engine.addDrive("First");
    engine.addDrive("Second").isBlank = false;
    open();
    choose(devicePopup(), "Second");
    EXPECT_THAT(engine.handles, ElementsAre("First", "Second"));
    EXPECT_EQ(engine.livingHandles, 1);
    EXPECT_EQ(engine.deviceDelegate(), controller.get());
    EXPECT_EQ(tip(), "This is not a blank CD, please insert a blank one!");
}

TEST_F(Devices, DriveChosenAgainGetsANewHandle) {
    openWithBlankDisc();
    choose(devicePopup(), "Drive");
    EXPECT_THAT(engine.handles, ElementsAre("Drive", "Drive"));
    EXPECT_EQ(engine.livingHandles, 1);
}

TEST_F(Devices, RemovedDriveGivesWayToTheFirstThatRemains) {
    engine.addDrive("First");
    engine.addDrive("Second").isBlank = false;
    engine.addDrive("Third");
    engine.audio().append("Song", 75);
    open();
    choose(devicePopup(), "Third");
    engine.removeDrive("Third");
    controller->deviceDidDisappeared("Third");
    EXPECT_EQ(devicePopup()->currentIndex(), 0);
    EXPECT_EQ(engine.handles.back(), "First");
    EXPECT_TRUE(showsVolumeName());
    engine.removeDrive("First");
    controller->deviceDidDisappeared("First");
    EXPECT_EQ(engine.handles.back(), "Second");
    EXPECT_EQ(tip(), "This is not a blank CD, please insert a blank one!");
    EXPECT_FALSE(burnButton()->isEnabled());
}

TEST_F(Devices, LastDriveThatIsRemovedLeavesTheStatusAsItWas) {
    openWithSongs(1);
    engine.removeDrive("Drive");
    controller->deviceDidDisappeared("Drive");
    EXPECT_TRUE(devicePopup()->isHidden());
    EXPECT_FALSE(noneDevice()->isHidden());
    EXPECT_TRUE(showsVolumeName());
    EXPECT_FALSE(burnButton()->isEnabled());
    EXPECT_EQ(engine.livingHandles, 0);
}

TEST_F(Devices, WithoutAnyHandleEverythingAnswersNo) {
    openWithBlankDisc();
    engine.removeDrive("Drive");
    controller->deviceDidDisappeared("Drive");
    EXPECT_FALSE(controller->isDiscSupported());
    EXPECT_EQ(controller->getTotalCapacity(), 0);
    controller->eject();
    EXPECT_TRUE(engine.ejected.empty());
}

TEST_F(Devices, AnotherDriveThatIsRemovedOnlyLeavesThePopup) {
    engine.addDrive("First");
    engine.addDrive("Second");
    open();
    volumeName()->setText(QStringLiteral("Mine"));
    controller->deviceDidDisappeared("Second");
    EXPECT_THAT(deviceTitles(), ElementsAre("First"));
    EXPECT_THAT(engine.handles, ElementsAre("First"));
    EXPECT_EQ(volumeName()->text(), QStringLiteral("Mine"));
}

TEST_F(Devices, UnknownDriveThatIsRemovedChangesNothing) {
    openWithBlankDisc();
    controller->deviceDidDisappeared("Nobody");
    EXPECT_THAT(deviceTitles(), ElementsAre("Drive"));
    EXPECT_FALSE(devicePopup()->isHidden());
    EXPECT_THAT(engine.handles, ElementsAre("Drive"));
}

TEST_F(Devices, DriveThatComesIsListedAndNotWatched) {
    openWithSongs(1);
    engine.removeDrive("Drive");
    controller->deviceDidDisappeared("Drive");
    engine.addDrive("New");
    controller->deviceDidAppeared("New");
    EXPECT_THAT(deviceTitles(), ElementsAre("New"));
    EXPECT_FALSE(devicePopup()->isHidden());
    EXPECT_TRUE(noneDevice()->isHidden());
    EXPECT_EQ(engine.livingHandles, 0);
    EXPECT_FALSE(burnButton()->isEnabled());
    choose(devicePopup(), "New");
    EXPECT_EQ(engine.handles.back(), "New");
    EXPECT_TRUE(burnButton()->isEnabled());
}

TEST_F(Devices, DriveWithoutANameIsIgnored) {
    open();
    controller->deviceDidAppeared("");
    EXPECT_EQ(devicePopup()->count(), 0);
    EXPECT_TRUE(devicePopup()->isHidden());
}

TEST_F(Devices, NoNameIsListedTwice) {
    openWithBlankDisc();
    controller->deviceDidAppeared("Drive");
    EXPECT_THAT(deviceTitles(), ElementsAre("Drive"));
}

TEST_F(Devices, NameThatIsNotTextStillFindsItsDrive) {
    const std::string name = "Disc image (\xff)";
    engine.addDrive("Other");
    engine.addDrive(name);
    open();
    devicePopup()->setCurrentIndex(1);
    emit devicePopup()->activated(1);
    EXPECT_EQ(engine.handles.back(), name);
    controller->deviceDidDisappeared(name);
    EXPECT_THAT(deviceTitles(), ElementsAre("Other"));
}

TEST_F(Devices, EjectGoesToTheSelectedDriveAndChangesNothing) {
    openWithSongs(1);
    find<QPushButton>("_btnEject")->click();
    EXPECT_THAT(engine.ejected, ElementsAre("Drive"));
    EXPECT_TRUE(showsVolumeName());
    EXPECT_TRUE(burnButton()->isEnabled());
}

TEST_F(Devices, TheDrivesOwnWordsStandInTheTipOfTheBox) {
    FakeDrive &drive = engine.addDrive("Drive");
    drive.cannotBurn = true;
    drive.description.problem = "You are not <allowed> to use it.";
    open();
    const auto *box = find<QStackedWidget>("_discSetStack");
    EXPECT_THAT(box->toolTip().toStdString(), HasSubstr("not &lt;allowed&gt; to use it."));
    EXPECT_EQ(find<ErrorTipsView>("_errorTipsView")->accessibleDescription(),
              QStringLiteral("You are not <allowed> to use it."));
    changeDisc([](FakeDrive &known) {
        known.cannotBurn = false;
        known.description.problem.clear();
    });
    EXPECT_TRUE(box->toolTip().isEmpty());
}

TEST_F(Devices, DiscThatDoesNotComeOutIsExplainedAtTheEjectButton) {
    openWithSongs(1);
    find<QPushButton>("_btnEject")->click();
    changeDisc([](FakeDrive &drive) { drive.isChecking = true; });
    EXPECT_FALSE(QToolTip::isVisible());
    changeDisc([](FakeDrive &drive) {
        drive.isChecking = false;
        drive.description.problem = "The tray is stuck.";
    });
    EXPECT_TRUE(QToolTip::isVisible());
    EXPECT_THAT(QToolTip::text().toStdString(), HasSubstr("The tray is stuck."));
    QToolTip::hideText();
}

TEST_F(Devices, ProblemThatNobodyAskedForDoesNotPopUp) {
    openWithSongs(1);
    find<QPushButton>("_btnEject")->click();
    changeDisc([](FakeDrive &drive) { drive.hasDisc = false; }); // It came out.
    changeDisc([](FakeDrive &drive) { drive.description.problem = "It is silent."; });
    EXPECT_FALSE(QToolTip::isVisible());
}
