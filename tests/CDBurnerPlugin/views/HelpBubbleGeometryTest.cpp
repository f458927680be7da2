// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/HelpBubbleGeometry.h"

#include <gtest/gtest.h>

namespace {

TEST(HelpBubble, StandsBesideTheBoxUnderItsButton) {
    EXPECT_EQ(helpBubbleTopLeft({20, 40, 300, 80}, 12, 250), QPointF(104, 52));
}

TEST(HelpBubble, WithNothingToStandBesideItUsesZeros) {
    EXPECT_EQ(helpBubbleTopLeft({}, 0, 250), QPointF(-216, 0));
}

TEST(HelpBubble, RightToLeftItStandsMirrored) {
    // In a window 500 wide, the mirrored box at 180 and its bubble at 146: the mirror of 104.
    const QPointF mirrored = mirroredHelpBubbleTopLeft({180, 40, 300, 80}, 12);
    EXPECT_EQ(500 - mirrored.x() - 250, 104);
    EXPECT_EQ(mirrored.y(), 52);
}

TEST(HelpBubble, IsKeptOnItsScreen) {
    const QRect screen(1920, 0, 1000, 800);
    EXPECT_EQ(keptOnScreen({2000, 100, 250, 300}, screen), QPoint(2000, 100));
    EXPECT_EQ(keptOnScreen({2800, 700, 250, 300}, screen), QPoint(2670, 500));
    EXPECT_EQ(keptOnScreen({1900, -20, 250, 300}, screen), QPoint(1920, 0));
    EXPECT_EQ(keptOnScreen({2000, 100, 2500, 3000}, screen), QPoint(1920, 0));
}

} // namespace
