// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/window/ChildProcess.h"

#include <QJsonObject>

/// The test's side of a LineServer: a program that is asked.
class Program {
public:
    Program(const std::vector<std::string> &arguments, const std::string &errorFile)
        : process_(arguments, errorFile) {}

    /// Ends the test, by an exception, when the program has ended or does not answer.
    QJsonObject ask(const QJsonObject &question = {});

    ChildProcess &process() { return process_; }

private:
    ChildProcess process_;
};
