// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QObject>
#include <QSocketNotifier>

#include <functional>

/// The side of a program under test that answers the test: one JSON object a line on standard
/// input, one a line on standard output, in the order of the questions, from whatever event loop
/// the program is in. The end of standard input ends the program. Main thread.
class LineServer : public QObject {
    Q_OBJECT

public:
    using Answer = std::function<QJsonObject(const QJsonObject &question)>;

    explicit LineServer(Answer answer);

private:
    void readInput();

    Answer answer_;
    QSocketNotifier notifier_;
    QByteArray unread_;
};
