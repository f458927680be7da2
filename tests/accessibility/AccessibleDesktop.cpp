// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/accessibility/AccessibleDesktop.h"

#include "tests/support/X11.h"

#include <cstdlib>
#include <filesystem>

namespace {

void setVariable(const char *name, const std::string &value) {
    setenv(name, value.c_str(), 1); // NOLINT(concurrency-mt-unsafe): before any thread
}

} // namespace

AccessibleDesktop::AccessibleDesktop() {
    // Where the services keep their sockets: not where those of a person's session are.
    const std::filesystem::path runtime = home_ / "runtime";
    std::filesystem::create_directory(runtime);
    std::filesystem::permissions(runtime, std::filesystem::perms::owner_all);
    setVariable("XDG_RUNTIME_DIR", runtime);
    setVariable("HOME", home_.path());
    setVariable("XDG_CONFIG_HOME", home_ / "config");
    setVariable("QT_QPA_PLATFORM", "xcb");
    setVariable("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    unsetenv("AT_SPI_BUS_ADDRESS"); // NOLINT(concurrency-mt-unsafe): before any thread
    startDisplay();
    startBus();
    startWindowManager();
}

void AccessibleDesktop::startDisplay() {
    display_ = std::make_unique<ChildProcess>(
        std::vector<std::string>{"Xvfb", "-displayfd", "3", "-screen", "0", "1280x1024x24",
                                 "-noreset", "-nolisten", "tcp"},
        home_ / "display.log");
    setVariable("DISPLAY", ":" + display_->readLine());
}

void AccessibleDesktop::startBus() {
    bus_ = std::make_unique<ChildProcess>(
        std::vector<std::string>{"dbus-daemon", "--session", "--nofork", "--nopidfile",
                                 "--nosyslog", "--print-address=3",
                                 "--address=unix:dir=" + home_.path().string()},
        home_ / "bus.log");
    setVariable("DBUS_SESSION_BUS_ADDRESS", bus_->readLine());
}

void AccessibleDesktop::startWindowManager() {
    windowManager_ = std::make_unique<ChildProcess>(
        std::vector<std::string>{"openbox", "--sm-disable"}, home_ / "window-manager.log");
    if (const x11::Connection connection = x11::connect()) {
        x11::waitUntilWindowsAreManaged(connection.get());
    }
}
