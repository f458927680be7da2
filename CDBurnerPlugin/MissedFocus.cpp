// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/MissedFocus.h"

#include <QApplication>
#include <QWidget>

#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <xcb/xcb.h>

namespace {

/// Nobody else can move the focus while it lives. What is said of it here then stands in the right
/// place among the server's own messages, which tell of every move after it.
class ServerGrab {
public:
    explicit ServerGrab(xcb_connection_t *connection) : connection_(connection) {
        xcb_grab_server(connection_);
    }
    ~ServerGrab() {
        xcb_ungrab_server(connection_);
        xcb_flush(connection_);
    }
    ServerGrab(const ServerGrab &) = delete;
    ServerGrab &operator=(const ServerGrab &) = delete;

private:
    xcb_connection_t *connection_;
};

bool hasInputFocus(xcb_connection_t *connection, xcb_window_t window) {
    const std::unique_ptr<xcb_get_input_focus_reply_t, decltype(&std::free)> reply(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr),
        &std::free);
    return reply != nullptr && reply->focus == window;
}

void repeatFocusIn(xcb_connection_t *connection, xcb_window_t window) {
    constexpr std::size_t eventSize = 32; // What is sent of each event, however short it is.
    xcb_focus_in_event_t event{};
    event.response_type = XCB_FOCUS_IN;
    event.detail = XCB_NOTIFY_DETAIL_NONLINEAR;
    event.event = window;
    event.mode = XCB_NOTIFY_MODE_NORMAL;
    std::array<char, eventSize> bytes{};
    std::memcpy(bytes.data(), &event, sizeof event);
    // With no event mask it goes to the program that made the window, and to no other.
    xcb_send_event(connection, 0, window, XCB_EVENT_MASK_NO_EVENT, bytes.data());
}

} // namespace

void noticeMissedFocus(const QWidget &widget) {
    const auto window = static_cast<xcb_window_t>(widget.window()->internalWinId());
    // The platform for programs without a screen can have an X connection too.
    const bool isX11 = QGuiApplication::platformName() == QLatin1String("xcb");
    const auto *const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    if (window == XCB_WINDOW_NONE || !isX11 || x11 == nullptr) {
        return;
    }
    // Whatever Qt believes now: another belief may be on its way to it.
    const ServerGrab grab(x11->connection());
    if (hasInputFocus(x11->connection(), window)) {
        repeatFocusIn(x11->connection(), window);
    }
}
