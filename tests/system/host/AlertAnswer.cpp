// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/system/host/AlertAnswer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>

#include <utility>

AlertAnswer::AlertAnswer(QString button) : button_(std::move(button)) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
    timer_.start(5);
}

void AlertAnswer::look() {
    auto *alert = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (alert == nullptr) {
        return;
    }
    for (QAbstractButton *button : alert->buttons()) {
        if (button->text() == button_) {
            ++count_;
            message_ = alert->text();
            informative_ = alert->informativeText();
            button->click();
            return;
        }
    }
}
