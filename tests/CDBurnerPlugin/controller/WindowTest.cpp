// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/CDBurnerPlugin/controller/ControllerTest.h"

#include "CDBurnerPlugin/VXDragImageView.h"
#include "CDBurnerPlugin/VXHelpWindow.h"
#include "tests/support/ProcessorTime.h"

#include <QFontInfo>
#include <QFrame>
#include <QMimeData>
#include <QScreen>
#include <QToolButton>

#include <chrono>

class Window : public ControllerTest {};

TEST_F(Window, EveryControlHasANameForScreenReaders) {
    openWithSongs(1);
    const QSet<QString> labelled = {QStringLiteral("_devicePopup"), QStringLiteral("_volumeName")};
    for (const auto *widget : controller->window()->findChildren<QWidget *>()) {
        const bool isControl = widget->focusPolicy() != Qt::NoFocus &&
                               widget->objectName().startsWith(QLatin1Char('_'));
        if (isControl && !labelled.contains(widget->objectName())) {
            const auto *button = qobject_cast<const QAbstractButton *>(widget);
            const QString name = button != nullptr && widget->accessibleName().isEmpty()
                                     ? button->text()
                                     : widget->accessibleName();
            EXPECT_GT(name.size(), 1) << widget->objectName().toStdString();
        }
    }
    EXPECT_EQ(find<QLabel>("_txtDeviceName")->buddy(), devicePopup());
    EXPECT_EQ(find<QLabel>("_txtVolumeName")->buddy(), volumeName());
}

TEST_F(Window, MnemonicsAreDistinct) {
    openWithSongs(1);
    QSet<QChar> seen;
    for (const char *name : {"_txtDeviceName", "_txtVolumeName"}) {
        const QString text = find<QLabel>(name)->text();
        seen.insert(text.at(text.indexOf(QLatin1Char('&')) + 1).toLower());
    }
    for (const char *name : {"_btnEject", "_btnClear", "_btnBurn"}) {
        const QString text = find<QPushButton>(name)->text();
        seen.insert(text.at(text.indexOf(QLatin1Char('&')) + 1).toLower());
    }
    EXPECT_EQ(seen.size(), 5);
}

TEST_F(Window, CannotBeMadeTooSmallForItsContent) {
    openWithSongs(1);
    MainWindow *const window = controller->window();
    window->resize(1, 1);
    EXPECT_GE(window->width(), window->minimumSizeHint().width());
    EXPECT_GE(burnButton()->width(), burnButton()->minimumSizeHint().width());
    EXPECT_TRUE(window->rect().contains(
        QRect(burnButton()->mapTo(window, QPoint()), burnButton()->size())));
}

TEST_F(Window, CannotBeMadeTooSmallForLettersOfTwiceTheSize) {
    QFont large = QApplication::font();
    const QFont ordinary = large;
    large.setPixelSize(2 * QFontInfo(large).pixelSize());
    QApplication::setFont(large);
    openWithSongs(3);
    controller->window()->resize(1, 1);
    QApplication::processEvents();
    for (const auto *label : controller->window()->findChildren<QLabel *>()) {
        if (label->isVisible() && !label->text().isEmpty()) {
            EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
            EXPECT_GE(label->height(), label->fontMetrics().height());
        }
    }
    for (const auto *button : controller->window()->findChildren<QPushButton *>()) {
        EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
    }
    EXPECT_GE(table()->viewport()->height(), 3 * table()->rectOfRow(0).height());
    QApplication::setFont(ordinary);
}

TEST_F(Window, IsLargerWithLargerLetters) {
    openWithBlankDisc();
    const QSize ordinarySize = controller->window()->size();
    const QFont ordinary = QApplication::font();
    letGo();
    QFont large = ordinary;
    large.setPixelSize(24);
    QApplication::setFont(large);
    openWhileSearching();
    const QSize size = controller->window()->size();
    QApplication::setFont(ordinary);
    const QSize screen = controller->window()->screen()->availableSize();
    EXPECT_GT(size.width(), ordinarySize.width());
    EXPECT_LE(size.width(), std::max(screen.width(), ordinarySize.width()));
    EXPECT_LE(size.height(), std::max(screen.height(), ordinarySize.height()));
}

