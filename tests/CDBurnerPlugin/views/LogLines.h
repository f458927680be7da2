// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

/// Collects what is logged while it exists; nothing reaches standard error meanwhile. One at a
/// time.
class LogLines {
public:
    LogLines();
    ~LogLines();
    LogLines(const LogLines &) = delete;
    LogLines &operator=(const LogLines &) = delete;

    const QStringList &lines() const { return lines_; }

private:
    static void take(QtMsgType type, const QMessageLogContext &context, const QString &text);

    QStringList lines_;
    QtMessageHandler previous_;
};
