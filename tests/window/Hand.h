// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPoint>

#include <string>
#include <vector>

/// A person's mouse and keyboard: xdotool, which has the X server report them as a device's
/// (XTest). What is done has reached the server when a call returns, in the order of the calls;
/// whether a program has dealt with it is another matter.
class Hand {
public:
    static void moveTo(const QPoint &place);
    /// Buttons: 1 left, 2 middle, 3 right. Returns when the window manager has let it through.
    static void press(int button = 1);
    static void release(int button = 1);
    static void clickAt(const QPoint &place, int button = 1);
    /// Notches of the wheel, positive towards the user: the content moves up.
    static void wheel(int notches);
    /// Keys by their X names, "ctrl+a" for combinations, one after the other.
    static void keys(const std::vector<std::string> &names);
    static void keyDown(const std::string &name);
    static void keyUp(const std::string &name);
    /// Letter by letter. ASCII.
    static void type(const std::string &text);

    /// Any command of xdotool's.
    static void run(std::vector<std::string> words);
};
