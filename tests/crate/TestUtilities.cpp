// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/Utilities.h"

#include "tests/crate/support/FakeTool.h"

#include <gmock/gmock.h>

namespace {

using crate::Utilities;
using testing::ElementsAre;
using testing::Eq;
using testing::Optional;

const SongList oneSong{{"/a.flac", {}, {}}};

class UtilitiesTest : public testing::Test {
protected:
    FakeToolRecord first_;
    FakeToolRecord second_;
    Utilities utilities_{toolList(brokenTool(QStringLiteral("broken"), QStringLiteral("no code")),
                                  loadedTool(QStringLiteral("First"), first_),
                                  loadedTool(QStringLiteral("Second"), second_))};
};

TEST_F(UtilitiesTest, NameIsFoundInUpperOrLowerCase) {
    EXPECT_THAT(utilities_.find(QStringLiteral("sEcOnD")), Optional(Eq(2U)));
    EXPECT_EQ(utilities_.find(QStringLiteral("Sec")), std::nullopt);
    EXPECT_EQ(utilities_.find(QStringLiteral("broken")), std::nullopt);
    EXPECT_EQ(utilities_.find(QStringLiteral("First (local)")), std::nullopt);
}

TEST_F(UtilitiesTest, FilesWithoutAToolGoToTheFirstOneThatIsLoaded) {
    EXPECT_THAT(utilities_.firstLoaded(), Optional(Eq(1U)));
    EXPECT_EQ(Utilities({}).firstLoaded(), std::nullopt);
}

TEST_F(UtilitiesTest, OpeningStartsTheToolOnceAndShowsItsWindow) {
    utilities_.open(1);
    QWidget *window = utilities_.entries()[1].tool->mainWindow();
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->isVisible());
    utilities_.open(1);
    EXPECT_EQ(first_.startups, 1);
    EXPECT_EQ(second_.startups, 0);
}

TEST_F(UtilitiesTest, OpeningBringsBackAMinimizedWindow) {
    utilities_.open(1);
    QWidget *window = utilities_.entries()[1].tool->mainWindow();
    window->showMinimized();
    utilities_.open(1);
    EXPECT_FALSE(window->isMinimized());
}

TEST_F(UtilitiesTest, OpeningAToolThatIsNotLoadedDoesNothing) {
    utilities_.open(0);
    EXPECT_FALSE(utilities_.openWith(0, oneSong));
    utilities_.open(99);
    EXPECT_FALSE(utilities_.openWith(99, oneSong));
}

TEST_F(UtilitiesTest, FilesArePassedAfterTheWindowIsShown) {
    EXPECT_TRUE(utilities_.openWith(2, oneSong));
    EXPECT_THAT(second_.files, ElementsAre(oneSong));
    EXPECT_TRUE(second_.isWindowShown);
    second_.refusesFiles = true;
    EXPECT_FALSE(utilities_.openWith(2, oneSong));
}

TEST_F(UtilitiesTest, ClosingAsksEachStartedToolThroughItsWindow) {
    utilities_.open(2);
    EXPECT_TRUE(utilities_.closeAll());
    EXPECT_EQ(first_.closes, 0);
    EXPECT_EQ(second_.closes, 1);
    EXPECT_EQ(second_.shutdowns, 0);
}

TEST_F(UtilitiesTest, OneRefusalEndsTheClosing) {
    utilities_.open(1);
    utilities_.open(2);
    first_.refusesClose = true;
    EXPECT_FALSE(utilities_.closeAll());
    EXPECT_EQ(first_.closes, 1);
    EXPECT_EQ(second_.closes, 0);
    first_.refusesClose = false;
    EXPECT_TRUE(utilities_.closeAll());
}

TEST_F(UtilitiesTest, WindowThatSurvivesItsCloseIsNoRefusal) {
    first_.destroysWindowOnClose = false;
    utilities_.open(1);
    EXPECT_TRUE(utilities_.closeAll());
    utilities_.shutdownAll();
    EXPECT_EQ(first_.shutdowns, 1);
}

TEST(UtilitiesEnd, StopsStartedTools) {
    FakeToolRecord record;
    {
        Utilities utilities(toolList(loadedTool(QStringLiteral("Tool"), record)));
        utilities.open(0);
    }
    EXPECT_EQ(record.shutdowns, 1);
}

} // namespace
