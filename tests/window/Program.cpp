// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/window/Program.h"

#include "tests/window/Deadline.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

QJsonObject Program::ask(const QJsonObject &question) {
    const QByteArray line = QJsonDocument(question).toJson(QJsonDocument::Compact);
    std::string answer;
    if (!process_.writeLine(line.toStdString()) || !process_.readLine(answer, waitLimit)) {
        ADD_FAILURE() << (process_.isRunning() ? "no answer" : "the program has ended");
        return {};
    }
    return QJsonDocument::fromJson(QByteArray::fromStdString(answer)).object();
}
