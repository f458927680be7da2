// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/CDBurnerPlugin/controller/AlertAnswer.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QPushButton>

#include <utility>

AlertAnswer::AlertAnswer(const QString &button)
    : AlertAnswer([button](QMessageBox *alert) { press(alert, button); }) {}

AlertAnswer::AlertAnswer(std::function<void(QMessageBox *)> answer) : answer_(std::move(answer)) {
    QObject::connect(&timer_, &QTimer::timeout, [this] { look(); });
    timer_.start(1);
}

void AlertAnswer::press(QMessageBox *alert, const QString &button) {
    for (QAbstractButton *const candidate : alert->buttons()) {
        if (candidate->text() == button) {
            candidate->click();
            return;
        }
    }
    ADD_FAILURE() << "no button " << button.toStdString();
    alert->reject();
}

void AlertAnswer::look() {
    auto *const alert = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (alert == nullptr) {
        return;
    }
    ++count_;
    message_ = alert->text();
    informative_ = alert->informativeText();
    icon_ = alert->icon();
    modality_ = alert->windowModality();
    defaultButton_ = alert->defaultButton() != nullptr ? alert->defaultButton()->text() : QString();
    buttons_.clear();
    for (const QAbstractButton *const button : alert->buttons()) {
        buttons_.append(button->text());
    }
    answer_(alert);
}
