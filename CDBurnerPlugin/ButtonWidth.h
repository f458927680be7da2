// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFontMetrics>
#include <QString>

/// The width in points below which a button looks too narrow for its title: some styles leave
/// hardly a point beside it.
inline int comfortableButtonWidth(const QFontMetrics &metrics, const QString &title) {
    return metrics.size(Qt::TextShowMnemonic, title).width() + 2 * metrics.height();
}
