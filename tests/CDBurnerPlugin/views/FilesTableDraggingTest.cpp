// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/CDBurnerPlugin/EventLoop.h"
#include "tests/CDBurnerPlugin/views/TableRecorder.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>

namespace {

struct Starter : FilesTableView {
    static constexpr auto start = &Starter::startDrag;
};

/// Holds its rows over the table while it is asked for what they carry; and there is no drag.
class HeldOver : public TableRecorder {
public:
    explicit HeldOver(std::function<void(const QMimeData &)> act) : act_(std::move(act)) {}

    bool tableViewWriteRowsWithIndexesToPasteboard(FilesTableView *table, const IndexSet &rows,
                                                   QMimeData *pasteboard) override {
        TableRecorder::tableViewWriteRowsWithIndexesToPasteboard(table, rows, pasteboard);
        act_(*pasteboard);
        return false;
    }

private:
    std::function<void(const QMimeData &)> act_;
};

class TableDrag : public testing::Test {
protected:
    TableDrag() {
        fixture_.append(5);
        table_.reloadData();
        table_.registerForDraggedTypes(
            {QStringLiteral("text/uri-list"), QLatin1String(FilesTableView::rowsMimeType)});
        showActive(table_);
        files_.setData(QStringLiteral("text/uri-list"), "file:///a");
    }

    bool enter(const QMimeData &mime, const QPoint &point) {
        QDragEnterEvent event(point, Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton,
                              Qt::NoModifier);
        QApplication::sendEvent(table_.viewport(), &event);
        return event.isAccepted() && event.dropAction() == Qt::CopyAction;
    }
    bool move(const QMimeData &mime, const QPoint &point) {
        enter(mime, point);
        QDragMoveEvent event(point, Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton,
                             Qt::NoModifier);
        QApplication::sendEvent(table_.viewport(), &event);
        return event.isAccepted() && event.dropAction() == Qt::CopyAction;
    }
    bool drop(const QMimeData &mime, const QPoint &point) {
        enter(mime, point); // No drop without.
        QDropEvent event(point, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(table_.viewport(), &event);
        return event.isAccepted();
    }
    QImage shown() { return table_.viewport()->grab().toImage(); }

    TableFixture fixture_;
    FilesTableView &table_ = fixture_.table;
    TableRecorder &recorder_ = fixture_.recorder;
    QMimeData files_;
};

TEST_F(TableDrag, TakesDropsOnlyOfRegisteredTypes) {
    EXPECT_TRUE(table_.acceptDrops());
    table_.unregisterDraggedTypes();
    EXPECT_FALSE(table_.acceptDrops());
}

TEST_F(TableDrag, TheDelegateSaysWhetherADragMayBeDropped) {
    EXPECT_TRUE(enter(files_, {20, 20}));
    EXPECT_TRUE(move(files_, {20, 40}));
    recorder_.canDrop = false;
    EXPECT_FALSE(enter(files_, {20, 20}));
    EXPECT_FALSE(move(files_, {20, 40}));
    EXPECT_FALSE(drop(files_, {20, 40}));
    EXPECT_TRUE(recorder_.dropped.empty());
}

TEST_F(TableDrag, WithoutADelegateEveryDragIsRefused) {
    table_.setDelegate(nullptr);
    EXPECT_FALSE(enter(files_, {20, 20}));
    EXPECT_FALSE(drop(files_, {20, 20}));
}

TEST_F(TableDrag, TheDelegateSaysWhetherADropWasTaken) {
    EXPECT_TRUE(drop(files_, {20, 20}));
    recorder_.takesDrop = false;
    EXPECT_FALSE(drop(files_, {20, 20}));
}

TEST_F(TableDrag, ADropBelongsAboveOrBelowARow) {
    const QRect row = table_.rectOfRow(2);
    EXPECT_EQ(table_.dropRowAt(row.top() + 2), 2);
    EXPECT_EQ(table_.dropRowAt(row.bottom() - 2), 3);
    EXPECT_EQ(table_.dropRowAt(table_.rectOfRow(4).bottom() + 30), 5);
    EXPECT_EQ(table_.dropRowAt(-5), 0);
    drop(files_, {20, row.bottom() - 2});
    EXPECT_EQ(recorder_.dropped, std::vector<qint64>{3});
}

TEST_F(TableDrag, ARefusedDragShowsNoFeedback) {
    const QImage before = shown();
    recorder_.canDrop = false;
    enter(files_, {20, 20});
    move(files_, {20, 30});
    EXPECT_EQ(shown(), before);
}

TEST_F(TableDrag, ADragThatWouldBeTakenShowsItUntilItLeaves) {
    const QImage before = shown();
    enter(files_, {20, 20});
    move(files_, {20, 30});
    EXPECT_NE(shown(), before);
    QDragLeaveEvent leave;
    QApplication::sendEvent(table_.viewport(), &leave);
    EXPECT_EQ(shown(), before);
}

TEST_F(TableDrag, TheDropLineBeginsWhereTextsDo) {
    constexpr int aboveLine = 3; // Only the knob at its beginning reaches there.
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        table_.setLayoutDirection(direction);
        const QImage before = shown();
        HeldOver drag([this, &before, direction](const QMimeData &rows) {
            const int line = table_.rectOfRow(2).top();
            move(rows, {20, line + 2});
            const QImage during = shown();
            const auto isChanged = [&](int x) {
                return during.pixel(x, line - aboveLine) != before.pixel(x, line - aboveLine);
            };
            const int knob = 5;
            const int other = during.width() - 1 - knob;
            EXPECT_EQ(isChanged(knob), direction == Qt::LeftToRight);
            EXPECT_EQ(isChanged(other), direction == Qt::RightToLeft);
        });
        table_.setDelegate(&drag);
        table_.selectRowIndexes({4});
        (table_.*Starter::start)(Qt::CopyAction);
        table_.setDelegate(&recorder_);
        QDragLeaveEvent leave;
        QApplication::sendEvent(table_.viewport(), &leave);
    }
}

TEST_F(TableDrag, RowsAreWrittenByTheDelegate) {
    const QModelIndexList cells = {table_.model()->index(1, 0), table_.model()->index(1, 1),
                                   table_.model()->index(3, 0)};
    const std::unique_ptr<QMimeData> data(table_.model()->mimeData(cells));
    ASSERT_NE(data, nullptr);
    EXPECT_TRUE(data->hasFormat(QLatin1String(FilesTableView::rowsMimeType)));
    EXPECT_EQ(recorder_.written, std::vector({IndexSet{1, 3}}));
    recorder_.canDrag = false;
    EXPECT_EQ(table_.model()->mimeData(cells), nullptr);
}

TEST_F(TableDrag, TheHoverEndsWhereADragStarts) {
    table_.selectRowIndexes({1, 3});
    table_.mouseMoved(table_.rectOfRow(1).center());
    recorder_.hovered.clear();
    recorder_.canDrag = false; // Rows are written, and there is no drag after all.
    (table_.*Starter::start)(Qt::CopyAction);
    EXPECT_EQ(recorder_.written, std::vector({IndexSet{1, 3}}));
    ASSERT_FALSE(recorder_.hovered.empty());
    EXPECT_EQ(recorder_.hovered.front(), -1);
}

TEST_F(TableDrag, RowsOfElsewhereAreNotFromHere) {
    EXPECT_FALSE(table_.isDragFromHere());
}

} // namespace
