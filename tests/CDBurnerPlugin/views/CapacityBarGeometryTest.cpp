// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/CapacityBarGeometry.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

const QRectF bounds(0, 0, 100, 18);
using Part = CapacityBarPart;

void expectPiece(const CapacityBarPiece &piece, Part part, const QRectF &target,
                 const std::optional<QRectF> &source) {
    EXPECT_EQ(piece.part, part);
    EXPECT_NEAR(piece.target.x(), target.x(), 1e-4);
    EXPECT_NEAR(piece.target.y(), target.y(), 1e-4);
    EXPECT_NEAR(piece.target.width(), target.width(), 1e-4);
    EXPECT_NEAR(piece.target.height(), target.height(), 1e-4);
    ASSERT_EQ(piece.source.has_value(), source.has_value());
    if (source) {
        EXPECT_EQ(piece.source->topLeft(), QPointF());
        EXPECT_NEAR(piece.source->width(), source->width(), 1e-4);
        EXPECT_NEAR(piece.source->height(), source->height(), 1e-4);
    }
}

void expectFull(const std::vector<CapacityBarPiece> &pieces) {
    ASSERT_EQ(pieces.size(), 1U);
    expectPiece(pieces[0], Part::threePart, bounds, std::nullopt);
}

TEST(CapacityBar, NothingIsFilledAtZero) {
    EXPECT_TRUE(capacityBarPieces(0, 1, bounds).empty());
    EXPECT_TRUE(capacityBarPieces(0, 0, bounds).empty());
    EXPECT_TRUE(capacityBarPieces(-1, -1, bounds).empty());
}

TEST(CapacityBar, AValueBeyondTheMaximumIsFull) {
    expectFull(capacityBarPieces(800, 700, bounds));
    expectFull(capacityBarPieces(1, 0, bounds));
    expectFull(capacityBarPieces(0, -1, bounds));
}

TEST(CapacityBar, TheWholeMaximumIsFull) {
    expectFull(capacityBarPieces(700, 700, bounds));
}

TEST(CapacityBar, AShareThatSinglePrecisionRoundsToOneIsFull) {
    expectFull(capacityBarPieces(1.0 - 1e-9, 1.0, bounds));
}

TEST(CapacityBar, AShareTooSmallForSinglePrecisionIsEmpty) {
    EXPECT_TRUE(capacityBarPieces(1e-60, 1.0, bounds).empty());
}

TEST(CapacityBar, NegativeAndUndefinedValuesAreEmpty) {
    EXPECT_TRUE(capacityBarPieces(-5, 10, bounds).empty());
    EXPECT_TRUE(capacityBarPieces(std::numeric_limits<double>::quiet_NaN(), 10, bounds).empty());
}

TEST(CapacityBar, UnderFivePointsOneClippedCapInTheViewsHeight) {
    const auto pieces = capacityBarPieces(4.9, 100, bounds);
    ASSERT_EQ(pieces.size(), 1U);
    expectPiece(pieces[0], Part::startCap, {0, 0, 4.9, 18}, QRectF(0, 0, 4.9, 18));
}

TEST(CapacityBar, ExactlyFivePointsAWholeCapAndAnEmptyCentre) {
    const auto pieces = capacityBarPieces(0.5, 1, QRectF(0, 0, 10, 18));
    ASSERT_EQ(pieces.size(), 2U);
    expectPiece(pieces[0], Part::startCap, {0, 0, 5, 14}, std::nullopt);
    expectPiece(pieces[1], Part::centerFill, {5, 0, 0, 14}, QRectF(0, 0, 0, 14));
}

TEST(CapacityBar, UnderTenPointsCapAndPartOfTheCentre) {
    const auto pieces = capacityBarPieces(9.9, 100, bounds);
    ASSERT_EQ(pieces.size(), 2U);
    expectPiece(pieces[0], Part::startCap, {0, 0, 5, 14}, std::nullopt);
    expectPiece(pieces[1], Part::centerFill, {5, 0, 4.9, 14}, QRectF(0, 0, 4.9, 14));
}

TEST(CapacityBar, ExactlyTenPointsThreePiecesWithAnEmptyEnd) {
    const auto pieces = capacityBarPieces(0.5, 1, QRectF(0, 0, 20, 18));
    ASSERT_EQ(pieces.size(), 3U);
    expectPiece(pieces[1], Part::centerFill, {5, 0, 5, 14}, std::nullopt);
    expectPiece(pieces[2], Part::endCap, {10, 0, 0, 14}, QRectF(0, 0, 0, 14));
}

TEST(CapacityBar, TwelvePointsEndWithTwoOfTheEndCap) {
    const auto pieces = capacityBarPieces(12, 100, bounds);
    ASSERT_EQ(pieces.size(), 3U);
    expectPiece(pieces[0], Part::startCap, {0, 0, 5, 14}, std::nullopt);
    expectPiece(pieces[1], Part::centerFill, {5, 0, 5, 14}, std::nullopt);
    expectPiece(pieces[2], Part::endCap, {10, 0, 2, 14}, QRectF(0, 0, 2, 14));
}

TEST(CapacityBar, FromFifteenPointsThreePartsInTheViewsHeight) {
    const auto pieces = capacityBarPieces(0.5, 1, QRectF(0, 0, 30, 18));
    ASSERT_EQ(pieces.size(), 1U);
    expectPiece(pieces[0], Part::threePart, {0, 0, 15, 18}, std::nullopt);
}

TEST(CapacityBar, PiecesStartAtTheBoundsOrigin) {
    const auto pieces = capacityBarPieces(12, 100, QRectF(7, 3, 100, 18));
    ASSERT_EQ(pieces.size(), 3U);
    expectPiece(pieces[2], Part::endCap, {17, 3, 2, 14}, QRectF(0, 0, 2, 14));
}

TEST(ThreePart, TheCentreTakesWhatTheCapsLeave) {
    const ThreePartTargets targets = threePartTargets({10, 0, 100, 14}, 5, 6);
    EXPECT_EQ(targets.start, QRectF(10, 0, 5, 14));
    EXPECT_EQ(targets.center, QRectF(15, 0, 89, 14));
    EXPECT_EQ(targets.end, QRectF(104, 0, 6, 14));
}

TEST(ThreePart, CapsAreCutWhereTheTargetIsTooNarrow) {
    const ThreePartTargets targets = threePartTargets({0, 0, 7, 14}, 5, 5);
    EXPECT_EQ(targets.start.width(), 5);
    EXPECT_EQ(targets.center.width(), 0);
    EXPECT_EQ(targets.end, QRectF(5, 0, 2, 14));
}

} // namespace
