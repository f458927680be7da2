// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/X11.h"

#include "tests/support/Deadline.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>

namespace x11 {
namespace {

/// A window that nobody sees.
xcb_window_t createWindow(xcb_connection_t *connection) {
    const xcb_window_t window = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, rootOf(connection), 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    return window;
}

/// Whether a window that comes up now is taken care of soon.
bool isManaging(xcb_connection_t *connection) {
    constexpr std::chrono::milliseconds patience{500}; // Then another window is tried.
    const xcb_window_t window = createWindow(connection);
    xcb_map_window(connection, window);
    const xcb_atom_t state = atomNamed(connection, "WM_STATE");
    const bool isManaged =
        eventually([&] { return hasProperty(connection, window, state); }, patience);
    xcb_destroy_window(connection, window);
    xcb_flush(connection);
    return isManaged;
}

} // namespace

Connection connect() {
    Connection connection(xcb_connect(nullptr, nullptr), &xcb_disconnect);
    if (xcb_connection_has_error(connection.get()) != 0) {
        ADD_FAILURE() << "no connection to the display";
        connection.reset();
    }
    return connection;
}

xcb_window_t rootOf(xcb_connection_t *connection) {
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

xcb_atom_t atomNamed(xcb_connection_t *connection, const std::string &name) {
    const auto cookie =
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const auto reply = owned(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply != nullptr ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

bool hasProperty(xcb_connection_t *connection, xcb_window_t window, xcb_atom_t name) {
    const auto cookie =
        xcb_get_property(connection, 0, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0, 1);
    const auto reply = owned(xcb_get_property_reply(connection, cookie, nullptr));
    return reply != nullptr && reply->type != XCB_ATOM_NONE;
}

void sendToWindowManager(xcb_connection_t *connection, xcb_window_t window,
                         const std::string &request) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atomNamed(connection, request);
    xcb_send_event(connection, 0, rootOf(connection),
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&message));
    xcb_flush(connection);
}

void waitUntilWindowsAreManaged(xcb_connection_t *connection) {
    EXPECT_TRUE(eventually([&] { return isManaging(connection); })) << "no window manager";
}

void waitForWindowManager(xcb_connection_t *connection) {
    // It answers in the order in which it hears.
    const xcb_window_t window = createWindow(connection);
    sendToWindowManager(connection, window, "_NET_REQUEST_FRAME_EXTENTS");
    const xcb_atom_t answer = atomNamed(connection, "_NET_FRAME_EXTENTS");
    EXPECT_TRUE(eventually([&] { return hasProperty(connection, window, answer); }))
        << "the window manager is silent";
    xcb_destroy_window(connection, window);
    xcb_flush(connection);
}

} // namespace x11
