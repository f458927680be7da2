// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

/// What makes a tool tip read as this text, whichever signs are in it: a tip takes some texts for
/// markup, and others not. A long one breaks its lines. No tip for an empty text.
inline QString toolTipText(const QString &text) {
    return text.isEmpty() ? QString()
                          : QStringLiteral("<p style=\"white-space:pre-wrap\">%1</p>")
                                .arg(text.toHtmlEscaped());
}
