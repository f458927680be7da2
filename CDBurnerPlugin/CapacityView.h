// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

#include <cstdint>

/// The horizontal bar that shows how full the disc will be: a track over its whole width and a blue
/// part whose share of the width is the value's share of the maximum. Knows nothing of discs and
/// units. Set the maximum first, then the value. Main thread.
///
/// Its six pictures are loaded when the first bar is made and kept for the life of the process. A
/// missing picture is left out.
class CapacityView : public QWidget {
    Q_OBJECT

public:
    explicit CapacityView(QWidget *parent = nullptr);

    double maxValue() const { return _maxValue; }
    double doubleValue() const { return _doubleValue; }
    /// The value that is there already changes nothing and repaints nothing.
    void setMaxValue(double maxValue);
    void setDoubleValue(double doubleValue);
    /// The value's share of the maximum in whole percents, 0 to 100, as it is told to assistive
    /// technologies, which hear of each change.
    int percent() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Draws the whole bar. `scale` is the painter's device pixels a point, which chooses between
    /// the pictures for 1x and 2x.
    void drawRect(QPainter &painter, double scale) const;

    /// How often a repaint was asked for.
    std::uint64_t displayRequests() const { return displayRequests_; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void setNeedsDisplay();
    void reportPercent();

    double _doubleValue = 0.0;
    double _maxValue = 0.0;
    int reportedPercent_ = 0;
    std::uint64_t displayRequests_ = 0;
};
