// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/window/Desktop.h"

#include "tests/support/CommandResult.h"
#include "tests/window/Deadline.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <tuple>

namespace {

template <typename Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

template <typename Reply>
Owned<Reply> owned(Reply *reply) {
    return Owned<Reply>(reply, &std::free);
}

xcb_atom_t atom(xcb_connection_t *connection, const std::string &name) {
    const auto cookie =
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const auto reply = owned(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply != nullptr ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

xcb_window_t rootOf(xcb_connection_t *connection) {
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

/// A window that nobody sees.
xcb_window_t createWindow(xcb_connection_t *connection) {
    const xcb_window_t window = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, rootOf(connection), 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    return window;
}

/// Asks the window manager for something that concerns a window.
void sendToWindowManager(xcb_connection_t *connection, xcb_window_t window,
                         const std::string &request) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atom(connection, request);
    xcb_send_event(connection, 0, rootOf(connection),
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&message));
    xcb_flush(connection);
}

bool hasProperty(xcb_connection_t *connection, xcb_window_t window, xcb_atom_t name) {
    const auto cookie =
        xcb_get_property(connection, 0, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0, 1);
    const auto reply = owned(xcb_get_property_reply(connection, cookie, nullptr));
    return reply != nullptr && reply->type != XCB_ATOM_NONE;
}

} // namespace

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
    connection_ = xcb_connect(name.c_str(), nullptr);
    if (xcb_connection_has_error(connection_) != 0) {
        ADD_FAILURE() << "no connection to display " << name;
        return;
    }
    root_ = rootOf(connection_);
    windowManager_ = std::make_unique<ChildProcess>(
        std::vector<std::string>{"openbox", "--sm-disable", "--config-file",
                                 TEST_WINDOW_DIR "/openbox.xml"},
        errorFile());
    EXPECT_TRUE(eventually([this] { return hasWindowManager(); })) << readFile(errorFile());
    EXPECT_TRUE(eventually([this] { return isManaging(); })) << readFile(errorFile());
}

Desktop::~Desktop() {
    windowManager_.reset();
    if (connection_ != nullptr) {
        xcb_disconnect(connection_);
    }
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

bool Desktop::hasWindowManager() {
    // The window that is named must name itself: the property may be left over.
    const std::string check = "_NET_SUPPORTING_WM_CHECK";
    const std::uint32_t window = property(root_, check, XCB_ATOM_WINDOW);
    return window != 0 && property(window, check, XCB_ATOM_WINDOW) == window;
}

bool Desktop::isManaging() {
    constexpr std::chrono::milliseconds patience{500}; // Then another window is tried.
    const std::uint32_t window = createWindow(connection_);
    xcb_map_window(connection_, window);
    const xcb_atom_t state = atom(connection_, "WM_STATE");
    const bool isManaged =
        eventually([&] { return hasProperty(connection_, window, state); }, patience);
    xcb_destroy_window(connection_, window);
    xcb_flush(connection_);
    return isManaged;
}

void Desktop::waitForWindowManager() {
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
        xcb_connect(nullptr, nullptr), &xcb_disconnect);
    if (xcb_connection_has_error(connection.get()) != 0) {
        ADD_FAILURE() << "no connection to the display";
        return;
    }
    // It answers in the order in which it hears.
    const xcb_window_t window = createWindow(connection.get());
    sendToWindowManager(connection.get(), window, "_NET_REQUEST_FRAME_EXTENTS");
    const xcb_atom_t answer = atom(connection.get(), "_NET_FRAME_EXTENTS");
    EXPECT_TRUE(eventually([&] { return hasProperty(connection.get(), window, answer); }))
        << "the window manager is silent";
}

std::uint32_t Desktop::property(std::uint32_t window, const std::string &name, std::uint32_t type) {
    const auto cookie =
        xcb_get_property(connection_, 0, window, atom(connection_, name), type, 0, 1);
    const auto reply = owned(xcb_get_property_reply(connection_, cookie, nullptr));
    if (reply == nullptr || xcb_get_property_value_length(reply.get()) != sizeof(std::uint32_t)) {
        return 0;
    }
    std::uint32_t value = 0;
    std::memcpy(&value, xcb_get_property_value(reply.get()), sizeof value);
    return value;
}

std::uint32_t Desktop::activeWindow() {
    return property(root_, "_NET_ACTIVE_WINDOW", XCB_ATOM_WINDOW);
}

std::uint32_t Desktop::keyboardWindow() {
    const auto reply =
        owned(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
    return reply != nullptr ? reply->focus : 0;
}

QRect Desktop::windowRect(std::uint32_t window) {
    const auto geometry =
        owned(xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window), nullptr));
    const auto corner = owned(xcb_translate_coordinates_reply(
        connection_, xcb_translate_coordinates(connection_, window, root_, 0, 0), nullptr));
    if (geometry == nullptr || corner == nullptr) {
        return {};
    }
    return {corner->dst_x, corner->dst_y, geometry->width, geometry->height};
}

std::vector<QColor> Desktop::pixels(const QRect &area) {
    const QRect seen = area.intersected(QRect(QPoint(0, 0), size));
    const auto cookie = xcb_get_image(
        connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, root_, static_cast<std::int16_t>(seen.x()),
        static_cast<std::int16_t>(seen.y()), static_cast<std::uint16_t>(seen.width()),
        static_cast<std::uint16_t>(seen.height()), ~0U);
    const auto reply = owned(xcb_get_image_reply(connection_, cookie, nullptr));
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
    sendToWindowManager(connection_, window, "_NET_CLOSE_WINDOW");
}