TEST_F(Window, AFullListCanBeMadeNoSmallerThanAnEmptyOne) {
    openWithBlankDisc();
    const QSize empty = controller->window()->minimumSizeHint();
    engine.audio().append("Song", 75);
    controller->updateUI();
    EXPECT_EQ(controller->window()->minimumSizeHint(), empty);
}

TEST_F(Window, PictureAndCaptionStayInsideTheEmptyListAtItsSmallest) {
    openWithBlankDisc();
    MainWindow *const window = controller->window();
    window->resize(1, 1);
    QApplication::processEvents();
    const QWidget *const inside = table()->viewport();
    const QRect list(inside->mapTo(window, QPoint()), inside->size());
    EXPECT_TRUE(list.contains(find<QWidget>("_dragImageView")->geometry()));
    EXPECT_TRUE(list.contains(find<QWidget>("_txtDragHere")->geometry()));
}

TEST_F(Window, PictureTakesDropsEvenWhileTheSheetIsUp) {
    open();
    startBurn();
    QMimeData data;
    data.setData(QStringLiteral("text/uri-list"), "file:///m/a\r\n");
    EXPECT_TRUE(find<VXDragImageView>("_dragImageView")->performDragOperation(data));
    EXPECT_EQ(engine.audio().addedFiles.size(), 1U);
}

TEST_F(Window, CaptionLetsDropsThroughToTheList) {
    open();
    const auto *const caption = find<QLabel>("_txtDragHere");
    const QPoint middle = caption->mapTo(controller->window(), caption->rect().center());
    EXPECT_EQ(controller->window()->childAt(middle), table()->viewport());
}

TEST_F(Window, HelpButtonIsThereWithAndWithoutADisc) {
    openWithBlankDisc();
    const auto *const help = find<QToolButton>("_btnHelp");
    EXPECT_TRUE(help->isVisible());
    engine.removeDrive("Drive");
    controller->deviceStatusDidChanged();
    EXPECT_FALSE(showsVolumeName());
    EXPECT_TRUE(help->isVisible());
}

TEST_F(Window, HelpBubbleStandsBesideTheBox) {
    openWithBlankDisc();
    controller->window()->move(100, 100);
    find<QToolButton>("_btnHelp")->click();
    auto *const bubble = controller->window()->findChild<VXHelpWindow *>();
    ASSERT_TRUE(bubble->isOpen());
    const QFrame *const box = find<QFrame>("_discSetBox");
    const QToolButton *const help = find<QToolButton>("_btnHelp");
    const QPoint below = help->mapToGlobal(QPoint(0, help->height()));
    const QPoint beside = box->mapToGlobal(QPoint(box->width() + 34 - bubble->width(), 0));
    const QPoint wanted(beside.x(), below.y());
    // Kept on the screen as a whole.
    const QRect screen = bubble->screen()->availableGeometry();
    EXPECT_EQ(bubble->x(), std::min(wanted.x(), screen.right() + 1 - bubble->width()));
    EXPECT_EQ(bubble->y(), std::min(wanted.y(), screen.bottom() + 1 - bubble->height()));
    bubble->endFakeMenu();
}

TEST_F(Window, TenThousandAcceptedFilesKeepTheMainLoopFree) {
    openWithBlankDisc();
    constexpr int count = 10000;
    const auto begin = processorTimeOfThread();
    for (int number = 0; number < count; ++number) {
        engine.audio().append("Song", 75);
        engine.audio().delegate()->fileDidAdded(nullptr);
    }
    drainMainQueue();
    EXPECT_EQ(rowCount(), count);
    // A small part of this, if nothing grows with the rows; what would grow with the rows takes
    // many seconds.
    EXPECT_LT(processorTimeOfThread() - begin, std::chrono::seconds(5));
}
