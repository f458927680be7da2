// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

/// The background of the help bubble: a top, a middle that is stretched, and a bottom picture over
/// a transparent ground. Nothing is drawn if one of them is missing. Right-to-left layouts see it
/// mirrored. Main thread.
class VXHelpView : public QWidget {
    Q_OBJECT

public:
    // What the top picture's pointer needs: points.
    static constexpr int pointerHeight = 10;
    static constexpr int pointerFromEnd = 58; ///< From the trailing edge to the pointer's tip.

    /// Loads the pictures anew, for all bubbles.
    explicit VXHelpView(QWidget *parent = nullptr);

    /// `scale` is the painter's device pixels a point.
    void drawRect(QPainter &painter, double scale) const;

    /// What of the view the bubble covers, to the pixel: points. For a window that cannot be
    /// translucent.
    QRegion shape() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void draw(QPainter &painter, double scale) const;
};
