// SPDX-License-Identifier: GPL-2.0-or-later
// In a language that is written from right to left the tool's windows are mirrored.
#include "CDBurnerPlugin/Alert.h"
#include "CDBurnerPlugin/VXHelpWindow.h"
#include "tests/CDBurnerPlugin/controller/ControllerTest.h"
#include "tests/CDBurnerPlugin/translations/Languages.h"

#include <QFrame>
#include <QToolButton>

namespace {

/// How dark the bar is painted at its left and its right end.
std::pair<QColor, QColor> endsOf(QWidget &bar) {
    constexpr int inset = 8; // Beyond the round ends.
    const QImage image = bar.grab().toImage();
    const int middle = image.height() / 2;
    return {image.pixelColor(inset, middle), image.pixelColor(image.width() - inset, middle)};
}

bool isBlue(const QColor &color) {
    return color.blue() > color.red() + 40;
}

class RightToLeft : public ControllerTest {
protected:
    const SpokenLanguage spoken_{"ar"};
};

class LeftToRight : public ControllerTest {
protected:
    LeftToRight() { QApplication::setLayoutDirection(Qt::RightToLeft); }
    ~LeftToRight() override { QApplication::setLayoutDirection(Qt::LeftToRight); }
};

/// The pictures of all that paints texts by itself or has them painted by the style.
QList<QImage> picturesOf(const std::vector<QWidget *> &widgets) {
    QList<QImage> pictures;
    for (QWidget *const widget : widgets) {
        pictures += widget->grab().toImage();
    }
    return pictures;
}

int xInWindow(const QWidget &widget) {
    return widget.mapTo(widget.window(), QPoint()).x();
}

/// The middle of the dark pixels of a cell: how far it is to the right, in pixels.
int middleOfInk(FilesTableView &table, int row, int column) {
    const QRect place = table.visualRect(table.model()->index(row, column));
    const QImage cell = table.viewport()->grab(place.adjusted(3, 3, -3, -3)).toImage();
    qint64 sum = 0;
    int count = 0;
    for (int y = 0; y < cell.height(); ++y) {
        for (int x = 0; x < cell.width(); ++x) {
            if (cell.pixelColor(x, y).lightness() < 160) {
                sum += x;
                ++count;
            }
        }
    }
    return count > 0 ? static_cast<int>(sum / count) : 0;
}

} // namespace

TEST_F(RightToLeft, AllWindowsOfTheToolRunThatWay) {
    openWithSongs(1);
    EXPECT_EQ(QApplication::layoutDirection(), Qt::LeftToRight); // The host's does not change.
    EXPECT_TRUE(controller->window()->isRightToLeft());
    EXPECT_TRUE(sheet()->isRightToLeft());
    EXPECT_TRUE(controller->window()->findChild<VXHelpWindow *>()->isRightToLeft());
    EXPECT_TRUE(table()->isRightToLeft());
    const std::unique_ptr<QMessageBox> alert(makeAlert(controller->window(), AlertTexts()));
    EXPECT_TRUE(alert->isRightToLeft());
}

// English texts in a host whose language is written the other way stay readable.
TEST_F(LeftToRight, TheToolsTextsDecideAndNotTheHostsLanguage) {
    openWithSongs(1);
    EXPECT_FALSE(controller->window()->isRightToLeft());
    EXPECT_FALSE(sheet()->isRightToLeft());
    EXPECT_FALSE(controller->window()->findChild<VXHelpWindow *>()->isRightToLeft());
}

TEST_F(RightToLeft, TheBurnButtonStandsAtTheLeftAndTheFirstColumnAtTheRight) {
    openWithSongs(1);
    EXPECT_LT(xInWindow(*burnButton()), xInWindow(*find<QPushButton>("_btnClear")));
    const QHeaderView *const header = table()->horizontalHeader();
    EXPECT_GT(header->sectionViewportPosition(FilesTableModel::filename),
              header->sectionViewportPosition(FilesTableModel::fileinfo));
    EXPECT_GT(xInWindow(*usedLabel()), xInWindow(*retainedLabel()));
}

