// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/BurnList.h"

#include <gmock/gmock.h>

using namespace scorch;
using testing::IsEmpty;

namespace {

/// Items "a", "b", "c" … in a list.
class BurnListTest : public testing::Test {
protected:
    void fill(int count) {
        for (int index = 0; index < count; ++index) {
            auto item = std::make_shared<AudioItem>();
            item->displayName = std::string(1, static_cast<char>('a' + index));
            list_.append(item);
        }
    }
    std::string text() const {
        std::string names;
        for (const ItemRef &item : list_.items()) {
            names += item->displayName;
        }
        return names;
    }

    BurnList list_;
};

struct Move {
    IndexSet rows;
    std::int64_t destination;
    const char *result;
};

} // namespace

TEST_F(BurnListTest, AMoveLandsAtTheRowOrAsManyRowsBefore) {
    const std::vector<Move> moves = {
        {{3, 4}, 1, "adebc"}, // Up: the block starts at the row.
        {{0, 1}, 4, "cdabe"}, // Down: it ends before the row.
        {{0, 1}, 5, "cdeab"},
        {{4}, 0, "eabcd"},
        {{0, 4}, 2, "bcaed"},
        {{1, 3}, 3, "abdce"}, // The largest does not pass the row.
        {{2}, 2, "acbde"},
        {{0, 4}, 4, "bcaed"},
        {{0}, 0, "abcde"},
        {{4}, 5, "abcde"},
        {{3}, 9, "abced"},
        {{3}, -4, "dabce"},
        {{0, 1, 2, 3, 4}, 3, "abcde"},
    };
    for (const Move &move : moves) {
        list_.clear();
        fill(5);
        list_.move(move.rows, move.destination);
        EXPECT_EQ(text(), move.result) << move.destination;
    }
}

TEST_F(BurnListTest, RowsThatDoNotExistAreNotMoved) {
    fill(4);
    list_.move({-1, 2, 4, 99}, 0);
    EXPECT_EQ(text(), "cabd");
    list_.move({7}, 0);
    list_.move({}, 0);
    EXPECT_EQ(text(), "cabd");
}

TEST_F(BurnListTest, RemovesWhatIsInTheListInItsOrder) {
    fill(5);
    const auto stranger = std::make_shared<AudioItem>();
    const auto removed = list_.remove({list_.at(3), nullptr, list_.at(1), stranger, list_.at(3)});
    EXPECT_EQ(text(), "ace");
    ASSERT_EQ(removed.size(), 2U);
    EXPECT_EQ(removed[0]->displayName, "b");
    EXPECT_EQ(removed[1]->displayName, "d");
    EXPECT_THAT(list_.remove({removed[0]}), IsEmpty());
}

TEST_F(BurnListTest, ThereIsNothingOutsideTheList) {
    fill(2);
    EXPECT_EQ(list_.at(1)->displayName, "b");
    EXPECT_EQ(list_.at(2), nullptr);
    EXPECT_EQ(list_.at(-1), nullptr);
}

TEST_F(BurnListTest, HugeListsAreChangedInOnePass) {
    // Quadratic work on this many items would take minutes.
    for (int index = 0; index < 200'000; ++index) {
        list_.append(std::make_shared<AudioItem>());
    }
    std::vector<BurnItemRef> everySecond;
    IndexSet rows;
    for (std::int64_t index = 0; index < list_.count(); index += 2) {
        everySecond.push_back(list_.at(index));
        rows.insert(index);
    }
    list_.move(rows, 100);
    EXPECT_EQ(list_.at(100), everySecond[0]);
    EXPECT_EQ(list_.remove(everySecond).size(), 100'000U);
    EXPECT_EQ(list_.count(), 100'000);
}
