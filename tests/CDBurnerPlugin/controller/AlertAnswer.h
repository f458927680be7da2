// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QIcon>
#include <QMessageBox>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>

/// Waits for alerts and answers each of them, as a user would, from inside the loop that the alert
/// runs. Keeps what the last one said.
class AlertAnswer {
public:
    /// Clicks the button of this title.
    explicit AlertAnswer(const QString &button);
    /// Does something else with the alert, which has to end it.
    explicit AlertAnswer(std::function<void(QMessageBox *)> answer);

    int count() const { return count_; }
    const QString &message() const { return message_; }
    const QString &informative() const { return informative_; }
    const QStringList &buttons() const { return buttons_; }
    const QString &defaultButton() const { return defaultButton_; }
    QMessageBox::Icon icon() const { return icon_; }
    Qt::WindowModality modality() const { return modality_; }

    static void press(QMessageBox *alert, const QString &button);

private:
    void look();

    std::function<void(QMessageBox *)> answer_;
    QTimer timer_;
    int count_ = 0;
    QString message_;
    QString informative_;
    QStringList buttons_;
    QString defaultButton_;
    QMessageBox::Icon icon_ = QMessageBox::NoIcon;
    Qt::WindowModality modality_ = Qt::NonModal;
};
