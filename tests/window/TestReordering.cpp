// SPDX-License-Identifier: GPL-2.0-or-later
// Rows dragged inside the list.
#include "tests/window/WindowTest.h"

#include <algorithm>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class DesktopReordering : public WindowTest {
protected:
    /// In the row's lower half: what is dropped here goes below it.
    QPoint below(int row) {
        const QRect rect = rectOfRow(row);
        return {pointInRow(row).x(), rect.bottom() - 4};
    }
    QPoint above(int row) {
        const QRect rect = rectOfRow(row);
        return {pointInRow(row).x(), rect.top() + 4};
    }
    void drag(int row, const QPoint &to) {
        dragInHost(pointInRow(row), to, Answer::taken);
        dropInHost();
    }
    void selectFromTo(int first, int last) {
        Hand::clickAt(pointInRow(first));
        Hand::keyDown("shift");
        Hand::clickAt(pointInRow(last));
        Hand::keyUp("shift");
    }
    /// The pixels along the border between a row and the one below it, in their right half: the
    /// picture of what is dragged hangs from the pointer in the left one.
    std::vector<QColor> borderBelow(int row) {
        const QRect rect = rectOfRow(row);
        return desktop_.pixels({rect.center().x(), rect.bottom() + 1, rect.width() / 2 - 40, 1});
    }
};

TEST_F(DesktopReordering, RowDroppedBelowAnotherStandsThereAndIsSelected) {
    startWithSongs(4);
    drag(0, below(2));
    waitForList({"song 02", "song 03", "song 01", "song 04"});
    waitForSelection({2});
}

TEST_F(DesktopReordering, RowDroppedAboveAnotherStandsThere) {
    startWithSongs(4);
    drag(3, above(1));
    waitForList({"song 01", "song 04", "song 02", "song 03"});
    waitForSelection({1});
}

TEST_F(DesktopReordering, SelectedRowsMoveTogether) {
    startWithSongs(5);
    selectFromTo(1, 2);
    waitForSelection({1, 2});
    drag(1, below(4));
    waitForList({"song 01", "song 04", "song 05", "song 02", "song 03"});
    waitForSelection({3, 4});
}

TEST_F(DesktopReordering, RowDroppedInTheEmptyPartGoesToTheEnd) {
    startWithSongs(3);
    const QRect list = rectOf("_filesTableView");
    drag(0, {list.center().x(), list.bottom() - 10});
    waitForList({"song 02", "song 03", "song 01"});
    waitForSelection({2});
}

TEST_F(DesktopReordering, RowDroppedOnItselfStaysAndIsSelected) {
    startWithSongs(3);
    drag(1, below(1));
    EXPECT_THAT(list(), ElementsAre("song 01", "song 02", "song 03"));
    waitForSelection({1});
}

TEST_F(DesktopReordering, LineShowsWhereRowsWouldLandAndGoesWithTheDrop) {
    startWithSongs(4);
    const auto before = borderBelow(2);
    dragInHost(pointInRow(0), below(2), Answer::taken);
    waitUntil("a line of one colour shows on the border", [this, &before] {
        const auto during = borderBelow(2);
        const auto lineColour = during.front();
        return lineColour != before.front() &&
               std::count(during.begin(), during.end(), lineColour) ==
                   static_cast<std::ptrdiff_t>(during.size());
    });
    dragOnTo(below(1), Answer::taken);
    waitUntil("the line has moved on", [this, &before] { return borderBelow(2) == before; });
    dropInHost();
    waitForList({"song 02", "song 01", "song 03", "song 04"});
    waitUntil("no line is left", [this, &before] { return borderBelow(2) == before; });
}

TEST_F(DesktopReordering, EscapeDuringTheDragLeavesTheListAlone) {
    startWithSongs(3);
    dragInHost(pointInRow(0), below(2), Answer::taken);
    Hand::keys({"Escape"});
    waitUntil("the drag is over", [this] { return state()["cursor"].toInt() == -1; });
    Hand::release();
    EXPECT_THAT(list(), ElementsAre("song 01", "song 02", "song 03"));
}

} // namespace
