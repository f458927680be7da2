// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/CapacityBarGeometry.h"

#include <algorithm>

namespace {

constexpr double capWidth = 5.0;
constexpr double capHeight = 14.0;

std::vector<CapacityBarPiece> fullBar(const QRectF &bounds) {
    return {{CapacityBarPart::threePart, bounds, std::nullopt}};
}

} // namespace

std::vector<CapacityBarPiece> capacityBarPieces(double value, double maximum,
                                                const QRectF &bounds) {
    const float share = maximum > 0.0 ? static_cast<float>(value / maximum) : 0.0F;
    // The second test also holds for a maximum of zero or less, where the share says nothing.
    if (share >= 1.0F || value > maximum) {
        return fullBar(bounds);
    }
    if (!(share > 0.0F)) {
        return {};
    }
    const double x = bounds.x();
    const double y = bounds.y();
    const double filled = static_cast<double>(share) * bounds.width();
    const CapacityBarPiece wholeCap = {
        CapacityBarPart::startCap, {x, y, capWidth, capHeight}, std::nullopt};
    if (filled < capWidth) {
        return {{CapacityBarPart::startCap,
                 {x, y, filled, bounds.height()},
                 QRectF(0.0, 0.0, filled, bounds.height())}};
    }
    if (filled < 2 * capWidth) {
        const double width = filled - capWidth;
        return {wholeCap,
                {CapacityBarPart::centerFill,
                 {x + capWidth, y, width, capHeight},
                 QRectF(0.0, 0.0, width, capHeight)}};
    }
    if (filled < 3 * capWidth) {
        const double width = filled - 2 * capWidth;
        return {wholeCap,
                {CapacityBarPart::centerFill, {x + capWidth, y, capWidth, capHeight}, std::nullopt},
                {CapacityBarPart::endCap,
                 {x + 2 * capWidth, y, width, capHeight},
                 QRectF(0.0, 0.0, width, capHeight)}};
    }
    return {{CapacityBarPart::threePart, {x, y, filled, bounds.height()}, std::nullopt}};
}

ThreePartTargets threePartTargets(const QRectF &target, double startWidth, double endWidth) {
    const double start = std::min(startWidth, target.width());
    const double end = std::min(endWidth, target.width() - start);
    ThreePartTargets targets = {target, target, target};
    targets.start.setWidth(start);
    targets.center.setLeft(target.left() + start);
    targets.center.setRight(target.right() - end);
    targets.end.setLeft(target.right() - end);
    return targets;
}
