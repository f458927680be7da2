// SPDX-License-Identifier: GPL-2.0-or-later
// The keyboard after a sheet that came and went faster than a window manager answers. The test
// itself is that window manager, so that the order of things is always the same: needs a display of
// its own.
#include "CDBurnerPlugin/ProgressWindow.h"
#include "tests/CDBurnerPlugin/EventLoop.h"
#include "tests/support/CommandResult.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QWindow>

#include <array>
#include <cstdlib>
#include <memory>
#include <string>
#include <xcb/xcb.h>

namespace {

class X11Focus : public testing::Test {
protected:
    X11Focus() : server_(xcb_connect(nullptr, nullptr)) {
        root_ = xcb_setup_roots_iterator(xcb_get_setup(server_)).data->root;
        window_.resize(400, 300);
        field_.setFocus();
    }
    ~X11Focus() override { xcb_disconnect(server_); }

    void SetUp() override {
        claimToActivateWindows();
        other_ = otherProgramsWindow();
        window_.show();
        ASSERT_TRUE(runUntil([this] { return isOnScreen(window_); }));
        giveFocusTo(other_);
        ASSERT_TRUE(runUntil([] { return QGuiApplication::focusWindow() == nullptr; }));
    }

    /// Qt leaves it to the window manager then, which never answers here.
    void claimToActivateWindows() {
        const xcb_atom_t supported = atom("_NET_SUPPORTED");
        const xcb_atom_t activation = atom("_NET_ACTIVE_WINDOW");
        xcb_change_property(server_, XCB_PROP_MODE_REPLACE, root_, supported, XCB_ATOM_ATOM, 32, 1,
                            &activation);
        synchronize();
    }
    xcb_window_t otherProgramsWindow() {
        const xcb_window_t id = xcb_generate_id(server_);
        xcb_create_window(server_, XCB_COPY_FROM_PARENT, id, root_, 0, 0, 10, 10, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_map_window(server_, id);
        synchronize();
        return id;
    }
    xcb_atom_t atom(const std::string &name) {
        const auto cookie =
            xcb_intern_atom(server_, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
        const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
            xcb_intern_atom_reply(server_, cookie, nullptr), &std::free);
        return reply->atom;
    }
    xcb_window_t focus() {
        const std::unique_ptr<xcb_get_input_focus_reply_t, decltype(&std::free)> reply(
            xcb_get_input_focus_reply(server_, xcb_get_input_focus(server_), nullptr), &std::free);
        return reply->focus;
    }
    void synchronize() { focus(); }
    void giveFocusTo(xcb_window_t id) {
        xcb_set_input_focus(server_, XCB_INPUT_FOCUS_POINTER_ROOT, id, XCB_CURRENT_TIME);
        ASSERT_EQ(focus(), id);
    }
    /// As a window manager does that has just placed the window.
    void giveFocusTo(const QWidget &window) { giveFocusTo(idOf(window)); }
    /// Up, and for Qt the active window. The focus stays where it is.
    void runSheet() {
        sheet_.runSheetForWindow(&window_);
        ASSERT_TRUE(
            runUntil([this] { return QGuiApplication::focusWindow() == sheet_.windowHandle(); }));
    }
    /// What the server has to say to the program up to now.
    void letEverythingArrive() {
        const QPoint corner = window_.pos() + QPoint(7, 0);
        const std::array<std::int32_t, 1> left{corner.x()};
        xcb_configure_window(server_, idOf(window_), XCB_CONFIG_WINDOW_X, left.data());
        synchronize();
        ASSERT_TRUE(runUntil([this, &corner] { return window_.pos() == corner; }));
    }
    bool isActive() const {
        return window_.isActiveWindow() && QGuiApplication::focusWindow() == window_.windowHandle();
    }
    static bool isOnScreen(const QWidget &window) {
        return window.windowHandle() != nullptr && window.windowHandle()->isExposed();
    }
    static xcb_window_t idOf(const QWidget &window) {
        return static_cast<xcb_window_t>(window.internalWinId());
    }

    xcb_connection_t *server_; // Another program's connection.
    xcb_window_t root_ = XCB_WINDOW_NONE;
    xcb_window_t other_ = XCB_WINDOW_NONE;
    QWidget window_;
    QLineEdit field_{&window_};
    ProgressWindow sheet_{&window_};
};

TEST_F(X11Focus, KeysReachTheWindowWhenTheSheetWentBeforeItHadTheFocus) {
    giveFocusTo(window_);
    ASSERT_TRUE(runUntil([this] { return isActive(); }));
    runSheet();
    ASSERT_EQ(focus(), idOf(window_));
    sheet_.closeSheet();
    EXPECT_TRUE(runUntil([this] { return isActive(); }));
    EXPECT_EQ(runCommand({"xdotool", "key", "a"}).exitCode, 0);
    EXPECT_TRUE(runUntil([this] { return field_.text() == QLatin1String("a"); }));
}

TEST_F(X11Focus, FocusThatTheSheetReallyHadIsNotTakenForTheWindows) {
    giveFocusTo(window_);
    ASSERT_TRUE(runUntil([this] { return isActive(); }));
    runSheet();
    giveFocusTo(sheet_);
    sheet_.closeSheet();
    letEverythingArrive();
    EXPECT_NE(focus(), idOf(window_));
    EXPECT_FALSE(isActive());
}

TEST_F(X11Focus, AnotherProgramKeepsIt) {
    runSheet();
    sheet_.closeSheet();
    letEverythingArrive();
    EXPECT_EQ(focus(), other_);
    EXPECT_FALSE(isActive());
}

TEST_F(X11Focus, AnotherProgramThatTookItBehindTheSheetKeepsIt) {
    giveFocusTo(window_);
    ASSERT_TRUE(runUntil([this] { return isActive(); }));
    runSheet();
    giveFocusTo(other_);
    sheet_.closeSheet();
    letEverythingArrive();
    EXPECT_EQ(focus(), other_);
    EXPECT_FALSE(isActive());
}

} // namespace
