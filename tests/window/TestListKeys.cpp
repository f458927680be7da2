// SPDX-License-Identifier: GPL-2.0-or-later
// The list by keyboard alone.
#include "tests/window/WindowTest.h"

#include <gmock/gmock.h>

namespace {

class DesktopListKeys : public WindowTest {
protected:
    /// A list with the focus and its first row selected.
    void startInList(int songs) {
        startWithSongs(songs);
        Hand::clickAt(pointInRow(0));
        waitForSelection({0});
    }
};

TEST_F(DesktopListKeys, UpAndDownSelectTheNextRow) {
    startInList(3);
    Hand::keys({"Down", "Down"});
    waitForSelection({2});
    Hand::keys({"Up"});
    waitForSelection({1});
}

TEST_F(DesktopListKeys, ShiftSelectsARange) {
    startInList(5);
    Hand::keys({"Down", "shift+Down", "shift+Down"});
    waitForSelection({1, 2, 3});
    Hand::keys({"shift+Up"});
    waitForSelection({1, 2});
}

TEST_F(DesktopListKeys, ControlMovesOnAndSpaceAdds) {
    startInList(4);
    Hand::keys({"ctrl+Down", "ctrl+Down", "ctrl+space"});
    waitForSelection({0, 2});
}

TEST_F(DesktopListKeys, ControlAndAClickAddARow) {
    startInList(4);
    Hand::keyDown("ctrl");
    Hand::clickAt(pointInRow(3));
    Hand::keyUp("ctrl");
    waitForSelection({0, 3});
}

TEST_F(DesktopListKeys, ControlASelectsEverything) {
    startInList(3);
    Hand::keys({"ctrl+a"});
    waitForSelection({0, 1, 2});
}

TEST_F(DesktopListKeys, DeleteRemovesTheSelectedRowsAndSelectsTheNext) {
    startInList(5);
    Hand::keys({"Down", "shift+Down", "Delete"});
    waitForList({"song 01", "song 04", "song 05"});
    waitForSelection({1});
}

TEST_F(DesktopListKeys, BackspaceRemovesAndAtTheEndSelectsTheNewLastRow) {
    startInList(3);
    Hand::keys({"End", "shift+Up", "BackSpace"});
    waitForList({"song 01"});
    waitForSelection({0});
}

TEST_F(DesktopListKeys, AltAndArrowsMoveTheSelectedRows) {
    startInList(4);
    Hand::keys({"shift+Down", "alt+Down"});
    waitForList({"song 03", "song 01", "song 02", "song 04"});
    waitForSelection({1, 2});
    Hand::keys({"alt+Down", "alt+Down"}); // The second one has nowhere to go.
    waitForList({"song 03", "song 04", "song 01", "song 02"});
    waitForSelection({2, 3});
    Hand::keys({"alt+Up"});
    waitForList({"song 03", "song 01", "song 02", "song 04"});
}

TEST_F(DesktopListKeys, AltAndArrowGathersRowsThatStandApart) {
    startInList(4);
    Hand::keys({"ctrl+Down", "ctrl+Down", "ctrl+space"});
    waitForSelection({0, 2});
    Hand::keys({"alt+Down"});
    waitForList({"song 02", "song 04", "song 01", "song 03"});
}

} // namespace
