// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

class QWidget;

/// Puts right which window Qt believes to have the keyboard. To be called when a modal dialog of
/// the window has just been hidden.
///
/// Qt asks the window manager to activate such a dialog, hears its own wish as if it had been
/// granted, and takes the dialog for the active window from then on. If the dialog goes before the
/// window manager grants it, the focus has never left the window. So the X server has no change to
/// tell of, and every key goes to the hidden dialog.
///
/// Tells Qt again what the server told it before, and only while the server says that the focus is
/// on the window: no focus is moved, and no other program hears of it. Where Qt was right it
/// changes nothing. X11 only; elsewhere there is no such wish, and nothing is done. Main thread;
/// waits for one answer of the X server.
void noticeMissedFocus(const QWidget &widget);
