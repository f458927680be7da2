// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/window/Program.h"

#include "tests/support/Deadline.h"

#include <QJsonDocument>

#include <stdexcept>

QJsonObject Program::ask(const QJsonObject &question) {
    const QByteArray line = QJsonDocument(question).toJson(QJsonDocument::Compact);
    std::string answer;
    if (!process_.writeLine(line.toStdString()) || !process_.readLine(answer, waitLimit)) {
        throw std::runtime_error(process_.isRunning() ? "a program does not answer"
                                                      : "a program has ended");
    }
    return QJsonDocument::fromJson(QByteArray::fromStdString(answer)).object();
}
