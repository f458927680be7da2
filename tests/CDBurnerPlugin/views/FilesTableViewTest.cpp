// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/ResourceLocator.h"
#include "tests/CDBurnerPlugin/EventLoop.h"
#include "tests/CDBurnerPlugin/views/TableRecorder.h"
#include "tests/support/ProcessorTime.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QTest>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QToolTip>

#include <chrono>

namespace {

const QBrush white = QBrush(QColor(Qt::white));

bool isPattern(const FilesTableView &table) {
    return table.backgroundBrush().style() == Qt::TexturePattern;
}

TEST(TableLook, StartsWithThePatternAndAlternatingRowsOn) {
    FilesTableView table;
    table.awakeFromNib();
    EXPECT_TRUE(isPattern(table));
    EXPECT_TRUE(table.usesAlternatingRowBackgroundColors());
}

TEST(TableLook, TheFirstReloadWithoutRowsTurnsAlternatingOff) {
    const TableFixture fixture;
    EXPECT_TRUE(isPattern(fixture.table));
    EXPECT_FALSE(fixture.table.usesAlternatingRowBackgroundColors());
}

TEST(TableLook, TheFirstReloadWithRowsKeepsThePatternUntilTheListWasEmpty) {
    TableFixture fixture(1);
    EXPECT_TRUE(isPattern(fixture.table));
    EXPECT_TRUE(fixture.table.usesAlternatingRowBackgroundColors());
    fixture.keep(0);
    fixture.table.reloadData();
    fixture.append(1);
    fixture.table.reloadData();
    EXPECT_EQ(fixture.table.backgroundBrush(), white);
}

TEST(TableLook, RowsStandOnWhiteWithAlternatingRows) {
    TableFixture fixture;
    fixture.append(2);
    fixture.table.reloadData();
    EXPECT_EQ(fixture.table.backgroundBrush(), white);
    EXPECT_TRUE(fixture.table.usesAlternatingRowBackgroundColors());
    fixture.keep(0);
    fixture.table.reloadData();
    EXPECT_TRUE(isPattern(fixture.table));
    EXPECT_FALSE(fixture.table.usesAlternatingRowBackgroundColors());
}

TEST(TableLook, WithoutThePictureAnEmptiedListStaysWhite) {
    if (ResourceLocator::loadCount(QStringLiteral("table_bgcolor.png")) > 0) {
        GTEST_SKIP() << "needs a process in which no table was made before";
    }
    const TemporaryFolder empty;
    ResourceLocator::setFolder(QString::fromStdString(empty.path().string()));
    TableFixture fixture;
    EXPECT_FALSE(isPattern(fixture.table));
    EXPECT_FALSE(fixture.table.usesAlternatingRowBackgroundColors());
    fixture.append(1);
    fixture.table.reloadData();
    EXPECT_EQ(fixture.table.backgroundBrush(), white);
    EXPECT_TRUE(fixture.table.usesAlternatingRowBackgroundColors());
    fixture.keep(0);
    fixture.table.reloadData();
    EXPECT_EQ(fixture.table.backgroundBrush(), white);
    EXPECT_TRUE(fixture.table.usesAlternatingRowBackgroundColors());
    ResourceLocator::setFolder({});
}

TEST(TableLook, ThePictureIsReadOnceForAllTables) {
    FilesTableView first;
    first.awakeFromNib();
    FilesTableView second;
    second.awakeFromNib();
    EXPECT_TRUE(isPattern(second));
    EXPECT_EQ(ResourceLocator::loadCount(QStringLiteral("table_bgcolor.png")), 1);
}

TEST(TableLook, TextIsDarkOnWhiteInADarkThemeToo) {
    TableFixture fixture;
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    dark.setColor(QPalette::Text, QColor(0xee, 0xee, 0xee));
    fixture.table.setPalette(dark);
    EXPECT_LT(fixture.table.backgroundBrush().textureImage().pixelColor(0, 0).lightness(), 100);
    fixture.append(2);
    fixture.table.reloadData();
    EXPECT_EQ(fixture.table.backgroundBrush(), white);
    const QPalette &shown = fixture.table.viewport()->palette();
    EXPECT_LT(shown.color(QPalette::Text).lightness(), 60);
    EXPECT_GT(shown.color(QPalette::AlternateBase).lightness(), 230);
    EXPECT_EQ(fixture.table.palette().color(QPalette::Text), dark.color(QPalette::Text));
}

TEST(TableReload, KeepsSelectionAndScrollPositionOfRowsThatExist) {
    TableFixture fixture;
    fixture.append(100);
    fixture.table.reloadData();
    showActive(fixture.table);
    fixture.table.selectRowIndexes({3, 50, 99});
    fixture.table.verticalScrollBar()->setValue(400);
    fixture.append(5);
    fixture.table.reloadData();
    EXPECT_EQ(fixture.table.selectedRowIndexes(), (IndexSet{3, 50, 99}));
    EXPECT_EQ(fixture.table.verticalScrollBar()->value(), 400);
    fixture.keep(60);
    fixture.table.reloadData();
    EXPECT_EQ(fixture.table.selectedRowIndexes(), (IndexSet{3, 50}));
    EXPECT_EQ(fixture.table.verticalScrollBar()->value(), 400);
}

TEST(TableReload, CostsTheSameForAnyNumberOfRows) {
    TableFixture fixture;
    showActive(fixture.table);
    const auto begin = processorTimeOfThread();
    for (int i = 0; i < 10000; ++i) {
        fixture.append(1);
        fixture.table.reloadData();
    }
    // A small part of this, if nothing grows with the rows; what would grow with the rows takes
    // many seconds.
    EXPECT_LT(processorTimeOfThread() - begin, std::chrono::seconds(3));
    EXPECT_EQ(fixture.table.filesModel()->rowCount(), 10000);
}

TEST(TableSelection, IsReplacedAndStaysWithinTheList) {
    TableFixture fixture;
    fixture.append(4);
    fixture.table.reloadData();
    fixture.table.selectRowIndexes({0, 1});
    fixture.table.selectRowIndexes({-1, 2, 3, 4, 900});
    EXPECT_EQ(fixture.table.selectedRowIndexes(), (IndexSet{2, 3}));
    fixture.table.selectRowIndexes({7});
    EXPECT_TRUE(fixture.table.selectedRowIndexes().empty());
}

TEST(TableSelection, OfRowsThatStandTogetherIsOneRange) {
    TableFixture fixture;
    fixture.append(100);
    fixture.table.reloadData();
    fixture.table.selectRowIndexes({3, 4, 5, 7, 98, 99, 100, 101});
    EXPECT_EQ(fixture.table.selectedRowIndexes(), (IndexSet{3, 4, 5, 7, 98, 99}));
    EXPECT_EQ(fixture.table.selectionModel()->selection().size(), 3);
    EXPECT_EQ(fixture.table.currentIndex().row(), 3);
}

TEST(TableSelection, WithShiftBeginsWhereTheProgramSetIt) {
    TableFixture fixture;
    fixture.append(10);
    fixture.table.reloadData();
    showActive(fixture.table);
    fixture.table.selectRowIndexes({5});
    QTest::keyClick(&fixture.table, Qt::Key_Up, Qt::ShiftModifier);
    QTest::keyClick(&fixture.table, Qt::Key_Up, Qt::ShiftModifier);
    ASSERT_EQ(fixture.table.selectedRowIndexes(), (IndexSet{3, 4, 5}));
    fixture.table.selectRowIndexes({3}); // As after their removal.
    QTest::keyClick(&fixture.table, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(fixture.table.selectedRowIndexes(), (IndexSet{3, 4}));
}

TEST(TableRows, HaveAPlaceOverTheWholeWidth) {
    TableFixture fixture;
    fixture.append(3);
    fixture.table.reloadData();
    showActive(fixture.table);
    const QRect row = fixture.table.rectOfRow(1);
    EXPECT_EQ(row.width(), fixture.table.viewport()->width());
    EXPECT_EQ(row.y(), row.height());
    EXPECT_GE(row.height(), FilesTableView::deleteButtonSize);
    EXPECT_EQ(fixture.table.rowAtPoint(row.center()), 1);
    EXPECT_EQ(fixture.table.rectOfRow(3), QRect(0, 0, 0, 0));
    EXPECT_EQ(fixture.table.rectOfRow(-1), QRect(0, 0, 0, 0));
}

TEST(TableRows, TellTheirWholeNameOnlyWhereItIsCut) {
    TableFixture fixture;
    fixture.burner->append("short", 75);
    const QString name = QStringLiteral("Tom & \"Jerry\" <b>  %1").arg(QString(200, u'x'));
    fixture.burner->append(name.toStdString(), 75);
    fixture.table.reloadData();
    showActive(fixture.table);
    const auto tipOver = [&fixture](qint64 row) {
        const QPoint point = fixture.table.rectOfRow(row).center() - QPoint(100, 0);
        QWidget *const area = fixture.table.viewport();
        QHelpEvent event(QEvent::ToolTip, point, area->mapToGlobal(point));
        QApplication::sendEvent(area, &event);
        QString tip = QToolTip::isVisible() ? QToolTip::text() : QString();
        QToolTip::hideText();
        return tip;
    };
    EXPECT_EQ(tipOver(0), QString());
    ASSERT_TRUE(Qt::mightBeRichText(tipOver(1)));
    EXPECT_EQ(QTextDocumentFragment::fromHtml(tipOver(1)).toPlainText(), name);
}

class DeleteKey : public testing::TestWithParam<Qt::Key> {};

TEST_P(DeleteKey, AsksToDeleteTheSelection) {
    TableFixture fixture;
    fixture.append(5);
    fixture.table.reloadData();
    fixture.table.selectRowIndexes({1, 3});
    QTest::keyClick(&fixture.table, GetParam());
    EXPECT_EQ(fixture.recorder.deleted, std::vector({IndexSet{1, 3}}));
}

TEST_P(DeleteKey, AsksWithAnEmptySelectionToo) {
    TableFixture fixture;
    fixture.append(5);
    fixture.table.reloadData();
    QTest::keyClick(&fixture.table, GetParam());
    EXPECT_EQ(fixture.recorder.deleted, std::vector({IndexSet{}}));
}

INSTANTIATE_TEST_SUITE_P(Both, DeleteKey, testing::Values(Qt::Key_Delete, Qt::Key_Backspace));

TEST(TableKeys, CtrlASelectsAllRows) {
    TableFixture fixture;
    fixture.append(3);
    fixture.table.reloadData();
    QTest::keyClick(&fixture.table, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(fixture.table.selectedRowIndexes(), (IndexSet{0, 1, 2}));
}

TEST(TableKeys, AltArrowsMoveTheSelectedRows) {
    TableFixture fixture;
    fixture.append(5);
    fixture.table.reloadData();
    fixture.table.selectRowIndexes({1, 2});
    QTest::keyClick(&fixture.table, Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(&fixture.table, Qt::Key_Up, Qt::AltModifier);
    using Move = std::pair<IndexSet, qint64>;
    EXPECT_EQ(fixture.recorder.moved, (std::vector<Move>{{{1, 2}, 4}, {{1, 2}, 0}}));
}

TEST(KeyboardMove, GoesOnePlaceOn) {
    EXPECT_EQ(keyboardMoveDestination({2}, 5, true), 1);
    EXPECT_EQ(keyboardMoveDestination({2}, 5, false), 4);
    EXPECT_EQ(keyboardMoveDestination({3}, 5, false), 5);
}

TEST(KeyboardMove, StopsAtTheEnds) {
    EXPECT_EQ(keyboardMoveDestination({0, 1}, 5, true), std::nullopt);
    EXPECT_EQ(keyboardMoveDestination({3, 4}, 5, false), std::nullopt);
    EXPECT_EQ(keyboardMoveDestination({}, 5, true), std::nullopt);
}

TEST(KeyboardMove, GathersRowsThatDoNotStandTogether) {
    EXPECT_EQ(keyboardMoveDestination({0, 2}, 5, true), 0);
    EXPECT_EQ(keyboardMoveDestination({2, 4}, 5, false), 5);
}

} // namespace
