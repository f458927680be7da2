// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/VXStringFormatter.h"

#include <gtest/gtest.h>

namespace {

Edit edit(const QString &proposed, const QString &original, qsizetype location, qsizetype length) {
    // The caret of a proposal stands behind what was put in.
    const qsizetype tail = original.size() - location - length;
    return {proposed, proposed.size() - tail, 0, original, location, length};
}

VXStringFormatter limitedTo(std::int32_t length) {
    VXStringFormatter formatter;
    formatter.setMaximumLength(length);
    return formatter;
}

void expectCut(Edit proposal, const QString &text, qsizetype caret) {
    EXPECT_FALSE(limitedTo(6).isPartialStringValid(proposal));
    EXPECT_EQ(proposal.text, text);
    EXPECT_EQ(proposal.selectionLocation, caret);
    EXPECT_EQ(proposal.selectionLength, 0);
}

TEST(VolumeName, ALetterTypedIntoTheMiddleOfAFullTextIsLost) {
    expectCut(edit(QStringLiteral("abxcdef"), QStringLiteral("abcdef"), 2, 0),
              QStringLiteral("abcdef"), 2);
}

TEST(VolumeName, APasteIntoTheMiddleIsCutToWhatFits) {
    expectCut(edit(QStringLiteral("abXYZcd"), QStringLiteral("abcd"), 2, 0),
              QStringLiteral("abXYcd"), 4);
}

TEST(VolumeName, AReplacedSelectionIsCutToWhatFits) {
    expectCut(edit(QStringLiteral("aWXYZdef"), QStringLiteral("abcdef"), 1, 2),
              QStringLiteral("aWXdef"), 3);
}

TEST(VolumeName, APasteAtTheEndIsRefusedWhole) {
    Edit proposal = edit(QStringLiteral("abcdeXY"), QStringLiteral("abcde"), 5, 0);
    EXPECT_FALSE(limitedTo(6).isPartialStringValid(proposal));
    EXPECT_EQ(proposal.text, QStringLiteral("abcdeXY"));
    EXPECT_EQ(proposal.selectionLocation, 7);
}

TEST(VolumeName, WhatFitsIsAcceptedUnchanged) {
    const VXStringFormatter formatter;
    EXPECT_EQ(formatter.maximumLength(), 50);
    const QString full(50, u'a');
    Edit atLimit = edit(full, full.left(49), 49, 0);
    EXPECT_TRUE(formatter.isPartialStringValid(atLimit));
    EXPECT_EQ(atLimit.text, full);
    Edit shorter = edit(full.left(10), full, 0, 40);
    EXPECT_TRUE(formatter.isPartialStringValid(shorter));
    Edit beyond = edit(full + u'b', full, 50, 0);
    EXPECT_FALSE(formatter.isPartialStringValid(beyond));
}

TEST(VolumeName, TheLimitIsFiftyAgainOnceTheFormIsBuilt) {
    VXStringFormatter formatter = limitedTo(3);
    EXPECT_EQ(formatter.maximumLength(), 3);
    formatter.awakeFromNib();
    EXPECT_EQ(formatter.maximumLength(), 50);
}

TEST(VolumeName, ANegativeLimitIsNone) {
    Edit proposal = edit(QString(1000, u'a'), {}, 0, 0);
    EXPECT_TRUE(limitedTo(-1).isPartialStringValid(proposal));
}

TEST(VolumeName, ATailLongerThanTheLimitIsKeptWithoutReadingOutside) {
    expectCut(edit(QStringLiteral("Xabcdefghij"), QStringLiteral("abcdefghij"), 0, 0),
              QStringLiteral("abcdefghij"), 0);
}

TEST(VolumeName, ACutNeverPartsASurrogatePair) {
    // Two discs of two units each, where only three units fit.
    expectCut(edit(QStringLiteral("a\U0001F4BF\U0001F4BFdef"), QStringLiteral("abdef"), 1, 1),
              QStringLiteral("a\U0001F4BFdef"), 3);
    const VXStringFormatter five = limitedTo(5);
    Edit proposal = edit(QStringLiteral("a\U0001F4BF\U0001F4BFd"), QStringLiteral("abd"), 1, 1);
    EXPECT_FALSE(five.isPartialStringValid(proposal));
    EXPECT_EQ(proposal.text, QStringLiteral("a\U0001F4BFd"));
    EXPECT_EQ(proposal.selectionLocation, 3);
}

} // namespace
