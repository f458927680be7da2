// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>
#include <QtGlobal>

/// Catches what is logged, as "category: text", while it lives. One at a time.
class LogLines {
public:
    LogLines() : former_(qInstallMessageHandler(take)) { lines().clear(); }
    ~LogLines() { qInstallMessageHandler(former_); }
    LogLines(const LogLines &) = delete;
    LogLines &operator=(const LogLines &) = delete;

    static QStringList &lines() {
        static QStringList list;
        return list;
    }

private:
    static void take(QtMsgType /*type*/, const QMessageLogContext &context, const QString &text) {
        lines().append(QString::fromUtf8(context.category) + QStringLiteral(": ") + text);
    }

    QtMessageHandler former_;
};
