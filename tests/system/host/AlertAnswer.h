// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QTimer>

/// While it lives, answers each alert that comes up with the button of this title, from inside the
/// loop that the alert runs. Keeps what the last one said.
class AlertAnswer {
public:
    explicit AlertAnswer(QString button);

    int count() const { return count_; }
    const QString &message() const { return message_; }
    const QString &informative() const { return informative_; }

private:
    void look();

    QString button_;
    QTimer timer_;
    int count_ = 0;
    QString message_;
    QString informative_;
};
