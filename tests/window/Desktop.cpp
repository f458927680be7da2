// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/window/Desktop.h"

#include "tests/support/CommandResult.h"
#include "tests/support/Deadline.h"
#include "tests/support/X11.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <tuple>

Desktop::Desktop() {
    const std::string screen =
        std::to_string(size.width()) + "x" + std::to_string(size.height()) + "x24";
    // It picks a free display by itself and says which, so that two desktops never meet.
    server_ = std::make_unique<ChildProcess>(
        std::vector<std::string>{"Xvfb", "-displayfd", "1", "-screen", "0", screen, "-nolisten",
                                 "tcp", "-noreset"},
        errorFile());
    std::string number;
    if (!server_->readLine(number, waitLimit)) {
        ADD_FAILURE() << "no X server: " << readFile(errorFile());
        return;
    }
    const std::string name = ":" + number;
    setenv("DISPLAY", name.c_str(), 1);
    connection_ = x11::connect();
    if (connection_ == nullptr) {
        return;
    }
    windowManager_ = std::make_unique<ChildProcess>(
        std::vector<std::string>{"openbox", "--sm-disable", "--config-file",
                                 TEST_WINDOW_DIR "/openbox.xml"},
        errorFile());
    x11::waitUntilWindowsAreManaged(connection_.get());
}

void Desktop::splitIntoTwoMonitors() {
    const int width = size.width() / 2;
    const std::string half =
        std::to_string(width) + "/240x" + std::to_string(size.height()) + "/260+";
    // RandR's monitors: the server's one output belongs to the first of them.
    for (const auto &[name, left, output] :
         {std::tuple("left", 0, "screen"), std::tuple("right", width, "none")}) {
        const CommandResult result = runCommand(
            {"xrandr", "--setmonitor", name, half + std::to_string(left) + "+0", output});
        EXPECT_EQ(result.exitCode, 0) << result.output;
    }
}

void Desktop::waitForWindowManager() {
    if (const x11::Connection connection = x11::connect()) {
        x11::waitForWindowManager(connection.get());
    }
}

std::uint32_t Desktop::property(std::uint32_t window, const std::string &name, std::uint32_t type) {
    const auto cookie = xcb_get_property(connection_.get(), 0, window,
                                         x11::atomNamed(connection_.get(), name), type, 0, 1);
    const auto reply = x11::owned(xcb_get_property_reply(connection_.get(), cookie, nullptr));
    if (reply == nullptr || xcb_get_property_value_length(reply.get()) != sizeof(std::uint32_t)) {
        return 0;
    }
    std::uint32_t value = 0;
    std::memcpy(&value, xcb_get_property_value(reply.get()), sizeof value);
    return value;
}

std::uint32_t Desktop::activeWindow() {
    return property(x11::rootOf(connection_.get()), "_NET_ACTIVE_WINDOW", XCB_ATOM_WINDOW);
}

std::uint32_t Desktop::keyboardWindow() {
    const auto reply = x11::owned(xcb_get_input_focus_reply(
        connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
    return reply != nullptr ? reply->focus : 0;
}

QRect Desktop::windowRect(std::uint32_t window) {
    xcb_connection_t *const server = connection_.get();
    const auto geometry =
        x11::owned(xcb_get_geometry_reply(server, xcb_get_geometry(server, window), nullptr));
    const auto corner = x11::owned(xcb_translate_coordinates_reply(
        server, xcb_translate_coordinates(server, window, x11::rootOf(server), 0, 0), nullptr));
    if (geometry == nullptr || corner == nullptr) {
        return {};
    }
    return {corner->dst_x, corner->dst_y, geometry->width, geometry->height};
}

std::vector<QColor> Desktop::pixels(const QRect &area) {
    const QRect seen = area.intersected(QRect(QPoint(0, 0), size));
    const auto cookie = xcb_get_image(
        connection_.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, x11::rootOf(connection_.get()),
        static_cast<std::int16_t>(seen.x()), static_cast<std::int16_t>(seen.y()),
        static_cast<std::uint16_t>(seen.width()), static_cast<std::uint16_t>(seen.height()), ~0U);
    const auto reply = x11::owned(xcb_get_image_reply(connection_.get(), cookie, nullptr));
    std::vector<QColor> colors;
    if (reply == nullptr) {
        ADD_FAILURE() << "no picture of the screen";
        return colors;
    }
    const std::uint8_t *const data = xcb_get_image_data(reply.get());
    const auto count = static_cast<std::size_t>(xcb_get_image_data_length(reply.get())) / 4;
    colors.reserve(count);
    for (std::size_t index = 0; index < count; ++index) {
        const std::uint8_t *const pixel = data + 4 * index; // Blue, green, red, nothing.
        colors.emplace_back(pixel[2], pixel[1], pixel[0]);
    }
    return colors;
}

void Desktop::closeWindow(std::uint32_t window) {
    x11::sendToWindowManager(connection_.get(), window, "_NET_CLOSE_WINDOW");
}
