// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

/// Waits until keys that are pressed from now on reach a window: the window manager has done what
/// was asked of it up to now, and the X server has the keyboard at a window that is on the screen.
/// A program may believe that it has the keyboard long before, and keys that come between are lost.
/// Fails the test if that does not come about.
void waitUntilKeysArrive();
