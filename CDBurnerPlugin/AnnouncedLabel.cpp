// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/AnnouncedLabel.h"

#include "CDBurnerPlugin/AccessibleViews.h"

AnnouncedLabel::AnnouncedLabel(QWidget *parent) : ElidedLabel(parent) {
    // A label with a name of its own does not report each of its texts as a new one.
    setAccessibleName(QStringLiteral(" "));
}

void AnnouncedLabel::announceText() {
    if (text() == announcedText() || text().isEmpty()) {
        return;
    }
    setAccessibleName(text());
    announce(this);
}
