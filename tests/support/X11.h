// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstdlib>
#include <memory>
#include <string>
#include <xcb/xcb.h>

/// What tests ask an X server and its window manager (EWMH 1.5). Any thread; each blocks until it
/// is answered.
namespace x11 {

using Connection = std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)>;

/// To the display DISPLAY; null, with a failure of the test, where there is none.
Connection connect();

/// A reply of xcb's, freed at the end.
template <typename Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply *reply) {
    return {reply, &std::free};
}

xcb_window_t rootOf(xcb_connection_t *connection);
xcb_atom_t atomNamed(xcb_connection_t *connection, const std::string &name);
bool hasProperty(xcb_connection_t *connection, xcb_window_t window, xcb_atom_t name);

/// Asks the window manager for something that concerns a window.
void sendToWindowManager(xcb_connection_t *connection, xcb_window_t window,
                         const std::string &request);

/// Waits until windows that come up are taken care of. A window manager says that it is there some
/// time before that; what is put up between is left alone for ever. Fails the test if that does not
/// come about.
void waitUntilWindowsAreManaged(xcb_connection_t *connection);

/// Returns when the window manager has dealt with everything that was done before. It sees a click
/// before the window does; until it has let it through, the pointer stands still, and a press that
/// comes meanwhile can be lost. Fails the test if it is silent.
void waitForWindowManager(xcb_connection_t *connection);

} // namespace x11
