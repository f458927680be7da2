// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/QtTests.h"

#include "tests/support/TemporaryFolder.h"

#include <QApplication>

#include <gmock/gmock.h>

int runQtTests(int argc, char *argv[]) {
    const TemporaryFolder home;
    qputenv("HOME", home.path().c_str());
    qputenv("XDG_CONFIG_HOME", (home.path() / "config").c_str());
    qunsetenv("XDG_MUSIC_DIR");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    testing::InitGoogleMock(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
