// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/accessibility/WindowManager.h"

#include "tests/accessibility/Waiting.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <memory>
#include <string>
#include <thread>
#include <xcb/xcb.h>

namespace {

using namespace std::chrono_literals;

using Connection = std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)>;

/// Null, with a failure of the test, where there is no display.
Connection connect() {
    Connection connection(xcb_connect(nullptr, nullptr), &xcb_disconnect);
    if (xcb_connection_has_error(connection.get()) != 0) {
        ADD_FAILURE() << "no connection to the display";
        connection.reset();
    }
    return connection;
}

template <typename Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply *reply) {
    return {reply, &std::free};
}

xcb_window_t rootOf(xcb_connection_t *connection) {
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

xcb_atom_t atom(xcb_connection_t *connection, const std::string &name) {
    const auto cookie =
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const auto reply = owned(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply != nullptr ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

/// A window that nobody sees.
xcb_window_t createWindow(xcb_connection_t *connection) {
    const xcb_window_t window = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, rootOf(connection), 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    return window;
}

bool hasProperty(xcb_connection_t *connection, xcb_window_t window, xcb_atom_t name) {
    const auto cookie =
        xcb_get_property(connection, 0, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0, 1);
    const auto reply = owned(xcb_get_property_reply(connection, cookie, nullptr));
    return reply != nullptr && reply->type != XCB_ATOM_NONE;
}

/// Whether a window that comes up now is taken care of soon.
bool isManaging(xcb_connection_t *connection) {
    constexpr auto patience = 500ms; // Then another window is tried.
    const xcb_window_t window = createWindow(connection);
    xcb_map_window(connection, window);
    const xcb_atom_t state = atom(connection, "WM_STATE");
    const auto end = std::chrono::steady_clock::now() + patience;
    bool isManaged = hasProperty(connection, window, state);
    while (!isManaged && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(5ms);
        isManaged = hasProperty(connection, window, state);
    }
    xcb_destroy_window(connection, window);
    xcb_flush(connection);
    return isManaged;
}

/// It answers in the order in which it hears: the frame of a window that nobody sees is asked for.
void waitForAnswer(xcb_connection_t *connection) {
    const xcb_window_t window = createWindow(connection);
    xcb_client_message_event_t request{};
    request.response_type = XCB_CLIENT_MESSAGE;
    request.format = 32;
    request.window = window;
    request.type = atom(connection, "_NET_REQUEST_FRAME_EXTENTS");
    xcb_send_event(connection, 0, rootOf(connection),
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&request));
    const xcb_atom_t answer = atom(connection, "_NET_FRAME_EXTENTS");
    waitUntil("the window manager's answer",
              [&] { return hasProperty(connection, window, answer); });
}

bool isKeyboardAtAWindow(xcb_connection_t *connection) {
    const auto focus =
        owned(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    if (focus == nullptr || focus->focus == XCB_NONE ||
        focus->focus == XCB_INPUT_FOCUS_POINTER_ROOT || focus->focus == rootOf(connection)) {
        return false;
    }
    const auto cookie = xcb_get_window_attributes(connection, focus->focus);
    const auto window = owned(xcb_get_window_attributes_reply(connection, cookie, nullptr));
    // Openbox keeps the keyboard in a window beside the screen while it has nobody to give it to.
    return window != nullptr && window->map_state == XCB_MAP_STATE_VIEWABLE &&
           window->override_redirect == 0;
}

} // namespace

void waitUntilWindowsAreManaged() {
    if (const Connection connection = connect()) {
        waitUntil("the window manager", [&] { return isManaging(connection.get()); });
    }
}

void waitUntilKeysArrive() {
    if (const Connection connection = connect()) {
        waitForAnswer(connection.get());
        waitUntil("the keyboard", [&] { return isKeyboardAtAWindow(connection.get()); });
    }
}
