// SPDX-License-Identifier: GPL-2.0-or-later
// The window as a whole: its size, its controls by keyboard, a burn from the first to the last
// click, and what happens around the sheet.
#include "tests/support/HeldImages.h"
#include "tests/window/WindowTest.h"

#include <algorithm>
#include <optional>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DesktopWindow : public WindowTest {
protected:
    bool isSheetUp() { return hasWindow("ProgressWindow"); }

    /// A burn that goes on until it is let.
    void startHeldBurn() {
        held_.emplace(imageFolder_);
        environment_ = held_->environment();
        start({song("held")});
        Hand::clickAt(middleOf("_btnBurn"));
        waitUntil("the burn is under way",
                  [this] { return hasKeyboard("ProgressWindow") && !images().empty(); });
    }
    void clickAlertButton(const char *button) {
        waitUntil("the question is up at its place", [&] {
            return part("alert").contains(button) && hasKeyboard("QMessageBox") &&
                   desktop_.windowRect(windowId("QMessageBox")) == placeOf("QMessageBox");
        });
        const QJsonObject place = part("alert")[button].toObject();
        Hand::clickAt({place["x"].toInt() + place["w"].toInt() / 2,
                       place["y"].toInt() + place["h"].toInt() / 2});
        waitUntil("the question is answered", [this] { return part("alert").isEmpty(); });
    }
    void waitForEndOfBurn() {
        waitUntil("the burn is done",
                  [this] { return isSheetUp() && text("btnCancel") == QLatin1String("OK"); });
    }
    std::vector<std::string> images() const {
        std::vector<std::string> names;
        for (const auto &entry : std::filesystem::directory_iterator(imageFolder_)) {
            names.push_back(entry.path().filename());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    std::optional<HeldImages> held_; // Lets go before the host is to end.
};

TEST_F(DesktopWindow, CannotBeMadeSmallerThanItsContent) {
    startWithSongs(3);
    const QJsonObject needed = part("windows")["MainWindow"].toObject()["content"].toObject();
    Hand::run({"windowsize", std::to_string(windowId("MainWindow")), "120", "90"});
    const QSize least(needed["w"].toInt(), needed["h"].toInt());
    waitUntil("it is as small as its content allows",
              [&] { return desktop_.windowRect(windowId("MainWindow")).size() == least; });
    waitUntil("the layout has followed", [&] { return placeOf("MainWindow").size() == least; });
    const QRect window = placeOf("MainWindow");
    for (const char *name : {"_devicePopup", "_btnEject", "_cdTypePopup", "_volumeName", "_btnHelp",
                             "_filesTableView", "_capacityView", "_btnClear", "_btnBurn"}) {
        EXPECT_TRUE(window.contains(rectOf(name))) << name;
        EXPECT_GE(rectOf(name).height(), 10) << name;
    }
    EXPECT_GE(rectOf("_filesTableView").height(), 3 * rectOfRow(0).height());
}

TEST_F(DesktopWindow, TabReachesEachControlInTheOrderOfTheWindow) {
    startWithSongs(1);
    std::vector<std::string> reached;
    for (int step = 0; step < 8; ++step) {
        const QString before = focus();
        Hand::keys({"Tab"});
        waitUntil("the focus has moved on", [&] { return focus() != before; });
        reached.push_back(focus().toStdString());
    }
    EXPECT_THAT(reached, ElementsAre("_btnHelp", "_filesTableView", "_btnClear", "_btnBurn",
                                     "_devicePopup", "_btnEject", "_cdTypePopup", "_volumeName"));
    Hand::keys({"shift+Tab"});
    waitUntil("Shift goes back", [this] { return focus() == QLatin1String("_cdTypePopup"); });
}

TEST_F(DesktopWindow, MnemonicsReachTheirControls) {
    startWithSongs(1);
    Hand::keys({"alt+d"});
    waitUntil("the drives", [this] { return focus() == QLatin1String("_devicePopup"); });
    Hand::keys({"alt+n"});
    waitUntil("the name", [this] { return focus() == QLatin1String("_volumeName"); });
    Hand::keys({"alt+l"});
    waitForList({});
}

TEST_F(DesktopWindow, FilesCanBeAddedAndBurnedByMouseAndKeyboardAlone) {
    start();
    startNeighbour();
    offer({{"text/uri-list", address(song("one")) + address(song("two"))}});
    EXPECT_EQ(dropOn(middleOf("_dragImageView")), "copy");
    waitForList({"one", "two"});
    clearVolumeName();
    Hand::type("Road trip");
    waitUntil("Burn is enabled", [this] { return isEnabled("_btnBurn"); });
    Hand::clickAt(middleOf("_btnBurn"));
    waitForEndOfBurn();
    EXPECT_THAT(images(), ElementsAre("Road trip.bin", "Road trip.cue"));
    Hand::clickAt(middleOf("btnCancel"));
    waitUntil("the sheet is gone", [this] { return !isSheetUp(); });
    EXPECT_THAT(list(), IsEmpty());
    const std::string sheet = readFile(imageFolder_ / "Road trip.cue");
    EXPECT_THAT(sheet, testing::HasSubstr("TITLE \"Road trip\""));
    EXPECT_THAT(sheet, testing::HasSubstr("TRACK 02 AUDIO"));
}

TEST_F(DesktopWindow, DataDiscCanBeChosenAndBurnedByKeyboard) {
    start();
    startNeighbour();
    Hand::keys({"shift+Tab", "Down"});
    waitUntil("Data CD is chosen", [this] { return text("_cdTypePopup") == "Data CD"; });
    offer({{"text/uri-list", address(folder_.write("notes.txt", "notes"))}});
    EXPECT_EQ(dropOn(middleOf("_dragImageView")), "copy");
    waitForList({"notes.txt"});
    activate();
    Hand::keys({"alt+n"});
    Hand::type("Notes");
    waitUntil("the name is typed", [this] { return text("_volumeName") == "Notes"; });
    Hand::keys({"alt+b"});
    waitForEndOfBurn();
    EXPECT_THAT(images(), ElementsAre("Notes.iso"));
    waitUntil("the sheet has the keyboard", [this] { return hasKeyboard("ProgressWindow"); });
    Hand::keys({"Return"});
    waitUntil("the sheet is gone", [this] { return !isSheetUp(); });
}

TEST_F(DesktopWindow, CloseBoxAsksWhileTheSheetIsUp) {
    startHeldBurn();
    desktop_.closeWindow(windowId("MainWindow"));
    clickAlertButton("No");
    EXPECT_TRUE(isSheetUp());
    desktop_.closeWindow(windowId("MainWindow"));
    clickAlertButton("Yes");
    held_->release();
    waitUntil("the tool's window is gone", [this] { return !hasWindow("MainWindow"); });
    waitUntil("nothing is left of the disc", [this] { return images().empty(); });
    EXPECT_TRUE(hasWindow("crateWindow"));
}

TEST_F(DesktopWindow, CancelOfTheSheetAsksAndStops) {
    startHeldBurn();
    Hand::clickAt(middleOf("btnCancel"));
    clickAlertButton("Yes");
    held_->release();
    waitUntil("the sheet is gone", [this] { return !isSheetUp(); });
    EXPECT_THAT(images(), IsEmpty());
    EXPECT_EQ(list().size(), 1U);
}

TEST_F(DesktopWindow, ReturnOnTheSheetDoesNotCancelABurn) {
    startHeldBurn();
    Hand::keys({"Return"});
    Hand::keys({"Escape"}); // This one asks; so the one before has been dealt with.
    clickAlertButton("No");
    EXPECT_TRUE(isSheetUp());
    EXPECT_TRUE(part("alert").isEmpty());
}

TEST_F(DesktopWindow, ControlsBehindTheSheetAreDead) {
    startHeldBurn();
    moveWindow({1000, 300}); // From under the sheet.
    Hand::clickAt(middleOf("_btnClear"));
    Hand::clickAt(middleOf("_btnHelp"));
    Hand::clickAt(middleOf("btnCancel")); // What came before has been dealt with when it has.
    clickAlertButton("No");
    EXPECT_EQ(list().size(), 1U);
    EXPECT_FALSE(hasWindow("VXHelpWindow"));
}

TEST_F(DesktopWindow, DropBehindTheSheetIsRefused) {
    startHeldBurn();
    startNeighbourBeside();
    offer({{"text/uri-list", address(song("late"))}});
    EXPECT_EQ(dropOn(pointInRow(0), Answer::blocked), "ignore");
    EXPECT_EQ(list().size(), 1U);
}

TEST_F(DesktopWindow, ClosingAnIdleWindowLeavesTheHostAlone) {
    start();
    desktop_.closeWindow(windowId("MainWindow"));
    waitUntil("the tool's window is gone", [this] { return !hasWindow("MainWindow"); });
    waitUntil("the host is active",
              [this] { return state()["active"] == QLatin1String("crateWindow"); });
}

TEST_F(DesktopWindow, KeyboardIsBackAfterFilesWereAdded) {
    start();
    startNeighbour();
    offer({{"text/uri-list", address(song("one"))}});
    for (std::size_t number = 1; number <= 8; ++number) {
        ASSERT_EQ(dropOn(middleOf(number == 1 ? "_dragImageView" : "_filesTableView")), "copy");
        waitUntil("it is listed", [&] { return list().size() == number && !isSheetUp(); });
        activate();
        clearVolumeName();
    }
}

} // namespace
