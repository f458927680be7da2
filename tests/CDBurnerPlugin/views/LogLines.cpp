// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/CDBurnerPlugin/views/LogLines.h"

namespace {
LogLines *active = nullptr;
}

LogLines::LogLines() : previous_(qInstallMessageHandler(&LogLines::take)) {
    active = this;
}

LogLines::~LogLines() {
    qInstallMessageHandler(previous_);
    active = nullptr;
}

void LogLines::take(QtMsgType /*type*/, const QMessageLogContext & /*context*/,
                    const QString &text) {
    active->lines_.append(text);
}
