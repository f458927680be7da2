// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/accessibility/Keyboard.h"

#include "tests/accessibility/Waiting.h"
#include "tests/support/X11.h"

namespace {

bool isKeyboardAtAWindow(xcb_connection_t *connection) {
    const auto focus =
        x11::owned(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    if (focus == nullptr || focus->focus == XCB_NONE ||
        focus->focus == XCB_INPUT_FOCUS_POINTER_ROOT || focus->focus == x11::rootOf(connection)) {
        return false;
    }
    const auto cookie = xcb_get_window_attributes(connection, focus->focus);
    const auto window = x11::owned(xcb_get_window_attributes_reply(connection, cookie, nullptr));
    // Openbox keeps the keyboard in a window beside the screen while it has nobody to give it to.
    return window != nullptr && window->map_state == XCB_MAP_STATE_VIEWABLE &&
           window->override_redirect == 0;
}

} // namespace

void waitUntilKeysArrive() {
    if (const x11::Connection connection = x11::connect()) {
        x11::waitForWindowManager(connection.get());
        waitUntil("the keyboard", [&] { return isKeyboardAtAWindow(connection.get()); });
    }
}
