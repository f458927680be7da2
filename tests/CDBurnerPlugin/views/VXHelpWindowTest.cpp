// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/VXHelpWindow.h"
#include "CDBurnerPlugin/VXHelpView.h"

#include "tests/CDBurnerPlugin/EventLoop.h"

#include <gtest/gtest.h>

#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTest>
#include <QWheelEvent>

namespace {

/// Counts what reaches it.
class Target : public QWidget {
public:
    using QWidget::QWidget;
    int presses = 0;
    int keys = 0;
    int wheels = 0;

protected:
    void mousePressEvent(QMouseEvent * /*event*/) override { ++presses; }
    void keyPressEvent(QKeyEvent * /*event*/) override { ++keys; }
    void wheelEvent(QWheelEvent * /*event*/) override { ++wheels; }
};

class HelpWindow : public testing::Test {
protected:
    HelpWindow() {
        main_.setGeometry(50, 50, 600, 500);
        target_.setGeometry(0, 0, 100, 100);
        showActive(main_);
        bubble_.setFrameTopLeftPoint(main_.mapToGlobal(QPoint(200, 100)));
        bubble_.beginFakeMenu();
    }

    void scrollOverTarget() {
        QWheelEvent wheel({10, 10}, target_.mapToGlobal(QPointF(10, 10)), {}, {0, 120},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&target_, &wheel);
    }

    QWidget main_;
    Target target_{&main_};
    VXHelpWindow bubble_{&main_};
};

TEST_F(HelpWindow, OpensAsAPopupAndCloses) {
    EXPECT_TRUE(bubble_.isVisible());
    EXPECT_TRUE(bubble_.isOpen());
    EXPECT_EQ(bubble_.windowType(), Qt::Popup);
    bubble_.endFakeMenu();
    EXPECT_FALSE(bubble_.isVisible());
    EXPECT_FALSE(bubble_.isOpen());
}

TEST_F(HelpWindow, AnyKeyClosesItAndReachesNobody) {
    QTest::keyClick(&target_, Qt::Key_A);
    EXPECT_FALSE(bubble_.isOpen());
    EXPECT_EQ(target_.keys, 0);
    QTest::keyClick(&target_, Qt::Key_A);
    EXPECT_EQ(target_.keys, 1);
}

TEST_F(HelpWindow, AShortcutClosesItAndDoesNothingElse) {
    int activations = 0;
    const QShortcut shortcut(QKeySequence(Qt::CTRL | Qt::Key_B), &main_, [&] { ++activations; });
    QTest::keyClick(&target_, Qt::Key_B, Qt::ControlModifier);
    EXPECT_FALSE(bubble_.isOpen());
    EXPECT_EQ(activations, 0);
}

TEST_F(HelpWindow, AKeyThatAnInputMethodTakesClosesItToo) {
    QLineEdit field(&main_);
    const auto type = [&field](const QString &composed, const QString &committed) {
        QInputMethodEvent typed(composed, {});
        typed.setCommitString(committed);
        QApplication::sendEvent(&field, &typed);
    };
    type({}, {});
    EXPECT_TRUE(bubble_.isOpen()) << "nothing was typed";
    type(QStringLiteral("か"), {});
    EXPECT_FALSE(bubble_.isOpen());
    bubble_.beginFakeMenu();
    type({}, QStringLiteral("か"));
    EXPECT_FALSE(bubble_.isOpen());
    EXPECT_EQ(field.text(), QString());
    type({}, QStringLiteral("き"));
    EXPECT_EQ(field.text(), QStringLiteral("き"));
}

TEST_F(HelpWindow, AModifierAloneDoesNotCloseIt) {
    QTest::keyClick(&target_, Qt::Key_Shift);
    QTest::keyClick(&target_, Qt::Key_Control);
    QTest::keyClick(&target_, Qt::Key_Alt);
    EXPECT_TRUE(bubble_.isOpen());
}

TEST_F(HelpWindow, AnyButtonOutsideClosesItAndReachesNobody) {
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        bubble_.beginFakeMenu();
        QTest::mousePress(&target_, button, {}, {10, 10});
        EXPECT_FALSE(bubble_.isOpen());
        EXPECT_EQ(target_.presses, 0);
    }
    QTest::mousePress(&target_, Qt::LeftButton, {}, {10, 10});
    EXPECT_EQ(target_.presses, 1);
}

TEST_F(HelpWindow, AClickInsideReachesWhatIsThere) {
    auto *inside = new Target(&bubble_);
    inside->setGeometry(20, 40, 50, 50);
    inside->show();
    QTest::mousePress(inside, Qt::LeftButton, {}, {10, 10});
    EXPECT_EQ(inside->presses, 1);
    EXPECT_TRUE(bubble_.isOpen());
}

TEST_F(HelpWindow, TheWheelDoesNothing) {
    scrollOverTarget();
    EXPECT_EQ(target_.wheels, 0);
    EXPECT_TRUE(bubble_.isOpen());
    bubble_.endFakeMenu();
    scrollOverTarget();
    EXPECT_EQ(target_.wheels, 1);
}

TEST_F(HelpWindow, AnotherWindowThatBecomesActiveClosesIt) {
    QWidget other;
    other.setGeometry(700, 600, 50, 50);
    other.show();
    other.activateWindow();
    EXPECT_TRUE(runUntil([this] { return !bubble_.isOpen(); }));
}

TEST_F(HelpWindow, IsToldOfOtherWindowsAndIgnoresThem) {
    bubble_.windowDidResignKey(&main_);
    EXPECT_TRUE(bubble_.isOpen());
    bubble_.windowDidResignKey(&bubble_);
    EXPECT_FALSE(bubble_.isOpen());
}

TEST_F(HelpWindow, OpenedAgainAndAgainItClosesAtOnce) {
    bubble_.endFakeMenu();
    bubble_.beginFakeMenu();
    bubble_.beginFakeMenu();
    QTest::keyClick(&target_, Qt::Key_A);
    QTest::keyClick(&target_, Qt::Key_B);
    EXPECT_FALSE(bubble_.isOpen());
    EXPECT_EQ(target_.keys, 1); // No watch was left behind that would have taken the second key.
}

TEST_F(HelpWindow, APopupThatTheSystemClosesStopsWatching) {
    bubble_.hide();
    EXPECT_FALSE(bubble_.isOpen());
    QTest::keyClick(&target_, Qt::Key_A);
    EXPECT_EQ(target_.keys, 1);
}

TEST_F(HelpWindow, StaysOnTheScreen) {
    const QRect screen = bubble_.screen()->availableGeometry();
    bubble_.setFrameTopLeftPoint(screen.bottomRight());
    EXPECT_TRUE(screen.contains(bubble_.geometry()));
}

TEST_F(HelpWindow, CutOutItHasNoBlackBehindItsEdge) {
    const QPoint corner(0, VXHelpView::pointerHeight); // Outside the round corner.
    EXPECT_EQ(bubble_.grab().toImage().pixelColor(corner).alpha(), 0);
    bubble_.setMask(bubble_.rect());
    const QColor behind = bubble_.grab().toImage().pixelColor(corner);
    EXPECT_EQ(behind.alpha(), 255);
    EXPECT_GT(behind.lightness(), 128);
}

TEST_F(HelpWindow, ItsTextFitsAndTellsOfBothTypes) {
    const auto *text = bubble_.findChild<QLabel *>();
    EXPECT_TRUE(text->text().contains(QStringLiteral("Audio CD")));
    EXPECT_TRUE(text->text().contains(QStringLiteral("Data CD")));
    EXPECT_GE(text->height(), text->heightForWidth(text->width()));
}

} // namespace
