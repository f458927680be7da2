// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/HelpBubbleGeometry.h"

#include <algorithm>

QPoint keptOnScreen(const QRect &frame, const QRect &screen) {
    const auto kept = [](int position, int length, int start, int room) {
        return std::max(start, std::min(position, start + room - length));
    };
    return {kept(frame.x(), frame.width(), screen.x(), screen.width()),
            kept(frame.y(), frame.height(), screen.y(), screen.height())};
}
