// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/ProgressIndicator.h"

#include <QStyleOptionProgressBar>

#include <algorithm>
#include <cmath>

namespace {

constexpr int steps = 2000; // From empty to full: finer than the bar's pixels.
constexpr int tenth = 10;   // Percents.

int stepFor(double progress) {
    return std::isnan(progress)
               ? 0
               : static_cast<int>(std::lround(std::clamp(progress, 0.0, 1.0) * steps));
}

} // namespace

ProgressIndicator::ProgressIndicator(QWidget *parent) : QProgressBar(parent) {
    setRange(0, 100);
    setValue(0);
}

int ProgressIndicator::percent() const {
    return step_ * 100 / steps;
}

void ProgressIndicator::setProgress(double progress) {
    const int step = stepFor(progress);
    if (step == step_) {
        return;
    }
    step_ = step;
    // The base class reports each new value, and is given one for each tenth.
    setValue(percent() / tenth * tenth);
    update();
}

void ProgressIndicator::setBusy(bool isBusy) {
    if (isBusy != isBusy_) {
        isBusy_ = isBusy;
        update();
    }
}

void ProgressIndicator::initStyleOption(QStyleOptionProgressBar *option) const {
    QProgressBar::initStyleOption(option);
    option->minimum = 0;
    option->maximum = isBusy_ ? 0 : steps;
    option->progress = isBusy_ ? 0 : step_;
}
