// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/CDBurnerPlugin/EventLoop.h"
#include "tests/CDBurnerPlugin/views/TableRecorder.h"

#include <gmock/gmock.h>

#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

namespace {

using testing::ElementsAre;

class TableFocus : public testing::Test {
protected:
    explicit TableFocus(int rows = 3) : fixture_(rows) {
        auto *layout = new QVBoxLayout(&window_);
        layout->addWidget(field_);
        layout->addWidget(&fixture_.table);
        showActive(window_);
        field_->setFocus();
    }
    ~TableFocus() override { fixture_.table.setParent(nullptr); }

    QImage picture() { return fixture_.table.viewport()->grab().toImage(); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    QWidget window_;
    QLineEdit *field_ = new QLineEdit(&window_);
    TableFixture fixture_;
};

class EmptyTableFocus : public TableFocus {
protected:
    EmptyTableFocus() : TableFocus(0) {}
};

TEST_F(EmptyTableFocus, IsSeenAroundTheWholeList) {
    const QImage before = picture();
    key(Qt::Key_Tab);
    ASSERT_TRUE(fixture_.table.hasFocus());
    EXPECT_NE(picture(), before);
    key(Qt::Key_Backtab);
    EXPECT_EQ(picture(), before);
}

TEST_F(TableFocus, IsSeenOnARowThatIsNotSelected) {
    key(Qt::Key_Tab);
    key(Qt::Key_Down);
    const QImage selected = picture();
    key(Qt::Key_Down, Qt::ControlModifier); // The second row stays the one that is selected.
    EXPECT_THAT(fixture_.table.selectedRowIndexes(), ElementsAre(1));
    const QImage moved = picture();
    const QRect third = fixture_.table.rectOfRow(2);
    EXPECT_NE(moved.copy(third), selected.copy(third));
    // Around the row as a whole, not a cell of it.
    const int end = third.right() - 2;
    EXPECT_NE(moved.copy(end, third.y(), 2, third.height()),
              selected.copy(end, third.y(), 2, third.height()));
}

TEST_F(TableFocus, MovesByRows) {
    key(Qt::Key_Tab);
    key(Qt::Key_End);
    EXPECT_THAT(fixture_.table.selectedRowIndexes(), ElementsAre(2));
    key(Qt::Key_Right);
    EXPECT_EQ(fixture_.table.currentIndex().column(), 0);
    key(Qt::Key_Home);
    EXPECT_THAT(fixture_.table.selectedRowIndexes(), ElementsAre(0));
}

} // namespace
