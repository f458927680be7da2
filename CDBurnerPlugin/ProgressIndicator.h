// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QProgressBar>

/// A bar from 0 to 1 that moves in steps finer than its pixels, tells assistive technologies of
/// each tenth of the way only, and shows that something goes on while there is nothing to measure.
/// Main thread.
class ProgressIndicator : public QProgressBar {
    Q_OBJECT

public:
    explicit ProgressIndicator(QWidget *parent = nullptr);

    /// Values outside of 0 to 1 are drawn as the nearer end, one that is no number as 0.
    void setProgress(double progress);

    /// The whole percents that are reached: 0 to 100.
    int percent() const;

    /// Draws the style's moving picture of work without a measure in place of the value.
    void setBusy(bool isBusy);
    bool isBusy() const { return isBusy_; }

protected:
    void initStyleOption(QStyleOptionProgressBar *option) const override;

private:
    int step_ = 0;
    bool isBusy_ = false;
};
