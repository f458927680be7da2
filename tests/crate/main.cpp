// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/TemporaryFolder.h"

#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char *argv[]) {
    // Nobody's settings are read or written.
    const TemporaryFolder home;
    qputenv("HOME", home.path().c_str());
    qputenv("XDG_CONFIG_HOME", (home.path() / "config").c_str());
    qunsetenv("XDG_MUSIC_DIR");
    testing::InitGoogleMock(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
