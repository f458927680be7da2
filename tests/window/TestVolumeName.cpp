// SPDX-License-Identifier: GPL-2.0-or-later
// What a person does to the volume's name.
#include "tests/window/WindowTest.h"

namespace {

class DesktopVolumeName : public WindowTest {
protected:
    QString name() { return text("_volumeName"); }

    void waitForName(const std::string &expected) {
        EXPECT_TRUE(eventually([&] { return name().toStdString() == expected; }))
            << name().toStdString() << " instead of " << expected;
    }
    /// An empty field with the text typed into it.
    void typeName(const std::string &text) {
        clearVolumeName();
        Hand::type(text);
        waitForName(text);
    }
    /// Another program has this on the clipboard.
    void putOnClipboard(const std::string &text) {
        startNeighbour();
        neighbour_->ask({{"clipboard", QString::fromStdString(text)}});
        waitUntil("it is on the clipboard",
                  [&] { return neighbour_->ask()["clipboard"].toString().toStdString() == text; });
    }

    const std::string fiftyLetters_ = "abcdefghijklmnopqrstuvwxyzabcdefghijklmnopqrstuvwx";
};

TEST_F(DesktopVolumeName, BlankDiscOffersUntitledForTypingOver) {
    start();
    EXPECT_EQ(focus(), QLatin1String("_volumeName"));
    EXPECT_EQ(widget("_volumeName")["selected"], QLatin1String("Untitled"));
    Hand::type("Mix");
    waitForName("Mix");
}

TEST_F(DesktopVolumeName, TypingStopsAtFifty) {
    start();
    clearVolumeName();
    Hand::type(fiftyLetters_ + "more");
    Hand::keys({"BackSpace"}); // All letters before it have been dealt with when it has.
    waitForName(fiftyLetters_.substr(0, 49));
}

TEST_F(DesktopVolumeName, KeystrokeInTheMiddleOfAFullNameIsLost) {
    start();
    typeName(fiftyLetters_);
    Hand::keys({"Home", "Right", "X", "Right", "Delete"});
    waitForName(fiftyLetters_.substr(0, 2) + fiftyLetters_.substr(3));
}

TEST_F(DesktopVolumeName, PasteAtTheEndThatIsTooLongIsRefusedWhole) {
    start();
    putOnClipboard("0123456789");
    typeName(fiftyLetters_.substr(0, 45));
    Hand::keys({"ctrl+v", "exclam"});
    waitForName(fiftyLetters_.substr(0, 45) + "!");
}

TEST_F(DesktopVolumeName, PasteInTheMiddleIsCutAndUndoneAsOne) {
    start();
    putOnClipboard("0123456789");
    typeName(fiftyLetters_.substr(0, 45));
    Hand::keys({"Home", "ctrl+v"});
    waitForName("01234" + fiftyLetters_.substr(0, 45));
    Hand::keys({"ctrl+z"});
    waitForName(fiftyLetters_.substr(0, 45));
}

TEST_F(DesktopVolumeName, CopyAndPasteInsideTheField) {
    start();
    typeName("ab");
    Hand::keys({"ctrl+a", "ctrl+c", "End", "ctrl+v", "ctrl+v"});
    waitForName("ababab");
}

TEST_F(DesktopVolumeName, UndoTakesBackWhatWasTypedAndRedoBringsItBack) {
    start();
    typeName("one");
    Hand::keys({"ctrl+z"});
    waitUntil("it is gone", [this] { return name() != QLatin1String("one"); });
    Hand::keys({"ctrl+shift+z"});
    waitForName("one");
}

TEST_F(DesktopVolumeName, UndoGoesOnBehindARefusedEdit) {
    start();
    typeName(fiftyLetters_);
    Hand::keys({"ctrl+a"});
    Hand::type("new");
    waitForName("new");
    Hand::keys({"ctrl+z"});
    waitForName(fiftyLetters_);
    Hand::keys({"End", "X", "ctrl+z"}); // The refused letter is not in the history.
    waitUntil("the typing before it is undone",
              [this] { return name().toStdString() != fiftyLetters_; });
}

TEST_F(DesktopVolumeName, TextOfAnotherProgramCanBeDroppedIntoIt) {
    start();
    startNeighbour();
    clearVolumeName();
    offer({{"text/plain", "dropped"}});
    EXPECT_EQ(dropOn(middleOf("_volumeName")), "copy");
    waitForName("dropped");
}

TEST_F(DesktopVolumeName, DroppedTextIsCutAtFifty) {
    start();
    startNeighbour();
    typeName(fiftyLetters_.substr(0, 45));
    offer({{"text/plain", "0123456789"}});
    const QRect field = rectOf("_volumeName");
    EXPECT_EQ(dropOn({field.left() + 3, field.center().y()}), "copy"); // Before the first letter.
    waitForName("01234" + fiftyLetters_.substr(0, 45));
}

} // namespace