TEST_F(RightToLeft, TheBarFillsFromTheRight) {
    openWithBlankDisc();
    bar()->setMaxValue(100);
    bar()->setDoubleValue(50);
    const auto [left, right] = endsOf(*bar());
    EXPECT_FALSE(isBlue(left));
    EXPECT_TRUE(isBlue(right));
}

TEST_F(LeftToRight, TheBarFillsFromTheLeft) {
    openWithBlankDisc();
    bar()->setMaxValue(100);
    bar()->setDoubleValue(50);
    const auto [left, right] = endsOf(*bar());
    EXPECT_TRUE(isBlue(left));
    EXPECT_FALSE(isBlue(right));
}

TEST_F(RightToLeft, TheDeleteButtonStandsAtTheRowsLeftEnd) {
    openWithSongs(3);
    controller->tableViewMouseOverRow(table(), 1);
    EXPECT_EQ(deleteButton()->x(), xInWindow(*table()->viewport()));
    const QRect row = table()->rectOfRow(1);
    const QPoint middle = table()->viewport()->mapTo(controller->window(), row.center());
    EXPECT_NEAR(deleteButton()->geometry().center().y(), middle.y(), 1);
}

TEST_F(RightToLeft, TheHelpBubbleReachesBeyondTheBoxsLeftEdge) {
    openWithBlankDisc();
    controller->window()->move(100, 0);
    find<QToolButton>("_btnHelp")->click();
    auto *const bubble = controller->window()->findChild<VXHelpWindow *>();
    ASSERT_TRUE(bubble->isOpen());
    const QFrame *const box = find<QFrame>("_discSetBox");
    EXPECT_EQ(bubble->x(), box->mapToGlobal(QPoint(-34, 0)).x());
    const QToolButton *const help = find<QToolButton>("_btnHelp");
    EXPECT_LT(help->x(), box->width() / 2);
    // Its pointer is at the button.
    EXPECT_LT(bubble->x(), help->mapToGlobal(QPoint()).x());
    EXPECT_GT(bubble->geometry().right(), help->mapToGlobal(QPoint()).x());
    bubble->endFakeMenu();
}

// A painter has the application's direction by itself: what paints in the window must not ask it.
TEST_F(RightToLeft, LooksTheSameInAHostOfEitherDirection) {
    open(); // Without a drive: the tip is shown.
    send(engine.audio(), [](ScorchDelegate &burn) { burn.burnProgressIsFinishing(); });
    const std::vector<QWidget *> widgets = {controller->window(), sheet(),
                                            find<ErrorTipsView>("_errorTipsView"),
                                            table()->horizontalHeader()};
    const QList<QImage> inHostOfOtherDirection = picturesOf(widgets);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    const QList<QImage> inHostOfSameDirection = picturesOf(widgets);
    QApplication::setLayoutDirection(Qt::LeftToRight);
    EXPECT_EQ(inHostOfOtherDirection, inHostOfSameDirection);
}

// Signs at the end of a name stand at its end, not at the row's.
TEST_F(RightToLeft, NamesOfTheOtherDirectionReadAsElsewhere) {
    openWithBlankDisc();
    engine.audio().append("WWWWWWWW", 75);
    engine.audio().append("WWWWWWWW........", 75);
    controller->updateUI();
    QApplication::processEvents();
    // Both names end at the cell's right edge.
    const int letters = middleOfInk(*table(), 0, FilesTableModel::filename);
    const int lettersAndDots = middleOfInk(*table(), 1, FilesTableModel::filename);
    const int dots = table()->fontMetrics().horizontalAdvance(QStringLiteral("........"));
    EXPECT_LT(lettersAndDots, letters - dots / 2);
}

TEST_F(RightToLeft, TitlesStandWhereTheTextsBelowThemStart) {
    open();
    QHeaderView *const header = table()->horizontalHeader();
    const QImage picture = header->grab().toImage();
    const auto isDark = [&picture](int x) {
        for (int y = 2; y < picture.height() - 2; ++y) {
            if (picture.pixelColor(x, y).lightness() < 100) {
                return true;
            }
        }
        return false;
    };
    int darkAtTheRight = 0;
    for (int x = picture.width() - 60; x < picture.width(); ++x) {
        darkAtTheRight += isDark(x) ? 1 : 0;
    }
    EXPECT_GT(darkAtTheRight, 5);
}
