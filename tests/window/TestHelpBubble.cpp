// SPDX-License-Identifier: GPL-2.0-or-later
// The help bubble: where it opens and what closes it.
#include "tests/window/WindowTest.h"

namespace {

class DesktopHelpBubble : public WindowTest {
protected:
    bool isOpen() { return hasWindow("VXHelpWindow"); }
    QRect bubble() { return placeOf("VXHelpWindow"); }

    void open() {
        Hand::clickAt(middleOf("_btnHelp"));
        waitUntil("the bubble is open", [this] {
            return isOpen() && desktop_.windowRect(windowId("VXHelpWindow")) == bubble();
        });
    }
    void waitUntilClosed() {
        EXPECT_TRUE(eventually([this] { return !isOpen(); })) << "the bubble is open";
    }
    /// What comes after a key is not swallowed, and shows whether the key itself was.
    void typeOverName() {
        waitUntil("the field has the keyboard again", [this] {
            return hasKeyboard("MainWindow") && focus() == QLatin1String("_volumeName");
        });
        Hand::type("x");
    }
    bool nameIs(const char *name) { return text("_volumeName") == QLatin1String(name); }
};

TEST_F(DesktopHelpBubble, OpensBesideItsButton) {
    start();
    open();
    const QRect box = rectOf("_discSetBox");
    EXPECT_EQ(bubble().right(), box.right() + 34);
    EXPECT_EQ(bubble().top(), rectOf("_btnHelp").bottom() + 1);
    EXPECT_EQ(desktop_.windowRect(windowId("VXHelpWindow")), bubble());
}

TEST_F(DesktopHelpBubble, AnyKeyClosesItAndReachesNobody) {
    start();
    open();
    Hand::keys({"a"});
    waitUntilClosed();
    typeOverName();
    waitUntil("the letter after it is typed", [this] { return nameIs("x"); });
}

TEST_F(DesktopHelpBubble, EscapeClosesIt) {
    start();
    open();
    Hand::keys({"Escape"});
    waitUntilClosed();
    EXPECT_TRUE(hasWindow("MainWindow"));
}

TEST_F(DesktopHelpBubble, ShortcutClosesItWithoutItsAction) {
    startWithSongs(2);
    open();
    Hand::keys({"alt+l"}); // Clears the list, at other times.
    waitUntilClosed();
    typeOverName();
    waitUntil("the letter after it is typed", [this] { return nameIs("x"); });
    EXPECT_EQ(list().size(), 2U);
    Hand::keys({"alt+l"});
    waitForList({});
}

TEST_F(DesktopHelpBubble, ModifierAloneDoesNotCloseIt) {
    start();
    open();
    Hand::keys({"Shift_L", "Control_L", "Alt_L", "Super_L"});
    EXPECT_TRUE(isOpen());
    Hand::keys({"space"});
    waitUntilClosed();
}

TEST_F(DesktopHelpBubble, ClickOutsideClosesItAndPressesNothing) {
    startWithSongs(2);
    open();
    Hand::clickAt(middleOf("_btnClear"));
    waitUntilClosed();
    typeOverName();
    waitUntil("the letter after it is typed", [this] { return nameIs("x"); });
    EXPECT_EQ(list().size(), 2U);
    Hand::clickAt(middleOf("_btnClear"));
    waitForList({});
}

TEST_F(DesktopHelpBubble, RightClickOutsideClosesItWithoutAMenu) {
    start();
    open();
    Hand::clickAt(middleOf("_volumeName"), 3);
    waitUntilClosed();
    typeOverName();
    waitUntil("the field has the keyboard", [this] { return nameIs("x"); });
}

TEST_F(DesktopHelpBubble, ClickOnItsButtonOnlyClosesIt) {
    start();
    open();
    Hand::clickAt(middleOf("_btnHelp"));
    waitUntilClosed();
    typeOverName();
    waitUntil("the field has the keyboard", [this] { return nameIs("x"); });
    EXPECT_FALSE(isOpen());
    open();
}

TEST_F(DesktopHelpBubble, ClickInsideKeepsItOpen) {
    start();
    open();
    Hand::clickAt(bubble().center());
    Hand::keys({"Shift_L"});
    EXPECT_TRUE(isOpen());
    Hand::keys({"a"});
    waitUntilClosed();
}

TEST_F(DesktopHelpBubble, WheelDoesNothingWhileItIsOpen) {
    startWithSongs(40);
    open();
    const int top = rectOfRow(0).top();
    Hand::moveTo(pointInRow(8));
    Hand::wheel(3);
    EXPECT_TRUE(isOpen());
    Hand::keys({"a"});
    waitUntilClosed();
    EXPECT_EQ(rectOfRow(0).top(), top);
    Hand::wheel(3);
    waitUntil("the list scrolls again", [&] { return rectOfRow(0).top() < top; });
}

TEST_F(DesktopHelpBubble, AnotherProgramThatBecomesActiveClosesIt) {
    start();
    startNeighbour();
    open();
    const auto neighbour = static_cast<std::uint32_t>(neighbour_->ask()["id"].toInteger());
    Hand::run({"windowactivate", std::to_string(neighbour)});
    waitUntilClosed();
}

TEST_F(DesktopHelpBubble, OpensWhenNoDriveIsFound) {
    startWithoutDrive();
    EXPECT_TRUE(isVisible("_txtNoneDevice"));
    open();
    EXPECT_EQ(bubble().top(), rectOf("_btnHelp").bottom() + 1);
    Hand::keys({"a"});
    waitUntilClosed();
}

TEST_F(DesktopHelpBubble, StaysOnTheScreenNearItsCorner) {
    start();
    moveWindow({Desktop::size.width() - 640, Desktop::size.height() - 160});
    open();
    EXPECT_EQ(bubble().bottom(), Desktop::size.height() - 1);
    EXPECT_EQ(bubble().right(), Desktop::size.width() - 1);
}

TEST_F(DesktopHelpBubble, StaysOnTheMonitorThatItsButtonIsOn) {
    const int middle = Desktop::size.width() / 2;
    desktop_.splitIntoTwoMonitors();
    start();
    waitUntil("the program sees two monitors",
              [this] { return state()["screens"].toArray().size() == 2; });
    moveWindow({middle + 100, 40}); // The second one, with room beside it.
    open();
    EXPECT_EQ(bubble().right(), rectOf("_discSetBox").right() + 34);
    EXPECT_GE(bubble().left(), middle);
    Hand::keys({"a"});
    waitUntilClosed();
    moveWindow({middle - 650, 40}); // The first one, at the border between the two.
    open();
    EXPECT_LT(bubble().right(), middle);
}

} // namespace
