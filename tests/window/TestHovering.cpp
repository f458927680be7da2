// SPDX-License-Identifier: GPL-2.0-or-later
// The delete button that floats over the row under the pointer.
#include "tests/window/WindowTest.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class DesktopHovering : public WindowTest {
protected:
    /// The row that the button stands over; -1 while it is hidden.
    int buttonRow() {
        const QJsonObject button = widget("_btnDelete");
        if (!button["visible"].toBool()) {
            return -1;
        }
        const int y = button["y"].toInt() + button["h"].toInt() / 2;
        const auto rows = static_cast<int>(list().size());
        for (int row = 0; row < rows; ++row) {
            const QRect rect = rectOfRow(row);
            if (y >= rect.top() && y <= rect.bottom()) {
                return row;
            }
        }
        return rows;
    }
    void waitForButton(int row) {
        EXPECT_TRUE(eventually([&] { return buttonRow() == row; }))
            << buttonRow() << " instead of " << row;
    }
    int shows() { return state()["shows"].toInt(); }
    int hides() { return state()["hides"].toInt(); }
};

TEST_F(DesktopHovering, ButtonComesOverTheRowUnderThePointer) {
    startWithSongs(3);
    EXPECT_EQ(buttonRow(), -1);
    Hand::moveTo(pointInRow(1));
    waitForButton(1);
    const QRect row = rectOfRow(1);
    const QRect button = rectOf("_btnDelete");
    EXPECT_EQ(button.size(), QSize(22, 22));
    EXPECT_EQ(button.right(), row.right());
    EXPECT_LE(std::abs(button.center().y() - row.center().y()), 1);
    Hand::moveTo(pointInRow(2));
    waitForButton(2);
}

TEST_F(DesktopHovering, ButtonGoesWithThePointer) {
    startWithSongs(3);
    Hand::moveTo(pointInRow(1));
    waitForButton(1);
    Hand::moveTo(middleOf("_capacityView"));
    waitForButton(-1);
    Hand::moveTo(pointInRow(1));
    waitForButton(1);
    Hand::moveTo({pointInRow(1).x(), rectOf("_filesTableView").bottom() - 10}); // Below the rows.
    waitForButton(-1);
}

TEST_F(DesktopHovering, ButtonDoesNotFlickerWhenThePointerEntersIt) {
    startWithSongs(3);
    Hand::moveTo(pointInRow(1));
    waitForButton(1);
    const int shown = shows();
    const int hidden = hides();
    const QRect button = rectOf("_btnDelete");
    for (int x = button.left() - 6; x <= button.right() - 1; x += 2) {
        Hand::moveTo({x, button.center().y()});
    }
    Hand::moveTo(pointInRow(2)); // What came before has been dealt with when this has.
    waitForButton(2);
    EXPECT_EQ(shows(), shown);
    EXPECT_EQ(hides(), hidden);
}

TEST_F(DesktopHovering, ClickRemovesTheRowAndNotTheSelectedOnes) {
    startWithSongs(4);
    Hand::clickAt(pointInRow(3));
    waitForSelection({3});
    Hand::moveTo(pointInRow(1));
    waitForButton(1);
    Hand::clickAt(middleOf("_btnDelete"));
    waitForList({"song 01", "song 03", "song 04"});
    waitForButton(1);
}

TEST_F(DesktopHovering, TwoClicksOnTheSpotRemoveTwoRows) {
    startWithSongs(4);
    Hand::moveTo(pointInRow(1));
    waitForButton(1);
    Hand::clickAt(middleOf("_btnDelete"));
    waitForList({"song 01", "song 03", "song 04"});
    Hand::clickAt(middleOf("_btnDelete"));
    waitForList({"song 01", "song 04"});
}

TEST_F(DesktopHovering, ClickOverTheLastRowHidesTheButton) {
    startWithSongs(2);
    Hand::moveTo(pointInRow(1));
    waitForButton(1);
    Hand::clickAt(middleOf("_btnDelete"));
    waitForList({"song 01"});
    waitForButton(-1);
}

TEST_F(DesktopHovering, ScrollUnderTheRestingPointerMovesTheButtonToTheRowBelowIt) {
    startWithSongs(40);
    const QPoint place = pointInRow(2);
    Hand::moveTo(place);
    waitForButton(2);
    Hand::wheel(1);
    waitUntil("the list has scrolled", [&] { return pointInRow(2).y() < place.y(); });
    waitUntil("the button stands over the row under the pointer",
              [&] { return rectOfRow(buttonRow()).contains(place); });
    const std::string under = list()[static_cast<std::size_t>(buttonRow())];
    Hand::clickAt(middleOf("_btnDelete"));
    waitUntil("a row is gone", [this] { return list().size() == 39; });
    EXPECT_THAT(list(), testing::Not(testing::Contains(under)));
}

TEST_F(DesktopHovering, OnlyTheActiveWindowHasTheButton) {
    startWithSongs(3);
    startNeighbour();
    Hand::moveTo(pointInRow(1));
    waitForButton(1);
    const auto neighbour = static_cast<std::uint32_t>(neighbour_->ask()["id"].toInteger());
    Hand::run({"windowactivate", std::to_string(neighbour)});
    waitForButton(-1);
    Hand::moveTo(pointInRow(2));
    Hand::moveTo(pointInRow(0));
    waitUntil("the neighbour is active", [this] { return neighbour_->ask()["active"].toBool(); });
    EXPECT_EQ(buttonRow(), -1);
    Hand::run({"windowactivate", std::to_string(windowId("MainWindow"))});
    waitForButton(0); // Without the pointer having moved again.
}

TEST_F(DesktopHovering, ClickOnTheButtonOfAListThatWasEmptiedDoesNothing) {
    startWithSongs(2);
    Hand::clickAt(pointInRow(0));
    waitForButton(0);
    Hand::keys({"ctrl+a", "Delete"});
    waitForList({});
    if (isVisible("_btnDelete")) {
        Hand::clickAt(middleOf("_btnDelete"));
    }
    waitUntil("the picture is back", [this] { return isVisible("_dragImageView"); });
    EXPECT_THAT(list(), ElementsAre());
}

TEST_F(DesktopHovering, DeleteKeyBringsTheButtonToTheRowThatMovedUp) {
    startWithSongs(4);
    Hand::clickAt(pointInRow(1));
    waitForSelection({1});
    Hand::keys({"Delete"});
    waitForList({"song 01", "song 03", "song 04"});
    waitForSelection({1});
    waitForButton(1);
}

} // namespace
