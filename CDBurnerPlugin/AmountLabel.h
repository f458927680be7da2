// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLabel>

/// One line of plain text whose colour says something and is made for a light ground: dark green,
/// red or grey. In a dark theme it stands on a light plate, in the colours of the list. Main
/// thread.
class AmountLabel : public QLabel {
    Q_OBJECT

public:
    /// What the plate needs beside the text: points.
    static constexpr int sideMargin = 6;

    using QLabel::QLabel;

    /// The plate's place; empty where there is none.
    QRect plate() const;

protected:
    void paintEvent(QPaintEvent *event) override;
};
