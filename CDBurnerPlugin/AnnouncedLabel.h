// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "CDBurnerPlugin/ElidedLabel.h"

/// A line whose text changes too often to be read out each time. Screen readers are told of a new
/// text when it is announced, which is the line's name for them until the next announcement; what
/// it shows meanwhile is its description. Main thread.
class AnnouncedLabel : public ElidedLabel {
    Q_OBJECT

public:
    explicit AnnouncedLabel(QWidget *parent = nullptr);

    /// Has a screen reader say the present text, unless it is the one that was announced last.
    void announceText();

    /// The text that was announced last; at first a blank.
    QString announcedText() const { return accessibleName(); }
};
