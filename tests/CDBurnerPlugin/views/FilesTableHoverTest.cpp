// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/CDBurnerPlugin/EventLoop.h"
#include "tests/CDBurnerPlugin/views/TableRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QCursor>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <functional>
#include <utility>

namespace {

using Rows = std::vector<qint64>;

struct DragStarter : FilesTableView {
    static constexpr auto start = &DragStarter::startDrag;
};

/// Rows are being dragged while it is asked for what they carry; and then there is no drag.
class WhileDragged : public TableRecorder {
public:
    explicit WhileDragged(std::function<void()> act) : act_(std::move(act)) {}

    bool tableViewWriteRowsWithIndexesToPasteboard(FilesTableView * /*table*/,
                                                   const IndexSet & /*rows*/,
                                                   QMimeData * /*pasteboard*/) override {
        act_();
        return false;
    }

private:
    std::function<void()> act_;
};

/// A window with a table of ten rows in its middle, the pointer far away.
class TableHover : public testing::Test {
protected:
    TableHover() {
        fixture_.append(10);
        table_.reloadData();
        table_.setParent(&window_);
        window_.resize(400, 500);
        table_.setGeometry(50, 50, 300, 400);
        QCursor::setPos(0, 0);
        window_.move(100, 100);
        showActive(window_);
        fixture_.recorder.hovered.clear();
    }
    ~TableHover() override { table_.setParent(nullptr); }

    QPoint middleOf(qint64 row) const { return table_.rectOfRow(row).center(); }
    void pointAt(const QPoint &point) {
        QCursor::setPos(table_.viewport()->mapToGlobal(point));
        QCoreApplication::processEvents();
    }
    void pointAtRow(qint64 row) { pointAt(middleOf(row)); }

