// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QRectF>

#include <optional>
#include <vector>

/// Which of the bar's three pictures a piece shows; `threePart` is all of them, the middle one
/// stretched between the caps.
enum class CapacityBarPart { startCap, centerFill, endCap, threePart };

/// One piece of the filled part of the bar, in points, y upwards.
struct CapacityBarPiece {
    CapacityBarPart part = CapacityBarPart::threePart;
    QRectF target;
    /// The part of the picture to show, from its lower left corner; nothing for the whole picture.
    std::optional<QRectF> source;

    bool operator==(const CapacityBarPiece &) const = default;
};

/// The pieces that show `value` of `maximum` in a bar with these bounds, from left to right; none
/// for an empty bar. A value beyond the maximum is a full bar. The caps are 5 points wide and 14
/// high; a fill too short for both caps is cut from the left parts of the pictures.
std::vector<CapacityBarPiece> capacityBarPieces(double value, double maximum, const QRectF &bounds);

/// Where the three pictures of a three-part draw into `target` go: both caps at their own width
/// (cut where the target is too narrow for both), the centre between them.
struct ThreePartTargets {
    QRectF start;
    QRectF center;
    QRectF end;
};
ThreePartTargets threePartTargets(const QRectF &target, double startWidth, double endWidth);
