// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

class QWidget;

/// Tells assistive technologies what the tool's own views are: without it they are seen as empty
/// boxes. Called before the first of them is made; again it does nothing. Main thread.
void installAccessibleViews();

/// Has a screen reader say the view's accessible name now, wherever the focus is. Only for views
/// that are known as notifications: the error tips, the progress sheet's tips and the help bubble.
/// Does nothing while the view cannot be seen. Main thread.
void announce(QWidget *view);