    QWidget window_;
    TableFixture fixture_;
    FilesTableView &table_ = fixture_.table;
    Rows &hovered_ = fixture_.recorder.hovered;
};

TEST_F(TableHover, ReportsEachRowOnce) {
    table_.mouseMoved(middleOf(2));
    table_.mouseMoved(middleOf(3));
    table_.mouseMoved(middleOf(3) + QPoint(5, 2));
    EXPECT_EQ(hovered_, (Rows{2, 3}));
}

TEST_F(TableHover, EnteringIsAMove) {
    table_.mouseEntered(middleOf(2));
    table_.mouseMoved(middleOf(2));
    EXPECT_EQ(hovered_, Rows{2});
}

TEST_F(TableHover, BelowTheLastRowThereIsNoRow) {
    table_.mouseMoved(middleOf(9));
    const QPoint below(20, table_.rectOfRow(9).bottom() + 20);
    table_.mouseMoved(below);
    table_.mouseMoved(below + QPoint(3, 3));
    EXPECT_EQ(hovered_, (Rows{9, -1}));
}

TEST_F(TableHover, EveryExitIsReported) {
    table_.mouseMoved(middleOf(3));
    table_.mouseMoved(QPoint(20, table_.rectOfRow(9).bottom() + 20));
    table_.mouseExited();
    EXPECT_EQ(hovered_, (Rows{3, -1, -1}));
    table_.mouseMoved(middleOf(3));
    EXPECT_EQ(hovered_.back(), 3);
}

TEST_F(TableHover, WithoutADelegateTheRowIsRememberedAllTheSame) {
    table_.setDelegate(nullptr);
    table_.mouseMoved(middleOf(3));
    table_.setDelegate(&fixture_.recorder);
    table_.mouseMoved(middleOf(3));
    EXPECT_TRUE(hovered_.empty());
}

TEST_F(TableHover, FollowsThePointer) {
    pointAtRow(2);
    pointAtRow(3);
    EXPECT_EQ(hovered_, (Rows{2, 3}));
    QCursor::setPos(0, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(hovered_, (Rows{2, 3, -1}));
}

TEST_F(TableHover, AButtonThatFloatsOverTheRowDoesNotEndIt) {
    QPushButton button(&window_);
    const QRect row = table_.rectOfRow(3);
    const QPoint corner = table_.viewport()->mapTo(&window_, row.topRight());
    button.setGeometry(corner.x() - 22, corner.y() + 2, 22, 22);
    button.show();
    pointAtRow(3);
    pointAt(row.topRight() + QPoint(-10, 12));
    pointAt(row.topRight() + QPoint(-8, 12));
    EXPECT_EQ(hovered_, Rows{3});
    pointAtRow(3);
    EXPECT_EQ(hovered_, Rows{3});
    pointAt(row.topRight() + QPoint(-10, 12));
    QCursor::setPos(0, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(hovered_, (Rows{3, -1}));
}

TEST_F(TableHover, TheWheelOverAButtonThatFloatsScrollsTheRows) {
    fixture_.append(200);
    table_.reloadData();
    ASSERT_TRUE(runUntil([this] { return table_.verticalScrollBar()->isVisible(); }));
    pointAtRow(3);
    QPushButton button(&window_);
    const QRect row = table_.rectOfRow(3);
    const QPoint corner = table_.viewport()->mapTo(&window_, row.topRight());
    button.setGeometry(corner.x() - 22, corner.y() + 2, 22, 22);
    button.show();
    pointAt(row.topRight() + QPoint(-10, 12));
    ASSERT_EQ(hovered_.back(), 3);
    QWheelEvent wheel(QPointF(11, 11), button.mapToGlobal(QPointF(11, 11)), {}, {0, -120},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&button, &wheel);
    EXPECT_GT(table_.verticalScrollBar()->value(), 0);
    EXPECT_GT(hovered_.back(), 3);
}

TEST_F(TableHover, AScrollUnderARestingPointerReportsTheRowThatIsThereNow) {
    fixture_.append(200);
    table_.reloadData();
    pointAtRow(3);
    hovered_.clear();
    const QPoint pointer = middleOf(3);
    table_.verticalScrollBar()->setValue(10 * table_.rectOfRow(0).height());
    ASSERT_FALSE(hovered_.empty());
    EXPECT_EQ(hovered_.back(), table_.rowAtPoint(pointer));
    EXPECT_EQ(hovered_.back(), 13);
}

TEST_F(TableHover, AScrollWithinARowReportsItAgainSinceItStandsElsewhere) {
    fixture_.append(200);
    table_.reloadData();
    pointAtRow(3);
    hovered_.clear();
    table_.verticalScrollBar()->setValue(2);
    EXPECT_EQ(hovered_, Rows{3});
}

TEST_F(TableHover, AScrollWithThePointerElsewhereReportsNoRow) {
    fixture_.append(200);
    table_.reloadData();
    QCoreApplication::processEvents();
    hovered_.clear();
    table_.verticalScrollBar()->setValue(100);
    EXPECT_EQ(hovered_, Rows{-1});
}

TEST_F(TableHover, RestsWhileRowsAreDragged) {
    fixture_.append(200);
    table_.reloadData();
    pointAtRow(3);
    WhileDragged drag([this] {
        pointAtRow(5);
        table_.verticalScrollBar()->setValue(table_.rectOfRow(0).height()); // At the list's edge.
    });
    table_.setDelegate(&drag);
    table_.selectRowIndexes({3});
    drag.hovered.clear();
    (table_.*DragStarter::start)(Qt::CopyAction);
    ASSERT_GE(drag.hovered.size(), 2U);
    EXPECT_EQ(drag.hovered.back(), 6);
    drag.hovered.pop_back();
    EXPECT_THAT(drag.hovered, testing::Each(-1));
}

TEST_F(TableHover, EndsWithTheLastRow) {
    pointAtRow(3);
    fixture_.keep(0);
    table_.reloadData();
    EXPECT_EQ(hovered_, (Rows{3, -1}));
}

TEST_F(TableHover, EndsWithTheActivityOfTheWindow) {
    pointAtRow(3);
    QWidget other;
    other.setGeometry(700, 700, 50, 50);
    showActive(other);
    EXPECT_EQ(hovered_, (Rows{3, -1}));
    pointAtRow(4);
    EXPECT_EQ(hovered_, (Rows{3, -1}));
    other.hide();
    window_.activateWindow();
    EXPECT_TRUE(runUntil([this] { return hovered_.back() == 4; }));
}

} // namespace
