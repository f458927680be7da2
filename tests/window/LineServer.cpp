// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/window/LineServer.h"

#include <QCoreApplication>
#include <QJsonDocument>

#include <array>
#include <cstdio>
#include <unistd.h>
#include <utility>

LineServer::LineServer(Answer answer)
    : answer_(std::move(answer)), notifier_(STDIN_FILENO, QSocketNotifier::Read) {
    connect(&notifier_, &QSocketNotifier::activated, this, &LineServer::readInput);
}

void LineServer::readInput() {
    std::array<char, 65536> buffer{};
    const ssize_t count = read(STDIN_FILENO, buffer.data(), buffer.size());
    if (count <= 0) {
        notifier_.setEnabled(false);
        QCoreApplication::exit(0);
        return;
    }
    unread_.append(buffer.data(), count);
    for (qsizetype end = 0; (end = unread_.indexOf('\n')) >= 0;) {
        const QByteArray line = unread_.left(end);
        unread_.remove(0, end + 1);
        const QJsonObject answer = answer_(QJsonDocument::fromJson(line).object());
        const QByteArray text = QJsonDocument(answer).toJson(QJsonDocument::Compact) + '\n';
        std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
        std::fflush(stdout);
    }
}
