// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/TemporaryFolder.h"

#include <cstdlib>

#include <gmock/gmock.h>

int main(int argc, char *argv[]) {
    const TemporaryFolder home; // Nobody's settings are read or written.
    const auto set = [](const char *name, const std::string &value) {
        setenv(name, value.c_str(), 1);
    };
    set("HOME", home.path());
    set("XDG_CONFIG_HOME", home / "config");
    set("XDG_CACHE_HOME", home / "cache");
    set("XDG_RUNTIME_DIR", home.path());
    // Whatever the desktop of the person who runs the tests would change.
    for (const char *name : {"QT_STYLE_OVERRIDE", "QT_SCALE_FACTOR", "QT_QPA_PLATFORMTHEME",
                             "QT_IM_MODULE", "XMODIFIERS", "WAYLAND_DISPLAY", "XAUTHORITY"}) {
        unsetenv(name);
    }
    set("QT_QPA_PLATFORM", "xcb");
    set("LC_ALL", "C.UTF-8");
    // No bus: nothing is to be started on one's own account.
    set("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
