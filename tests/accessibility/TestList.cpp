// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/accessibility/AccessibilityTest.h"
#include "tests/accessibility/AccessibleEvents.h"
#include "tests/accessibility/Waiting.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class AccessibleList : public AccessibilityTest {
protected:
    void SetUp() override {
        start({medium("short.wav"), medium("song.wav"), medium("song-mono.flac")}, 3);
        press("Tab"); // From the name field to the help button,
        press("Tab"); // and to the list.
        ASSERT_TRUE(waitUntil("focus in the list",
                              [this] { return list().hasState(ATSPI_STATE_FOCUSED); }));
    }
};

TEST_F(AccessibleList, RowsReadSongAndLength) {
    EXPECT_EQ(list().cellName(0, 0), "short, 0:04");
    EXPECT_EQ(list().cellName(1, 0), "song, 0:05");
    EXPECT_EQ(list().cellName(1, 1), "0:05");
}

TEST_F(AccessibleList, ArrowKeysReadRowAfterRow) {
    AccessibleEvents focus("object:state-changed:focused");
    press("Down");
    ASSERT_TRUE(waitUntil("the second row", [&focus] {
        return !focus.all().empty() && focus.all().back().name == "song, 0:05";
    }));
    EXPECT_THAT(list().selectedRows(), ElementsAre(1));
    press("Right"); // There is nothing beside a row.
    press("Down");
    waitUntil("the third row", [this] { return list().selectedRows() == std::vector<int>{2}; });
    EXPECT_EQ(focus.all().back().name, list().cellName(2, 0));
}

TEST_F(AccessibleList, SelectionIsSeenAndCanBeMade) {
    press("ctrl+a");
    waitUntil("all rows", [this] { return list().selectedRows().size() == 3; });
    press("Down");
    waitUntil("one row", [this] { return list().selectedRows() == std::vector<int>{1}; });
    EXPECT_TRUE(list().selectRow(2));
    EXPECT_THAT(list().selectedRows(), ElementsAre(1, 2));
    press("Home"); // Of the list, not of the row.
    waitUntil("the first row", [this] { return list().selectedRows() == std::vector<int>{0}; });
}

TEST_F(AccessibleList, DeleteKeyTakesTheRowOutOfWhatIsSeen) {
    press("Down");
    press("Delete");
    waitUntil("two rows", [this] { return list().rowCount() == 2; });
    EXPECT_EQ(list().cellName(0, 0), "short, 0:04");
    EXPECT_EQ(list().cellName(1, 0), "song-mono, 0:05");
    EXPECT_THAT(list().selectedRows(), ElementsAre(1));
}

} // namespace
