// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/BurnListGeometry.h"
#include "CDBurnerPlugin/RowIndexSetCodec.h"

#include <gtest/gtest.h>

TEST(DeleteButtonFrame, StandsAtTheRightEndCentredOnTheRow) {
    // A row 400 wide and 30 high, its top left corner 500 points above the window's lower edge.
    EXPECT_EQ(deleteButtonFrame({400, 30}, {10, 500}, 22), QRectF(388, 474, 22, 22));
}

TEST(DeleteButtonFrame, IsCentredOnARowThatIsLowerThanIt) {
    EXPECT_EQ(deleteButtonFrame({400, 16}, {0, 100}, 22), QRectF(378, 81, 22, 22));
}

TEST(DeleteButtonFrame, HangsBelowTheCornerOfARowThatIsNotThere) {
    EXPECT_EQ(deleteButtonFrame({0, 0}, {10, 500}, 22), QRectF(-12, 489, 22, 22));
}

TEST(DeleteButtonFrame, StandsAtTheLeftEndWhereRowsRunFromRightToLeft) {
    EXPECT_EQ(mirroredDeleteButtonFrame({400, 30}, {10, 500}, 22), QRectF(10, 474, 22, 22));
}

TEST(RowsAfterMove, StandWhereTheBlockLands) {
    EXPECT_EQ(rowsAfterMove({1, 2}, 5), (IndexSet{3, 4}));
    EXPECT_EQ(rowsAfterMove({4, 5}, 1), (IndexSet{1, 2}));
    EXPECT_EQ(rowsAfterMove({3}, 3), IndexSet{2});
    EXPECT_EQ(rowsAfterMove({3}, 4), IndexSet{3});
    EXPECT_EQ(rowsAfterMove({1, 6}, 3), (IndexSet{3, 4}));
    EXPECT_EQ(rowsAfterMove({}, 3), IndexSet{});
}

TEST(RowsWithinList, StayTogetherAtTheEndThatTheyStandBeyond) {
    EXPECT_EQ(rowsWithinList({-1}, 3), IndexSet{0});
    EXPECT_EQ(rowsWithinList({-1, 0}, 3), (IndexSet{0, 1}));
    EXPECT_EQ(rowsWithinList({8, 9, 10, 11}, 10), (IndexSet{6, 7, 8, 9}));
    EXPECT_EQ(rowsWithinList({1, 2}, 3), (IndexSet{1, 2}));
    EXPECT_EQ(rowsWithinList({}, 3), IndexSet{});
}

TEST(RowAfterRemoval, IsTheOneThatMovedUpOrTheNewLast) {
    EXPECT_EQ(rowAfterRemoval({1, 2}, 6, 4), 1);
    EXPECT_EQ(rowAfterRemoval({4, 5}, 6, 4), 3);
    EXPECT_EQ(rowAfterRemoval({0, 5}, 6, 4), 0);
}

TEST(RowAfterRemoval, OfAnEmptyListStaysTheFirstRemoved) {
    EXPECT_EQ(rowAfterRemoval({0, 1}, 2, 0), 0);
    EXPECT_EQ(rowAfterRemoval({1}, 2, 0), 1);
}

TEST(RowIndexSetCodec, RowsComeBackAsTheyWere) {
    const IndexSet rows = {0, 23, 24, 255, 256, 70000};
    EXPECT_EQ(decodeRowIndexSet(encodeRowIndexSet(rows), 70001), rows);
    EXPECT_EQ(decodeRowIndexSet(encodeRowIndexSet({}), 1), IndexSet{});
}

TEST(RowIndexSetCodec, RowsThatDoNotExistAreLeftOut) {
    EXPECT_EQ(decodeRowIndexSet(encodeRowIndexSet({1, 2, 3}), 3), (IndexSet{1, 2}));
}

TEST(RowIndexSetCodec, DataThatIsCutShortIsNoData) {
    const QByteArray data = encodeRowIndexSet({1, 300, 70000});
    for (qsizetype length = 0; length < data.size(); ++length) {
        EXPECT_EQ(decodeRowIndexSet(data.first(length), 100000), std::nullopt) << length;
    }
}

TEST(RowIndexSetCodec, OtherShapesAreNoData) {
    EXPECT_EQ(decodeRowIndexSet(encodeRowIndexSet({1}) + '\0', 9), std::nullopt) << "more behind";
    EXPECT_EQ(decodeRowIndexSet("\xa1\x01\x02", 9), std::nullopt) << "a map";
    EXPECT_EQ(decodeRowIndexSet("\x81\x20", 9), std::nullopt) << "a negative number";
    EXPECT_EQ(decodeRowIndexSet("\x81\x61x", 9), std::nullopt) << "a text";
    EXPECT_EQ(decodeRowIndexSet("\x81\x81\x01", 9), std::nullopt) << "nested";
    EXPECT_EQ(decodeRowIndexSet("\x9f\x01\xff", 9), std::nullopt) << "no length";
    EXPECT_EQ(decodeRowIndexSet("junk", 9), std::nullopt);
    EXPECT_EQ(decodeRowIndexSet(QByteArray("\x9b\xff\xff\xff\xff\xff\xff\xff\xff", 9), 9),
              std::nullopt)
        << "an absurd length";
}

TEST(RowIndexSetCodec, MoreThanTheListCouldNeedIsNotRead) {
    EXPECT_EQ(decodeRowIndexSet(QByteArray(1000, '\x81'), 3), std::nullopt);
}
